#pragma once

#include "base/Numbers.h"
#include "base/Outside.h"

namespace qismora {

/// What the screens around the calculator share for one run of the program.
struct ShellRecord {
  /// Which page the law page form shows: the index of the menu entry chosen last.
  Integer LawPage;
  /// The view that the Case Study screen opens with, as read at the start.
  Integer SavedLanguage;

  /// This run's number in the session log.
  Integer SessionNumber;
  /// A start that was never noted is the zero of dates: its session is longer than a length can tell.
  DateTime SessionStart = {1899, 12, 30, 0, 0, 0};
  /// The exit routine has been entered.
  bool Ended = false;
};

}  // namespace qismora
