#pragma once

#include <QPlainTextEdit>
#include <functional>

namespace qismora {

/// The disclaimer, over the menu. A double click or Escape hides it.
class DisclaimerText : public QPlainTextEdit {
 public:
  explicit DisclaimerText(QWidget* parent);

  std::function<void()> DoubleClicked;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace qismora
