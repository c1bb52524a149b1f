#pragma once

#include <QRadioButton>
#include <functional>

#include "case/Controls.h"

namespace qismora {

/// A radio button that acts when it is chosen. Return and Space choose it; the arrow keys only move the
/// focus.
class MenuOption : public QRadioButton {
 public:
  MenuOption(OptionButton& control, const QString& name, QWidget* parent);

  std::function<void()> Chosen;
  std::function<void()> MouseOn;
  std::function<void()> MouseOff;

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  /// The whole row is the button.
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }

 private:
  void Colour();

  OptionButton& control_;
};

/// The caption with single ampersands, as Qt shows it.
QString WithoutMnemonics(const std::string& caption);

}  // namespace qismora
