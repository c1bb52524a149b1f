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
  static constexpr const AnswerFormat* formats[] = {&TableFormat, &CsvFormat, &JsonFormat, &JsonLinesFormat};
  return *formats[static_cast<std::size_t>(options.Output)];
}

EachAmount EachOf(const faraid::Row& row, const faraid::Amount& amount) {
  if (amount.HeadsWithOneMore == row.Heads) return {amount.Each + 1, 0};
  return {amount.Each, amount.HeadsWithOneMore};
}

std::int64_t CorrectedBaseOf(const faraid::Division& division) {
  return division.Base > 0 ? division.CorrectedBase : 0;
}

void AppendAmount(std::string& text, double amount) {
  std::array<char, 400> digits;
  const auto [end, error] =
      std::to_chars(digits.data(), digits.data() + digits.size(), amount, std::chars_format::fixed, 2);
  const std::string_view figures(digits.data(), end);
  text.append(figures == "-0.00" ? "0.00" : figures);
}

std::string_view WordsOf(OwnOutcome outcome) { return outcomes[static_cast<std::size_t>(outcome)]; }

}  // namespace qismora::divide
