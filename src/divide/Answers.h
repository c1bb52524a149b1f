#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "divide/Options.h"
#include "faraid/Amounts.h"
#include "faraid/Division.h"
#include "faraid/Estate.h"
#include "screens/Differences.h"
#include "screens/OwnAnswer.h"

namespace qismora::divide {

/// The division of one family in one school.
struct SchoolDivision {
  faraid::School School = faraid::School::Hanafi;
  faraid::Division Division;
  /// One for each row of the division.
  faraid::Amounts Amounts;
  /// From the answer of the commands, where that is asked for.
  Differences Differs;
};

/// One family divided. The schools' rows are of the same heirs; a remainder may stand in some schools alone.
struct Answer {
  std::string_view Id;
  std::string_view Name;
  faraid::Estate Estate;
  faraid::Settlement Settlement;
  /// Empty where expenses and debts exceed the estate.
  std::vector<SchoolDivision> Schools;
  /// What the commands of Case Study answer, where that is asked for.
  std::optional<OwnAnswer> Commands;
  /// Where expenses and debts exceed the estate, in what the commands differ.
  Differences Differs;
};

/// How answers are written: what stands before all of them, one of them, and what stands behind.
struct AnswerFormat {
  void (*Begin)(const Options& options, std::string& text);
  /// The first is true for the first answer of all.
  void (*Write)(const Answer& answer, const Options& options, bool first, std::string& text);
  void (*End)(std::string& text);
};

const AnswerFormat& FormatOf(const Options& options);

// For people; comma separated values, a line for each heir and school; JSON, an object for each family.
extern const AnswerFormat TableFormat;
extern const AnswerFormat CsvFormat;
extern const AnswerFormat JsonFormat;
extern const AnswerFormat JsonLinesFormat;

/// As what an heir takes, or why nothing: "sharer", "excluded by Father".
void AppendStanding(std::string& text, const faraid::Row& row);

/// As the command line has it: "shafii"; and as people read it: "Shafi'i".
std::string_view WordOf(faraid::School school);
std::string_view NameOf(faraid::School school);

/// What the heads of one row receive each: a part of them may receive one hundredth more.
struct EachAmount {
  faraid::Hundredths Amount = 0;
  int HeadsWithOneMore = 0;
};
EachAmount EachOf(const faraid::Row& row, const faraid::Amount& amount);

/// 0 where no heir takes anything, as the base.
std::int64_t CorrectedBaseOf(const faraid::Division& division);

/// Pieces one behind the other, without a text of their own.
template <class... Pieces>
void Append(std::string& text, const Pieces&... pieces) {
  (text.append(pieces), ...);
}
void AppendNumber(std::string& text, std::int64_t number);
/// With a point and two decimals.
void AppendAmount(std::string& text, faraid::Hundredths amount);
/// An amount of the commands, rounded to two decimals.
void AppendAmount(std::string& text, double amount);
/// "figures", "no figures", "figure refused", "estate refused", "failed".
std::string_view WordsOf(OwnOutcome outcome);
/// A whole number without a denominator, else as 1/8.
void AppendFraction(std::string& text, const faraid::Fraction& fraction);

}  // namespace qismora::divide
