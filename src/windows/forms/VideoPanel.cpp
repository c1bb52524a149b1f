#include "windows/forms/VideoPanel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <utility>

namespace qismora {

namespace {

constexpr int focusRoom = 2;

}  // namespace

VideoPanel::VideoPanel(QWidget* parent) : QFrame(parent) {
  setObjectName(QStringLiteral("Frame5"));
  setAccessibleName(tr("Animation"));
  setAccessibleDescription(tr("Return: the other one. Space: once more."));
  setContentsMargins(focusRoom, focusRoom, focusRoom, focusRoom);
}

// Around what plays, which covers everything else.
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
      if (Clicked) Clicked();
      return;
    case Qt::Key_Space:
      if (DoubleClicked) DoubleClicked();
      return;
    default:
      QFrame::keyPressEvent(event);
  }
}

void VideoPanel::mousePressEvent(QMouseEvent* event) { down_ = event->button() == Qt::LeftButton; }

// A double click comes behind the click of its first half; the release of its second half is none.
void VideoPanel::mouseReleaseEvent(QMouseEvent* event) {
  const bool clicked = std::exchange(down_, false) && rect().contains(event->position().toPoint());
  if (clicked && Clicked) Clicked();
}

void VideoPanel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && DoubleClicked) DoubleClicked();
}

}  // namespace qismora
