#include "screens/Misreading.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"

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

}  // namespace

std::string Misreading(std::string_view text, bool whole) {
  if (IsPlain(text, whole)) return {};
  if (!IsNumber(text)) return "This is no number and is not read: the figure of the run before stays.";
  try {
    const Double number = ParsePrefix(text);
    return Join("Read as ", whole ? Join(RoundTo<Long>(number)) : GeneralNumber(number));
  } catch (const Failure&) {
    return "This is too large to be read.";
  }
}

}  // namespace qismora
