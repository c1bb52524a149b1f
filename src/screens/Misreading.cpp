#include "screens/Misreading.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "case/CaseScreen.h"

namespace qismora {

namespace {

bool AreDigits(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool IsPlain(std::string_view text, bool whole) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  const std::size_t point = whole ? std::string_view::npos : text.find('.');
  if (point == std::string_view::npos) return AreDigits(text);
  return AreDigits(text.substr(0, point)) && AreDigits(text.substr(point + 1));
}

/// The number as its field takes it; beyond the range of the field's type it is the overflow failure.
std::string ReadAs(Double number, int index) {
  if (index == GrossEstateBox) return GeneralNumber(number);
  const bool money = index == FuneralBox || index == DebtsBox || index == WillsBox;
  return money ? Join(RoundTo<Long>(number)) : Join(RoundTo<Integer>(number));
}

}  // namespace

std::string Misreading(std::string_view text, int index, std::string_view kept) {
  if (!IsNumber(text)) return Join("This is not a number and is not read: ", kept, " stays.");
  try {
    const std::string read = ReadAs(ParsePrefix(text), index);
    return IsPlain(text, index != GrossEstateBox) ? "" : Join("Read as ", read);
  } catch (const Failure&) {
    return "This is too large and will be refused.";
  }
}

}  // namespace qismora
