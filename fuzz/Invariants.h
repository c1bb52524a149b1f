#pragma once

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"

namespace qismora::testing {

/// Ends the program with a message when the screen or its record is in a state that no command may leave:
/// both long texts visible, a number that is not finite, or a text longer than any case can make it; or when
/// what is typed cannot be compared with the division.
void CheckInvariants(const CaseStudy& study, const CaseRecord& c);

/// Ends the program with a message.
[[noreturn]] void Fault(const char* what);

}  // namespace qismora::testing
