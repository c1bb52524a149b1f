#include "division/DivisionInput.h"

#include "base/Text.h"
#include "casefile/Captions.h"
#include "casefile/HeirFields.h"

namespace qismora {

namespace {

constexpr std::size_t mostWholeDigits = 15;  // of 999,999,999,999,999.99
constexpr std::size_t mostDecimals = 2;

/// Whether digits are grouped by commas: a first group of one digit up to the size, then groups of the size,
/// the last of them of three digits.
bool AreGroupedBy(std::size_t size, std::string_view text) {
  constexpr std::size_t lastSize = 3;
  const std::size_t first = text.find(',');
  if (first == std::string_view::npos || first > size || !AreDigits(text.substr(0, first))) return false;
  text.remove_prefix(first + 1);
  while (text.size() > lastSize) {
    if (text.size() <= size || text[size] != ',' || !AreDigits(text.substr(0, size))) return false;
    text.remove_prefix(size + 1);
  }
  return text.size() == lastSize && AreDigits(text);
}

bool IsWholePart(std::string_view text) {
  return AreDigits(text) || AreGroupedBy(3, text) || AreGroupedBy(2, text);
}

/// The digits alone, without commas and leading zeros.
std::string Digits(std::string_view text) {
  std::string digits(text);
  std::erase(digits, ',');
  digits.erase(0, digits.find_first_not_of('0'));
  return digits;
}

/// Up to 17 digits fit.
std::int64_t Number(std::string_view digits) {
  std::int64_t number = 0;
  for (const char c : digits) number = number * 10 + (c - '0');
  return number;
}

constexpr const char* faultWords[] = {
    "",
    " is not a whole number",
    " is more than ",
    " is not an amount",
    " has more than two decimals",
    " is more than 999,999,999,999,999.99",
};

/// Reads the fields of a case and collects those that cannot be read.
class Fields {
 public:
  explicit Fields(const CaseTexts& texts) : texts_(texts) {}

  int Heads(std::string_view caption, int index, int most) {
    return static_cast<int>(Noted(caption, index, ReadHeads(Text(index), most), most));
  }
  faraid::Hundredths Amount(int index) {
    return Noted(CaptionOf(index, false), index, ReadAmount(Text(index)), 0);
  }

  std::vector<UnreadableField> Unreadable;

 private:
  const std::string& Text(int index) const { return texts_.Field(index); }

  std::int64_t Noted(std::string_view caption, int index, const FieldReading& reading, int most) {
    if (reading.Fault != FieldFault::None) {
      Unreadable.push_back({std::string(caption), Text(index), reading.Fault, most, index});
    }
    return reading.Value;
  }

  const CaseTexts& texts_;
};

}  // namespace

FieldReading ReadHeads(std::string_view text, int most) {
  text = Trimmed(text, " ");
  if (!AreDigits(text)) return {0, FieldFault::NotWhole};
  const std::string digits = Digits(text);
  // No field takes more than three digits.
  const std::int64_t heads = digits.size() > 3 ? most + 1 : Number(digits);
  return heads > most ? FieldReading{0, FieldFault::TooMany} : FieldReading{heads};
}

FieldReading ReadAmount(std::string_view text) {
  text = Trimmed(text, " ");
  const std::size_t point = text.find('.');
  const bool hasPoint = point != std::string_view::npos;
  std::string decimals(hasPoint ? text.substr(point + 1) : "0");
  if (!IsWholePart(text.substr(0, point)) || !AreDigits(decimals)) return {0, FieldFault::NotAnAmount};
  if (decimals.size() > mostDecimals) return {0, FieldFault::TooManyDecimals};
  const std::string digits = Digits(text.substr(0, point));
  if (digits.size() > mostWholeDigits) return {0, FieldFault::TooMuch};
  decimals.resize(mostDecimals, '0');
  return {Number(digits + decimals)};
}

std::string English(const UnreadableField& field) {
  std::string words =
      Join(field.Caption, ": \"", field.Text, "\"", faultWords[static_cast<int>(field.Fault)]);
  if (field.Fault == FieldFault::TooMany) words += Join(field.Most);
  return words;
}

DivisionInput ReadDivisionInput(const CaseTexts& texts) {
  const faraid::Kind otherSpouse = texts.Gender == Female ? faraid::Kind::Wives : faraid::Kind::Husband;
  DivisionInput input;
  Fields fields(texts);
  for (const HeirField& field : HeirFields) {
    if (field.Heir == otherSpouse) continue;
    input.Family[field.Heir] = fields.Heads(field.Caption, field.Index, faraid::MostOf(field.Heir));
  }
  for (std::size_t i = 0; i < texts.ClassII.size(); ++i) {
    input.Family[ClassIIKind(static_cast<int>(i))] = texts.ClassII[i] ? 1 : 0;
  }
  input.Estate.Gross = fields.Amount(GrossEstateField);
  input.Estate.Funeral = fields.Amount(FuneralField);
  input.Estate.Debts = fields.Amount(DebtsField);
  input.Estate.Bequests = fields.Amount(WillsField);
  input.Estate.HeirsConsent = texts.HeirsConsent;
  input.Unreadable = std::move(fields.Unreadable);
  return input;
}

}  // namespace qismora
