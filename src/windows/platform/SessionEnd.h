#pragma once

#include <functional>

class QObject;

namespace qismora {

/// Calls the function when the desktop session or a signal ends the program, while the windows still exist.
/// It may be called more than once, but not after the context is destroyed.
void WhenSessionEnds(QObject* context, std::function<void()> ended);

}  // namespace qismora
