#pragma once

#include <functional>

#include "windows/widgets/ReadingText.h"

namespace qismora {

/// The disclaimer, over the menu. A double click or Escape hides it.
class DisclaimerText : public ReadingText {
 public:
  explicit DisclaimerText(QWidget* parent);

  std::function<void()> DoubleClicked;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace qismora
