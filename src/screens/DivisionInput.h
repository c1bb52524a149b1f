#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "faraid/Estate.h"
#include "faraid/Family.h"
#include "screens/CaseTexts.h"

namespace qismora {

/// What is wrong with the text of a field; the first that fits.
enum class FieldFault { None, NotWhole, TooMany, NotAnAmount, TooManyDecimals, TooMuch };

/// What a field holds: a count, or an amount in hundredths.
struct FieldReading {
  std::int64_t Value = 0;
  FieldFault Fault = FieldFault::None;
};

/// Reads plain digits, blanks around them aside.
FieldReading ReadHeads(std::string_view text, int most);

/// Reads a plain decimal of at most two decimals and at most faraid::MostHundredths, blanks around it aside.
/// The digits before the point may be grouped by commas, as in 1,234,567 or 12,34,567.
FieldReading ReadAmount(std::string_view text);

/// A field that cannot be read.
struct UnreadableField {
  std::string Caption;
  std::string Text;
  FieldFault Fault = FieldFault::None;
  int Most = 0;
  /// Of Text1.
  int Index = 0;
};

/// The fault in English: Sons: "101" is more than 100. The text is quoted as it was typed.
std::string English(const UnreadableField& field);

/// What is to be divided. Nothing is divided while there are unreadable fields; these come in the order of
/// the screen, the heirs first.
struct DivisionInput {
  faraid::Family Family;
  faraid::Estate Estate;
  std::vector<UnreadableField> Unreadable;
};

/// Reads the texts of a case.
DivisionInput ReadDivisionInput(const CaseTexts& texts);

/// Reads the fields of the Case Study screen and changes nothing.
DivisionInput ReadDivisionInput(const CaseScreen& screen, bool heirsConsent);

}  // namespace qismora
