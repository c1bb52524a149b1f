#pragma once

#include <QFrame>
#include <functional>

namespace qismora {

/// The place of the animation. It stays blank until something plays in it. Return goes on to the other video,
/// Space starts the current one again.
class VideoPanel : public QFrame {
 public:
  explicit VideoPanel(QWidget* parent);

  std::function<void()> Clicked;
  std::function<void()> DoubleClicked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  bool down_ = false;
};

}  // namespace qismora
