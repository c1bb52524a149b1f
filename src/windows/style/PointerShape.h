#pragma once

#include <QGuiApplication>

namespace qismora {

/// Changes the mouse pointer during its lifetime: to a wait cursor while a command runs, and back to an arrow
/// while a message box of the command waits for the user.
class PointerShape {
 public:
  explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
  PointerShape(const PointerShape&) = delete;
  PointerShape& operator=(const PointerShape&) = delete;
};

}  // namespace qismora
