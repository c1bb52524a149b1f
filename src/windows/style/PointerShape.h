#pragma once

#include <QGuiApplication>

namespace qismora {

/// While it lives, the pointer has this shape: an hourglass while a command runs, an arrow again while a box
/// in the middle of it waits for the user.
class PointerShape {
 public:
  explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
  PointerShape(const PointerShape&) = delete;
  PointerShape& operator=(const PointerShape&) = delete;
};

}  // namespace qismora
