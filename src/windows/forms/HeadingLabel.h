#pragma once

#include <QLabel>
#include <functional>

namespace qismora {

/// A heading whose colour follows the mouse.
class HeadingLabel : public QLabel {
 public:
  explicit HeadingLabel(QWidget* parent) : QLabel(parent) { setMouseTracking(true); }

  std::function<void()> Moved;
  std::function<void()> Pressed;

 protected:
  void mouseMoveEvent(QMouseEvent*) override {
    if (Moved) Moved();
  }
  void mousePressEvent(QMouseEvent*) override {
    if (Pressed) Pressed();
  }
};

}  // namespace qismora
