#pragma once

#include <functional>

class QWidget;

namespace qismora {

/// Calls whenever the mouse moves over the widget itself. The widget keeps the move: what lies under it
/// hears nothing of it.
void WhenMouseMoves(QWidget* widget, std::function<void()> moved);

}  // namespace qismora
