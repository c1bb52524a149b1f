#pragma once

#include <functional>

class QWidget;

namespace qismora {

/// Calls the function whenever the mouse moves over the widget itself. Without a pressed button the event is
/// consumed, so parents do not receive it.
void WhenMouseMoves(QWidget* widget, std::function<void()> moved);

}  // namespace qismora
