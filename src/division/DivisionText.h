#pragma once

#include <string>
#include <vector>

#include "division/DivisionInput.h"
#include "faraid/Amounts.h"
#include "faraid/Division.h"

namespace qismora {

/// The division as plain lines: a limit of the bequests, the net estate, the bases, and a line for each heir
/// and the remainder. If nothing is divided: the fields that cannot be read, or by how much the estate is
/// short.
std::vector<std::string> DivisionLines(const DivisionInput& input, faraid::School school);

/// Appends the standing of an heir: "sharer", or why he or she takes nothing, "excluded by Father".
void AppendStanding(std::string& text, const faraid::Row& row);

/// What each head of a row receives: "33.33 or 33.34" if some receive a hundredth more.
std::string EachText(const faraid::Row& row, const faraid::Amount& amount);

/// Appends a whole number.
void AppendNumber(std::string& text, std::int64_t number);

/// An amount with two decimals and without grouping: 1234567.80.
void AppendAmount(std::string& text, faraid::Hundredths amount);
std::string AmountText(faraid::Hundredths amount);

/// A fraction as 3/8, a whole number without a denominator.
void AppendFraction(std::string& text, const faraid::Fraction& fraction);
std::string FractionText(const faraid::Fraction& fraction);

}  // namespace qismora
