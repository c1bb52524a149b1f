#pragma once

#include "base/Numbers.h"
#include "base/Ports.h"

namespace qismora {

/// The values that the screens around the calculator share during one run of the program.
struct ShellRecord {
  /// Which page the law page form shows: the index of the menu entry chosen last.
  Integer LawPage;
  /// The view that the Case Study screen opens with, as read at the start.
  Integer SavedLanguage;

  /// This run's number in the session log.
  Integer SessionNumber;
  /// The start of the session. Before it is recorded it is the zero of dates, and the length overflows.
  DateTime SessionStart = {1899, 12, 30, 0, 0, 0};
  /// The exit routine has been entered.
  bool Ended = false;
};

}  // namespace qismora
