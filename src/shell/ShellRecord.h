#pragma once

#include "base/Numbers.h"
#include "base/Ports.h"

namespace qismora {

/// The values that the forms share during one run of the program.
struct ShellRecord {
  /// Which page the law page form shows: the index of the menu entry chosen last.
  Integer LawPage;
  /// The first view of the Case Study screen, read from the settings at the start.
  Integer SavedLanguage;

  /// This run's number in the session log.
  Integer SessionNumber;
  /// The start of the session. The initial value is so early that the length of a session overflows.
  DateTime SessionStart = {1899, 12, 30, 0, 0, 0};
  /// The exit routine has been entered.
  bool Ended = false;
};

}  // namespace qismora
