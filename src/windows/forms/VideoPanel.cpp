#include "windows/forms/VideoPanel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace qismora {

namespace {

constexpr int focusMargin = 2;

}  // namespace

VideoPanel::VideoPanel(QWidget* parent) : QAbstractButton(parent) {
  setObjectName(QStringLiteral("Frame5"));
  setAccessibleName(QStringLiteral("Animation"));
  setAccessibleDescription(QStringLiteral("Return: the other one. Space: once more."));
  setContentsMargins(focusMargin, focusMargin, focusMargin, focusMargin);
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

// Only the focus frame is painted here; the video covers the rest.
void VideoPanel::paintEvent(QPaintEvent*) {
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void VideoPanel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return click();
    case Qt::Key_Space:
      if (DoubleClicked) DoubleClicked();
      return;
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

// A double click comes after a single click. Its second release is not another click.
void VideoPanel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && DoubleClicked) DoubleClicked();
}

}  // namespace qismora
