#include "divide/Options.h"

#include <getopt.h>

#include <array>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

namespace qismora::divide {

namespace {

constexpr std::string_view help =
    R"(Usage: qismora-divide [OPTION]... [FILE]...
Divides estates among the heirs by the Islamic law of inheritance.

Each FILE is a table with one family a row (CSV), or a case file with one
"caption = value" a line. Without a FILE, or where it is -, standard input is
read.

  -s, --school=SCHOOL    hanafi (the default), maliki, shafii, hanbali, or all
                         for the four side by side
  -f, --format=FORMAT    table (the default, for people), csv, json, or jsonl
                         for one JSON object a line
  -r, --reasons          give the reason and the source of each share
      --compare          give also what the commands of the window Case Study
                         answer, and why it differs
  -c, --consent          the heirs consent to bequests of more than a third
  -i, --input=KIND       csv or case; without it the first line decides
  -d, --separator=SEP    comma, semicolon or tab between the fields of tables;
                         without it the header decides, and answers have commas
      --columns=LIST     the columns of a table without a header row
      --ignore-columns   pass over columns that are not captions
      --first=NUMBER     the number of the first family without an id
      --no-header        leave the header row out of a CSV answer
  -q, --quiet            no progress and no summary on standard error
  -h, --help             print this help and exit
  -V, --version          print the version and exit

The exit status is 0 when every family was divided, 1 when some were not, and
2 when a file or an option could not be read or the answer not be written.
)";

enum LongOption : int {
  CompareOption = 256,
  ColumnsOption,
  IgnoreColumnsOption,
  FirstOption,
  NoHeaderOption
};

constexpr std::array<option, 16> longOptions = {{
    {"school", required_argument, nullptr, 's'},
    {"format", required_argument, nullptr, 'f'},
    {"reasons", no_argument, nullptr, 'r'},
    {"compare", no_argument, nullptr, CompareOption},
    {"consent", no_argument, nullptr, 'c'},
    {"input", required_argument, nullptr, 'i'},
    {"separator", required_argument, nullptr, 'd'},
    {"columns", required_argument, nullptr, ColumnsOption},
    {"ignore-columns", no_argument, nullptr, IgnoreColumnsOption},
    {"first", required_argument, nullptr, FirstOption},
    {"no-header", no_argument, nullptr, NoHeaderOption},
    {"quiet", no_argument, nullptr, 'q'},
    {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, 'V'},
    {nullptr, 0, nullptr, 0},
}};

template <class Value>
struct Choice {
  std::string_view Word;
  Value Meaning;
};

using faraid::School;

const std::array<Choice<std::vector<School>>, 5> schools = {{
    {"hanafi", {School::Hanafi}},
    {"maliki", {School::Maliki}},
    {"shafii", {School::Shafii}},
    {"hanbali", {School::Hanbali}},
    {"all", {School::Hanafi, School::Maliki, School::Shafii, School::Hanbali}},
}};
constexpr std::array<Choice<Format>, 4> formats = {{
    {"table", Format::Table},
    {"csv", Format::Csv},
    {"json", Format::Json},
    {"jsonl", Format::JsonLines},
}};
constexpr std::array<Choice<InputKind>, 2> inputs = {{{"csv", InputKind::Csv}, {"case", InputKind::Case}}};
constexpr std::array<Choice<char>, 6> separatorWords = {{
    {"comma", ','},
    {"semicolon", ';'},
    {"tab", '\t'},
    {",", ','},
    {";", ';'},
    {"\t", '\t'},
}};

[[noreturn]] void EndWithError(std::string_view what) {
  std::cerr << "qismora-divide: " << what << "\nTry 'qismora-divide --help'.\n";
  std::exit(NotDone);
}

template <class Choices>
auto Chosen(std::string_view option, std::string_view word, const Choices& choices) {
  // Neither capitals nor the apostrophe of Shafi'i matter.
  std::string plain;
  for (const char c : word) {
    if (c != '\'') plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  std::string words;
  for (const auto& choice : choices) {
    if (choice.Word == plain) return choice.Meaning;
    if (choice.Word.size() > 1) words.append(words.empty() ? "" : ", ").append(choice.Word);
  }
  EndWithError(
      std::string(option).append(" cannot be \"").append(word).append("\". It is one of ").append(words) +
      ".");
}

std::int64_t Number(std::string_view option, std::string_view word) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error == std::errc{} && end == word.data() + word.size() && number >= 0) return number;
  EndWithError(std::string(option).append(" takes a whole number, not \"").append(word).append("\"."));
}

[[noreturn]] void EndWithText(std::string_view text) {
  std::cout << text << std::flush;
  std::exit(std::cout ? AllDivided : NotDone);
}

}  // namespace

Options ReadOptions(int count, char** words) {
  const std::span<char*> all(words, static_cast<std::size_t>(count));
  static char name[] = "qismora-divide";
  if (count > 0) all[0] = name;  // getopt begins its messages with it
  Options options;
  int letter = 0;
  while ((letter = getopt_long(count, words, "s:f:rci:d:qhV", longOptions.data(), nullptr)) != -1) {
    const std::string_view word = optarg == nullptr ? "" : optarg;
    switch (letter) {
      case 's':
        options.Schools = Chosen("--school", word, schools);
        break;
      case 'f':
        options.Output = Chosen("--format", word, formats);
        break;
      case 'r':
        options.Reasons = true;
        break;
      case CompareOption:
        options.Compare = true;
        break;
      case 'c':
        options.HeirsConsent = true;
        break;
      case 'i':
        options.Input = Chosen("--input", word, inputs);
        break;
      case 'd':
        options.Separator = Chosen("--separator", word, separatorWords);
        break;
      case ColumnsOption:
        options.Columns = word;
        break;
      case IgnoreColumnsOption:
        options.IgnoreColumns = true;
        break;
      case FirstOption:
        options.First = Number("--first", word);
        break;
      case NoHeaderOption:
        options.Header = false;
        break;
      case 'q':
        options.Quiet = true;
        break;
      case 'h':
        EndWithText(help);
      case 'V':
        EndWithText("qismora-divide " QISMORA_VERSION "\n");
      default:  // getopt has said what is wrong
        std::cerr << "Try 'qismora-divide --help'.\n";
        std::exit(NotDone);
    }
  }
  options.Paths.assign(all.begin() + optind, all.end());
  if (options.Paths.empty()) options.Paths.emplace_back("-");
  return options;
}

}  // namespace qismora::divide
