#pragma once

#include <functional>

class QWidget;

namespace qismora {

/// Calls whenever the mouse moves over the widget itself. The event goes no further: parents do not receive
/// it.
void WhenMouseMoves(QWidget* widget, std::function<void()> moved);

}  // namespace qismora
