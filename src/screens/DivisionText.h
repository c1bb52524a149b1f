#pragma once

#include <string>
#include <vector>

#include "faraid/School.h"
#include "screens/DivisionInput.h"

namespace qismora {

/// The division as plain lines: what is cut of the bequests, the net estate, the bases, and a line for each
/// heir and the remainder; or what cannot be read, or what the estate lacks.
std::vector<std::string> DivisionLines(const DivisionInput& input, faraid::School school);

/// An amount with two decimals and without grouping: 1234567.80.
std::string AmountText(faraid::Hundredths amount);

/// A fraction as 3/8, a whole one as 1.
std::string FractionText(const faraid::Fraction& fraction);

}  // namespace qismora
