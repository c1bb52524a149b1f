#pragma once

#include "base/Failure.h"
#include "base/Ports.h"
#include "base/Text.h"

namespace qismora {

/// Runs the body of an event. No failure leaves it: an unhandled one is reported with its number in a plain
/// message box, and the program goes on. A message box that nobody answers ends the event silently.
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

}  // namespace qismora
