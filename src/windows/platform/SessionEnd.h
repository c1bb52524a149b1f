#pragma once

#include <functional>

class QObject;

namespace qismora {

/// Calls when the desktop session ends or a signal tells the program to end: in the event loop, while the
/// windows still exist. It may call more than once, but not after the context has been destroyed.
void WhenSessionEnds(QObject* context, std::function<void()> ended);

}  // namespace qismora
