#pragma once

#include "base/Failure.h"
#include "base/Outside.h"
#include "base/Text.h"

namespace qismora {

/// Runs the body of an event. No failure leaves it: what no handler takes is reported in a plain box with its
/// number, and the program goes on. A message box that nobody answers ends the event without a word.
template <class Body>
void GuardedEvent(MessageBoxes& boxes, Body body) {
  try {
    try {
      body();
    } catch (const Failure& failure) {
      boxes.Tell(BoxStyle::Plain, Join(failure.Number, CRLF, failure.Description()));
    }
  } catch (const Unanswered&) {
    return;
  }
}

}  // namespace qismora
