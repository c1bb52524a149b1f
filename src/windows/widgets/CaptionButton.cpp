#include "windows/widgets/CaptionButton.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStyleOptionFrame>

#include "windows/style/OutlinedStyle.h"

namespace qismora {

CaptionButton::CaptionButton(const QString& name, Gesture gesture, const QString& action, QWidget* parent)
    : QAbstractButton(parent), gesture_(gesture), action_(action) {
  setObjectName(name);
  setAccessibleDescription(action);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  setForegroundRole(QPalette::WindowText);
  setBackgroundRole(QPalette::Window);
}

void CaptionButton::SetBorder(QFrame::Shape shape) {
  border_ = shape;
  updateGeometry();
  update();
}

QRect CaptionButton::InsideBorder(const QRect& place) const {
  const int width = border_ == QFrame::NoFrame ? 0 : 1;
  return place.adjusted(width, width, -width, -width);
}

QSize CaptionButton::sizeHint() const {
  const QSize around = size() - InsideBorder(contentsRect()).size();
  return fontMetrics().size(Qt::TextSingleLine, text()) + around;
}

void CaptionButton::focusInEvent(QFocusEvent* event) {
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
    clickedInto_ = event->reason() == Qt::MouseFocusReason;
  QAbstractButton::focusInEvent(event);
}

void CaptionButton::PaintFrame(QPainter* painter) {
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = InsideBorder(rect());
  if (HasKeyboard()) style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
  if (border_ == QFrame::StyledPanel) {
    QStyleOptionFrame frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Frame, &frame, painter, this);
  } else if (border_ == QFrame::Box) {
    DrawFrame(painter, palette().color(foregroundRole()), rect());
  }
}

void CaptionButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFrame(&painter);
  const QString words = text().isEmpty() && HasKeyboard() ? accessibleName() : text();
  const int flags = int(QStyle::visualAlignment(layoutDirection(), alignment_)) | int(Qt::TextSingleLine);
  style()->drawItemText(&painter, InsideBorder(contentsRect()), flags, palette(), isEnabled(), words,
                        foregroundRole());
}

void CaptionButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    return QAbstractButton::keyPressEvent(event);
  }
  if (!event->isAutoRepeat()) click();
}

void CaptionButton::mousePressEvent(QMouseEvent* event) {
  if (gesture_ == Gesture::Click) QAbstractButton::mousePressEvent(event);
}

// For single clicks, the second press of a double click is one more press.
void CaptionButton::mouseDoubleClickEvent(QMouseEvent* event) {
  if (gesture_ == Gesture::Click) return mousePressEvent(event);
  if (event->button() == Qt::LeftButton) click();
}

void CaptionButton::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(action_, this, &QAbstractButton::click);
  menu->popup(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(rect().bottomLeft())
                                                             : event->globalPos());
}

}  // namespace qismora
