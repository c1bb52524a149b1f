#pragma once

#include <QAbstractButton>
#include <QFrame>

namespace qismora {

enum class Gesture { Click, DoubleClick };

/// A caption that acts on its mouse gesture, on Return and Space, by the entry of its context menu, and when
/// a screen reader presses it. Each emits the signal clicked. A caption without text shows its accessible
/// name while it has the keyboard focus.
class CaptionButton : public QAbstractButton {
 public:
  /// The action describes what the caption does, in the context menu and for screen readers.
  CaptionButton(const QString& name, Gesture gesture, const QString& action, QWidget* parent);

  void SetAlignment(Qt::Alignment alignment) { alignment_ = alignment; }
  /// No frame, a panel of the style, or a box in the colour of the text.
  void SetBorder(QFrame::Shape shape);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

  /// Paints the border, and a frame if the caption has the keyboard focus.
  void PaintFrame(QPainter* painter);
  QRect InsideBorder(const QRect& place) const;
  Qt::Alignment Alignment() const { return alignment_; }

 private:
  bool HasKeyboard() const { return hasFocus() && !clickedInto_; }

  Gesture gesture_;
  QString action_;
  Qt::Alignment alignment_ = Qt::AlignLeft | Qt::AlignVCenter;
  QFrame::Shape border_ = QFrame::NoFrame;
  bool clickedInto_ = false;
};

}  // namespace qismora
