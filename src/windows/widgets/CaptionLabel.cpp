#include "windows/widgets/CaptionLabel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <utility>

namespace qismora {

CaptionLabel::CaptionLabel(const QString& name, QWidget* parent) : QLabel(parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void CaptionLabel::ActOn(Gesture gesture, const QString& words, std::function<void()> action) {
  gesture_ = gesture;
  words_ = words;
  action_ = std::move(action);
  setFocusPolicy(Qt::StrongFocus);
}

void CaptionLabel::Act() {
  if (action_) action_();
}

// At its polishing a QLabel would make the text document.
bool CaptionLabel::event(QEvent* event) { return event->type() == QEvent::Polish || QLabel::event(event); }

void CaptionLabel::focusInEvent(QFocusEvent* event) {
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
    clickedInto_ = event->reason() == Qt::MouseFocusReason;
  update();
}

// The frame leads whoever goes by keyboard; a click needs none.
void CaptionLabel::PaintFocus() {
  if (!HasKeyboard()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.rect = rect().marginsRemoved({frameWidth(), frameWidth(), frameWidth(), frameWidth()});
  option.backgroundColor = palette().color(backgroundRole());
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void CaptionLabel::paintEvent(QPaintEvent*) {
  PaintFocus();
  QPainter painter(this);
  drawFrame(&painter);
  const QRect box = contentsRect().marginsRemoved({margin(), margin(), margin(), margin()});
  const int flags = int(QStyle::visualAlignment(layoutDirection(), alignment())) | int(Qt::TextSingleLine);
  const QString words = text().isEmpty() && HasKeyboard() ? accessibleName() : text();
  style()->drawItemText(&painter, box, flags, palette(), isEnabled(), words, foregroundRole());
}

QSize CaptionLabel::sizeHint() const {
  const int around = 2 * (margin() + frameWidth());
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(around, around);
}

void CaptionLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
      if (!Acts()) break;
      if (!event->isAutoRepeat()) Act();
      return;
    default:
      break;
  }
  QLabel::keyPressEvent(event);
}

void CaptionLabel::mousePressEvent(QMouseEvent* event) {
  if (!Acts() || event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
  down_ = true;
  if (Pressed) Pressed(event->position().toPoint());
}

void CaptionLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (!Acts() || event->button() != Qt::LeftButton) return QLabel::mouseReleaseEvent(event);
  const bool clicked = std::exchange(down_, false) && rect().contains(event->position().toPoint());
  if (clicked && gesture_ == Gesture::Click) Act();
}

// To a label that waits for single clicks the second press of a double click is one more press.
void CaptionLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!Acts() || event->button() != Qt::LeftButton) return QLabel::mouseDoubleClickEvent(event);
  if (gesture_ == Gesture::Click) return mousePressEvent(event);
  if (PressedAgain) PressedAgain(event->position().toPoint());
  Act();
}

void CaptionLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (!Acts()) return QLabel::contextMenuEvent(event);
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(words_, this, [this] { Act(); });
  menu->popup(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(rect().bottomLeft())
                                                             : event->globalPos());
}

}  // namespace qismora
