#include "division/DivisionText.h"

#include <array>
#include <charconv>

#include "base/Text.h"
#include "casefile/Captions.h"

namespace qismora {

namespace {

// In the order of faraid::Standing. The excluder follows.
constexpr std::string_view standings[] = {
    "sharer",
    "residuary",
    "sharer and residuary",
    "excluded by ",
    "two thirds are taken",
    "not an heir in this school",
    "nothing is left",
};

std::string StandingText(const faraid::Row& row) {
  std::string text;
  AppendStanding(text, row);
  return text;
}

/// A class II kind counts as one head, so its line has no count.
std::string HeirLine(const faraid::Row& row, const faraid::Amount& amount) {
  const std::string share = FractionText(row.Share);
  const std::string together = AmountText(amount.Together);
  if (row.Heir == faraid::Kind::Remainder) return Join("Remainder: ", share, ", ", together);

  const bool hasCount = !faraid::ClassII.Has(row.Heir);
  std::string line(CaptionOf(row.Heir));
  if (hasCount) line += Join(" ", row.Heads);
  if (row.Share == 0) return Join(line, ": nothing, ", StandingText(row));
  if (!hasCount) return Join(line, ": ", share, ", ", together, ", ", StandingText(row));
  return Join(line, ": ", share, ", each ", FractionText(row.PerHead), ", ", together, ", each ",
              EachText(row, amount), ", ", StandingText(row));
}

std::string BaseLine(const faraid::Division& division) {
  const std::string raised =
      division.RaisedTo > 0 ? Join(", raised to ", std::to_string(division.RaisedTo)) : "";
  return Join("base ", std::to_string(division.Base), raised, ", corrected base ",
              std::to_string(division.CorrectedBase));
}

std::vector<std::string> UnreadableLines(const std::vector<UnreadableField>& fields) {
  std::vector<std::string> lines = {"unreadable"};
  for (const UnreadableField& field : fields) lines.push_back(English(field));
  return lines;
}

}  // namespace

std::vector<std::string> DivisionLines(const DivisionInput& input, faraid::School school) {
  if (!input.Unreadable.empty()) return UnreadableLines(input.Unreadable);
  const faraid::Settlement settlement = faraid::Settle(input.Estate);
  if (settlement.Shortfall > 0) {
    return {Join("nothing to divide, short by ", AmountText(settlement.Shortfall))};
  }

  std::vector<std::string> lines;
  if (settlement.Bequests < input.Estate.Bequests) {
    lines.push_back(Join("bequests ", AmountText(input.Estate.Bequests), ", limited to ",
                         AmountText(settlement.BequestLimit)));
  }
  lines.push_back("net " + AmountText(settlement.Net));
  const faraid::Division division = faraid::Divide(input.Family, school);
  const faraid::Amounts amounts = faraid::AmountsOf(division, settlement.Net);
  if (division.Base > 0) lines.push_back(BaseLine(division));
  for (std::size_t i = 0; i < division.Rows.Size(); ++i) {
    lines.push_back(HeirLine(division.Rows[i], amounts[i]));
  }
  return lines;
}

void AppendStanding(std::string& text, const faraid::Row& row) {
  if (row.Heir == faraid::Kind::Remainder) return Append(text, "remainder");
  text += standings[static_cast<std::size_t>(row.As)];
  if (row.As == faraid::Standing::Excluded) text += CaptionOf(row.Excluder);
}

std::string EachText(const faraid::Row& row, const faraid::Amount& amount) {
  if (amount.HeadsWithOneMore == 0) return AmountText(amount.Each);
  if (amount.HeadsWithOneMore == row.Heads) return AmountText(amount.Each + 1);
  return Join(AmountText(amount.Each), " or ", AmountText(amount.Each + 1));
}

void AppendNumber(std::string& text, std::int64_t number) {
  std::array<char, 24> digits;
  text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

void AppendAmount(std::string& text, faraid::Hundredths amount) {
  AppendNumber(text, amount / 100);
  const auto rest = static_cast<int>(amount % 100);
  text.append({'.', static_cast<char>('0' + rest / 10), static_cast<char>('0' + rest % 10)});
}

void AppendFraction(std::string& text, const faraid::Fraction& fraction) {
  AppendNumber(text, fraction.Num());
  if (fraction.Den() == 1) return;
  text += '/';
  AppendNumber(text, fraction.Den());
}

std::string AmountText(faraid::Hundredths amount) {
  std::string text;
  AppendAmount(text, amount);
  return text;
}

std::string FractionText(const faraid::Fraction& fraction) {
  std::string text;
  AppendFraction(text, fraction);
  return text;
}

}  // namespace qismora
