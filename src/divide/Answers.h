#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "casefile/Captions.h"
#include "divide/Options.h"
#include "division/Differences.h"
#include "division/DivisionText.h"
#include "division/OwnAnswer.h"
#include "faraid/Amounts.h"
#include "faraid/Division.h"
#include "faraid/Estate.h"

namespace qismora::divide {

/// The division of one family in one school.
struct SchoolDivision {
  faraid::School School = faraid::School::Hanafi;
  faraid::Division Division;
  /// One for each row of the division.
  faraid::Amounts Amounts;
  /// How it differs from the answer of the commands, with the option --compare.
  Differences Differs;
};

/// The answer for one family. All schools have rows of the same heirs; only some may have a remainder.
struct Answer {
  std::string_view Id;
  std::string_view Name;
  faraid::Estate Estate;
  faraid::Settlement Settlement;
  /// Empty if funeral expenses and debts exceed the estate.
  std::vector<SchoolDivision> Schools;
  /// The answer of the commands of Case Study, with the option --compare.
  std::optional<OwnAnswer> Commands;
  /// How the commands differ if funeral expenses and debts exceed the estate.
  Differences Differs;
};

/// How answers are written: the text before all of them, each answer, and the text after all of them.
struct AnswerFormat {
  /// Null, like End, if there is no such text.
  void (*Begin)(const Options& options, std::string& text);
  /// The parameter first is true for the first answer of the program.
  void (*Write)(const Answer& answer, const Options& options, bool first, std::string& text);
  void (*End)(std::string& text);
};

const AnswerFormat& FormatOf(const Options& options);

// A table for people; CSV with a line for each heir and school; JSON with an object for each family.
extern const AnswerFormat TableFormat;
extern const AnswerFormat CsvFormat;
extern const AnswerFormat JsonFormat;
extern const AnswerFormat JsonLinesFormat;

/// The school on the command line, "shafii", and in a text, "Shafi'i".
std::string_view WordOf(faraid::School school);
std::string_view NameOf(faraid::School school);

/// What each head of a row receives; some heads may receive one hundredth more.
struct EachAmount {
  faraid::Hundredths Amount = 0;
  int HeadsWithOneMore = 0;
};
EachAmount EachOf(const faraid::Row& row, const faraid::Amount& amount);

/// The corrected base; like the base, 0 if no heir takes anything.
std::int64_t CorrectedBaseOf(const faraid::Division& division);

/// Appends texts alone. An answer has many short ones, for which this is faster than Append of base/Text.h.
template <class... Pieces>
void Append(std::string& text, const Pieces&... pieces) {
  (text.append(pieces), ...);
}
using qismora::AppendAmount;
/// Appends an amount of the commands, rounded to two decimals.
void AppendAmount(std::string& text, double amount);
/// "figures", "no figures", "figure refused", "estate refused", "failed".
std::string_view WordsOf(OwnOutcome outcome);
}  // namespace qismora::divide
