#include "windows/style/Pictures.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QSvgRenderer>
#include <utility>

namespace qismora {

namespace {

constexpr QSize smallIcon{20, 20};
constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128};
constexpr int firstFullIcon = 48;

}  // namespace

QIcon ProgramIcon() {
  QSvgRenderer full(QStringLiteral(":/pictures/icon.svg"));
  QSvgRenderer plain(QStringLiteral(":/pictures/icon-small.svg"));
  QIcon icon;
  for (const int size : iconSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    (size < firstFullIcon ? plain : full).render(&painter);
    icon.addPixmap(pixmap);
  }
  return icon;
}

void Drawing::Show(const QString& name) {
  file_ = QStringLiteral(":/pictures/%1.svg").arg(name);
  pixmap_ = {};
}

QPixmap Drawing::For(QWidget* widget, const QSize& place, const QColor& colour) {
  if (place.isEmpty()) return {};
  if (!std::exchange(asked_, true)) {
    QMetaObject::invokeMethod(widget, "update", Qt::QueuedConnection);
    return {};
  }
  const qreal scale = widget->devicePixelRatioF();
  const bool kept = !pixmap_.isNull() && place_ == place && colour_ == colour;
  if (kept && pixmap_.devicePixelRatioF() == scale) return pixmap_;
  QSvgRenderer renderer(file_);
  const QSize size = renderer.defaultSize().scaled(place, Qt::KeepAspectRatio);
  pixmap_ = QPixmap((QSizeF(size) * scale).toSize().expandedTo(QSize(1, 1)));
  pixmap_.setDevicePixelRatio(scale);
  pixmap_.fill(Qt::transparent);
  QPainter painter(&pixmap_);
  const QRectF all(QPointF(0, 0), QSizeF(size));
  renderer.render(&painter, all);
  if (colour.isValid()) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(all, colour);
  }
  place_ = place;
  colour_ = colour;
  return pixmap_;
}

QRect Drawing::Paint(QPainter* painter, QWidget* widget, const QRect& place, Qt::Alignment alignment,
                     const QColor& colour) {
  const QPixmap pixmap = For(widget, place.size(), colour);
  if (pixmap.isNull()) return {};
  const QSize size = pixmap.deviceIndependentSize().toSize();
  const QRect painted = QStyle::alignedRect(Qt::LeftToRight, alignment, size, place);
  painter->drawPixmap(painted, pixmap);
  return painted;
}

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
