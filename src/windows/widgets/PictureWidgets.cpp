#include "windows/widgets/PictureWidgets.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace qismora {

namespace {

constexpr QSize smallIcon{20, 20};

}  // namespace

PictureLabel::PictureLabel(const QString& name, const QString& picture, const QString& accessibleName,
                           QWidget* parent)
    : QLabel(parent), drawing_(picture) {
  setObjectName(name);
  setAccessibleName(accessibleName);
}

void PictureLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawing_.Paint(&painter, this, contentsRect(), Qt::AlignCenter);
}

PictureButton::PictureButton(const QString& name, const QString& picture, Colours colours, Gesture gesture,
                             const QString& action, QWidget* parent)
    : CaptionButton(name, gesture, action, parent), drawing_(picture), colours_(colours) {
  SetAlignment(Qt::AlignCenter);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFrame(&painter);
  const QColor colour = colours_ == Colours::OfText ? palette().color(foregroundRole()) : QColor();
  painted_ = drawing_.Paint(&painter, this, contentsRect(), Alignment(), colour);
}

IconButton::IconButton(const QString& name, const QString& picture, const QString& text, QWidget* parent)
    : QPushButton(text, parent), drawing_(picture) {
  setObjectName(name);
  setAutoDefault(true);
}

void IconButton::ShowPicture(const QString& name) {
  drawing_.Show(name);
  update();
}

void IconButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  option.icon = drawing_.For(this, smallIcon);
  option.iconSize = smallIcon;
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

}  // namespace qismora
