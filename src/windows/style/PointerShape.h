#pragma once

#include <QGuiApplication>

namespace qismora {

/// Gives the pointer a shape while it lives: a wait cursor while a command runs, an arrow again while a
/// message box in the middle of it waits for the user.
class PointerShape {
 public:
  explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
  PointerShape(const PointerShape&) = delete;
  PointerShape& operator=(const PointerShape&) = delete;
};

}  // namespace qismora
