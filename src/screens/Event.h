#pragma once

#include <functional>

#include "base/Failure.h"
#include "base/Ports.h"
#include "base/Text.h"

namespace qismora {

/// Runs the body of an event. No failure leaves it: an unhandled one is reported with its number in a plain
/// message box, and the program continues. A message box without an answer ends the event silently.
template <class Body>
void GuardedEvent(MessageBoxes& boxes, Body body) {
  try {
    try {
      body();
    } catch (const Failure& failure) {
      boxes.Inform(BoxStyle::Plain, Join(failure.Number, CRLF, failure.Description()));
    }
  } catch (const Unanswered&) {
    return;
  }
}

/// Calls the function, if there is one.
inline void Call(const std::function<void()>& function) {
  if (function) function();
}

}  // namespace qismora
