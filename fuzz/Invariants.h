#pragma once

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"

namespace qismora::testing {

/// Ends the program with a message when the screen or its record holds what no command may leave behind: both
/// long texts visible, a number that is none, a text longer than any case can make it.
void CheckInvariants(const CaseStudy& study, const CaseRecord& c);

/// Ends the program with a message.
[[noreturn]] void Fault(const char* what);

}  // namespace qismora::testing
