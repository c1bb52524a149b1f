#pragma once

#include <functional>

class QObject;

namespace qismora {

/// Calls when the desktop session ends, or the program is told to end from outside: in the event loop, while
/// the windows still stand. It may call more than once, and no more when the context is gone.
void WhenSessionEnds(QObject* context, std::function<void()> ended);

}  // namespace qismora
