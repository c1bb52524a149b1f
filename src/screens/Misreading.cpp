#include "screens/Misreading.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "case/CaseScreen.h"

namespace qismora {

namespace {

bool IsPlain(std::string_view text, bool whole) {
  text = Trimmed(text, " ");
  const std::size_t point = whole ? std::string_view::npos : text.find('.');
  if (point == std::string_view::npos) return AreDigits(text);
  return AreDigits(text.substr(0, point)) && AreDigits(text.substr(point + 1));
}

/// The number as its field takes it. Throws Failure(Overflow) beyond the range of the field's type.
std::string ReadAs(Double number, int index) {
  if (index == GrossEstateField) return GeneralNumber(number);
  const bool money = index == FuneralField || index == DebtsField || index == WillsField;
  return money ? Join(RoundTo<Long>(number)) : Join(RoundTo<Integer>(number));
}

}  // namespace

TypedReading ReadTyped(std::string_view text, int index) {
  if (!IsNumber(text)) return {Reading::NotAtAll, ""};
  try {
    const std::string read = ReadAs(ParsePrefix(text), index);
    const bool plain = IsPlain(text, index != GrossEstateField) || Trimmed(text, " ") == read;
    return {plain ? Reading::AsItStands : Reading::AsAnotherNumber, read};
  } catch (const Failure&) {
    return {Reading::TooLarge, ""};
  }
}

std::string Misreading(std::string_view text, int index, std::string_view kept) {
  const TypedReading reading = ReadTyped(text, index);
  switch (reading.How) {
    case Reading::AsItStands:
      return "";
    case Reading::AsAnotherNumber:
      return Join("Read as ", reading.Number);
    case Reading::NotAtAll:
      return Join("This is not a number and is not read: ", kept, " stays.");
    case Reading::TooLarge:
      return "This is too large and will be refused.";
  }
  return "";
}

std::string Grouped(std::string_view number, Grouping grouping) {
  if (number.find('E') != std::string_view::npos) return std::string(number);
  const std::size_t sign = number.starts_with('-') ? 1 : 0;
  const std::size_t point = std::min(number.find('.'), number.size());
  std::string grouped(number);
  std::size_t size = 3;
  for (std::size_t at = point; at > sign + size;) {
    at -= size;
    grouped.insert(at, 1, ',');
    if (grouping == Grouping::Indian) size = 2;
  }
  return grouped;
}

Message SentenceOf(const TypedReading& reading, const MisreadField& field, Grouping grouping) {
  std::vector<Message::Value> values = {{"field", field.Caption}, {"text", field.Text}};
  if (reading.How == Reading::TooLarge) {
    return Message{"{field} {text} is too large and will be refused", values};
  }
  if (reading.How == Reading::AsAnotherNumber) {
    values.push_back({"number", Grouped(reading.Number, grouping)});
    return Message{"{field} {text} is read as {number}", values};
  }
  values.push_back({"number", field.Kept});
  if (field.Text.empty()) {
    if (!field.Kept.empty()) return Message{"{field} without a text is not read: {number} stays", values};
    return Message{"{field} without a text is not read: the figure of the run before stays", values};
  }
  if (!field.Kept.empty()) return Message{"{field} {text} is not read: {number} stays", values};
  return Message{"{field} {text} is not read: the figure of the run before stays", values};
}

}  // namespace qismora
