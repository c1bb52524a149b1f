#pragma once

#include <algorithm>
#include <cctype>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// The worked cases of the documents and the guides: fenced blocks with a title, the fields as `caption =
// value`, and then commands with the lines that the program answers.
namespace qismora::documents {

/// A command of the screen and every line that the program answers.
struct Played {
  std::string Command;
  std::vector<std::string> Lines;
};

/// What is typed, by the captions of the fields.
using Entries = std::vector<std::pair<std::string, std::string>>;

/// A worked case: what is typed, by the captions of the fields, and the answers in the order of the commands.
struct WorkedCase {
  std::string Title;
  Entries Fields;
  std::vector<Played> Answers;
  /// The heading under which it stands, as a link names it.
  std::string Section;
};

inline std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The two sides of `caption = value`; both empty if the line is something else.
inline std::pair<std::string, std::string> SplitEntry(const std::string& line) {
  const std::size_t equals = line.find(" =");
  if (equals == std::string::npos) return {};
  return {Trim(line.substr(0, equals)), Trim(line.substr(equals + 2))};
}

/// The command on a line that ends with a colon; empty for any other line.
inline std::string CommandOf(const std::string& line) {
  static const std::vector<std::string> commands = {
      "Residuaries",     "Aul & Radd",      "All Individual",   "Execute Selected",
      "Full Report",     "Then type",       "Message",          "Files",
      "Division Hanafi", "Division Maliki", "Division Shafi'i", "Division Hanbali"};
  if (line.empty() || line.back() != ':') return "";
  std::string words = line.substr(0, line.size() - 1);
  const bool known =
      words.starts_with("Double click ") || std::ranges::find(commands, words) != commands.end();
  return known ? words : "";
}

/// The case that the lines of a fenced block describe. Throws a std::runtime_error that names a line it
/// cannot read.
inline WorkedCase ReadCase(const std::vector<std::string>& lines) {
  WorkedCase worked;
  for (const std::string& line : lines) {
    if (worked.Title.empty()) {
      worked.Title = Trim(line);
    } else if (const std::string command = CommandOf(line); !command.empty()) {
      worked.Answers.push_back({command, {}});
    } else if (!worked.Answers.empty()) {
      worked.Answers.back().Lines.push_back(Trim(line));
    } else {
      worked.Fields.push_back(SplitEntry(line));
      if (worked.Fields.back().first.empty()) throw std::runtime_error("expected `caption = value`: " + line);
    }
  }
  if (worked.Answers.empty()) throw std::runtime_error("a case without an answer: " + worked.Title);
  return worked;
}

/// A heading as a link names it: lower case, hyphens for blanks, no punctuation.
inline std::string AnchorOf(const std::string& heading) {
  std::string anchor;
  for (const char c : Trim(heading.substr(heading.find_first_not_of('#')))) {
    const auto sign = static_cast<unsigned char>(c);
    if (std::isalnum(sign) || c == '-' || c == '_') anchor += static_cast<char>(std::tolower(sign));
    if (c == ' ') anchor += '-';
  }
  return anchor;
}

/// The worked cases of a Markdown file. Throws a std::runtime_error if one cannot be read.
inline std::vector<WorkedCase> ReadCases(const std::string& path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error("cannot read " + path);
  std::vector<WorkedCase> cases;
  std::vector<std::string> lines;
  bool inside = false;
  std::string section;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("```")) {
      if (inside) {
        cases.push_back(ReadCase(lines));
        cases.back().Section = section;
      }
      inside = !inside && Trim(line) == "```case";
      lines.clear();
    } else if (inside && !Trim(line).empty()) {
      lines.push_back(line);
    } else if (!inside && line.starts_with("#")) {
      section = AnchorOf(line);
    }
  }
  if (inside) throw std::runtime_error(path + ": a case without an end");
  return cases;
}

}  // namespace qismora::documents
