#pragma once

#include <QLabel>
#include <functional>

namespace qismora {

enum class Gesture { Click, DoubleClick };

/// A label that acts: on its gesture of the mouse, on Return and Space, by the one entry of its context
/// menu, and when a screen reader presses it. Before it is told to act it is a plain label. One without words
/// shows its spoken name while the keyboard is on it. It has one line and sets it itself: a QLabel that takes
/// the focus would keep a text document for it.
class CaptionLabel : public QLabel {
 public:
  CaptionLabel(const QString& name, QWidget* parent);

  /// The words tell in the menu and to a screen reader what the label does.
  void ActOn(Gesture gesture, const QString& words, std::function<void()> action);
  bool Acts() const { return action_ != nullptr; }
  const QString& Words() const { return words_; }
  void Act();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  /// Called with the place where the mouse goes down for a click, ahead of the action.
  std::function<void(const QPoint&)> Pressed;
  /// Called with the place when that turns out to be the first half of a double click, ahead of the action.
  std::function<void(const QPoint&)> PressedAgain;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool HasKeyboard() const { return hasFocus() && !clickedInto_; }
  void PaintFocus();

 private:
  Gesture gesture_ = Gesture::Click;
  QString words_;
  std::function<void()> action_;
  bool down_ = false;
  bool clickedInto_ = false;
};

}  // namespace qismora
