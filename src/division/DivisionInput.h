#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "casefile/CaseTexts.h"
#include "faraid/Estate.h"
#include "faraid/Family.h"

namespace qismora {

/// What is wrong with the text of a field; the first that applies.
enum class FieldFault { None, NotWhole, TooMany, NotAnAmount, TooManyDecimals, TooMuch };

/// What a field holds: a count, or an amount in hundredths.
struct FieldReading {
  std::int64_t Value = 0;
  FieldFault Fault = FieldFault::None;
};

/// Reads a count in plain digits, with or without blanks around them. More than the most is a fault.
FieldReading ReadHeads(std::string_view text, int most);

/// Reads an amount with at most two decimals, up to faraid::MostHundredths, with or without blanks around it.
/// The digits before the point may be grouped by commas, as in 1,234,567 or 12,34,567.
FieldReading ReadAmount(std::string_view text);

/// A field that cannot be read.
struct UnreadableField {
  std::string Caption;
  std::string Text;
  FieldFault Fault = FieldFault::None;
  int Most = 0;
  /// The index in Text1.
  int Index = 0;
};

/// The fault in English, with the text as it was typed: Sons: "101" is more than 100.
std::string English(const UnreadableField& field);

/// The family and the estate to divide. Nothing is divided if there are unreadable fields, which are in the
/// order of the screen, the heirs first.
struct DivisionInput {
  faraid::Family Family;
  faraid::Estate Estate;
  std::vector<UnreadableField> Unreadable;
};

/// Reads the texts of a case.
DivisionInput ReadDivisionInput(const CaseTexts& texts);

}  // namespace qismora
