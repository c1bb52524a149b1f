#pragma once

#include <QAbstractButton>
#include <functional>

namespace qismora {

/// The panel of the animation, blank until a video plays. A click or Return changes to the other video, a
/// double click or Space starts the current one again.
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
