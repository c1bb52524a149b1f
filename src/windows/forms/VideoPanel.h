#pragma once

#include <QAbstractButton>
#include <functional>

namespace qismora {

/// The place of the animation. It stays blank until something plays in it. A click or Return goes on to the
/// other video, a double click or Space starts the current one again.
class VideoPanel : public QAbstractButton {
 public:
  explicit VideoPanel(QWidget* parent);

  std::function<void()> DoubleClicked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace qismora
