#include "divide/Answers.h"

#include <array>
#include <charconv>

namespace qismora::divide {

namespace {

using faraid::School;

constexpr std::array<std::string_view, 4> words = {"hanafi", "maliki", "shafii", "hanbali"};
constexpr std::array<std::string_view, 4> names = {"Hanafi", "Maliki", "Shafi'i", "Hanbali"};

constexpr std::array<std::string_view, 5> outcomes = {"figures", "no figures", "figure refused",
                                                      "estate refused", "failed"};

}  // namespace

std::string_view WordOf(School school) { return words[static_cast<std::size_t>(school)]; }
std::string_view NameOf(School school) { return names[static_cast<std::size_t>(school)]; }

const AnswerFormat& FormatOf(const Options& options) {
  switch (options.Answer) {
    case Format::Csv:
      return CsvFormat;
    case Format::Json:
      return JsonFormat;
    case Format::JsonLines:
      return JsonLinesFormat;
    case Format::Table:
      break;
  }
  return TableFormat;
}

EachAmount EachOf(const faraid::Row& row, const faraid::Amount& amount) {
  if (amount.HeadsWithOneMore == row.Heads) return {amount.Each + 1, 0};
  return {amount.Each, amount.HeadsWithOneMore};
}

std::int64_t CorrectedBaseOf(const faraid::Division& division) {
  return division.Base > 0 ? division.CorrectedBase : 0;
}

void AppendNumber(std::string& text, std::int64_t number) {
  std::array<char, 24> digits;
  text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

void AppendAmount(std::string& text, faraid::Hundredths amount) {
  AppendNumber(text, amount / 100);
  const auto rest = static_cast<int>(amount % 100);
  const std::array decimals = {'.', static_cast<char>('0' + rest / 10), static_cast<char>('0' + rest % 10)};
  text.append(decimals.data(), decimals.size());
}

void AppendAmount(std::string& text, double amount) {
  std::array<char, 400> digits;
  const auto [end, error] =
      std::to_chars(digits.data(), digits.data() + digits.size(), amount, std::chars_format::fixed, 2);
  const std::string_view figures(digits.data(), end);
  text.append(figures == "-0.00" ? "0.00" : figures);
}

std::string_view WordsOf(OwnOutcome outcome) { return outcomes[static_cast<std::size_t>(outcome)]; }

void AppendFraction(std::string& text, const faraid::Fraction& fraction) {
  AppendNumber(text, fraction.Num());
  if (fraction.Den() == 1) return;
  text += '/';
  AppendNumber(text, fraction.Den());
}

}  // namespace qismora::divide
