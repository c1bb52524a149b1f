#include "windows/style/Pictures.h"

#include <QFile>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QSvgRenderer>

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
  const QString file = QStringLiteral(":/pictures/%1.svg").arg(name);
  file_ = QFile::exists(file) ? file : QString();
  pixmap_ = {};
}

void Drawing::Make(const QSize& box, qreal scale, const QColor& ink) {
  QSvgRenderer renderer(file_);
  const QSize size = renderer.defaultSize().scaled(box, Qt::KeepAspectRatio);
  pixmap_ = QPixmap((QSizeF(size) * scale).toSize().expandedTo(QSize(1, 1)));
  pixmap_.setDevicePixelRatio(scale);
  pixmap_.fill(Qt::transparent);
  QPainter painter(&pixmap_);
  const QRectF all(QPointF(0, 0), QSizeF(size));
  renderer.render(&painter, all);
  if (ink.isValid()) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(all, ink);
  }
  box_ = box;
  ink_ = ink;
}

QPixmap Drawing::For(QWidget* widget, const QSize& box, const QColor& ink) {
  if (!Exists() || box.isEmpty()) return {};
  if (!asked_) {
    asked_ = true;
    QMetaObject::invokeMethod(widget, "update", Qt::QueuedConnection);
    return {};
  }
  const qreal scale = widget->devicePixelRatioF();
  if (pixmap_.isNull() || box_ != box || ink_ != ink || pixmap_.devicePixelRatioF() != scale) {
    Make(box, scale, ink);
  }
  return pixmap_;
}

PictureLabel::PictureLabel(const QString& name, const QString& picture, Ink ink, QWidget* parent)
    : CaptionLabel(name, parent), ink_(ink) {
  drawing_.Show(picture);
  setAlignment(Qt::AlignCenter);
}

void PictureLabel::PaintButton() {
  QStyleOptionButton option;
  option.initFrom(this);
  option.state |= QStyle::State_Raised;
  option.text = text();
  option.icon = drawing_.For(this, smallIcon, {});
  option.iconSize = smallIcon;
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
  drawFrame(&painter);
}

void PictureLabel::paintEvent(QPaintEvent* event) {
  if (raised_) return PaintButton();
  if (!HasPicture()) return CaptionLabel::paintEvent(event);
  PaintFocus();
  const QColor ink = ink_ == Ink::Text ? palette().color(foregroundRole()) : QColor();
  const QPixmap pixmap = drawing_.For(this, contentsRect().size(), ink);
  if (pixmap.isNull()) return;
  const QSize size = pixmap.deviceIndependentSize().toSize();
  place_ = QStyle::alignedRect(Qt::LeftToRight, alignment(), size, contentsRect());
  QPainter(this).drawPixmap(place_, pixmap);
}

PictureButton::PictureButton(const QString& name, const QString& text, QWidget* parent)
    : QPushButton(text, parent) {
  setObjectName(name);
}

void PictureButton::ShowPicture(const QString& name) {
  drawing_.Show(name);
  update();
}

void PictureButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  option.icon = drawing_.For(this, smallIcon, {});
  option.iconSize = smallIcon;
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

}  // namespace qismora
