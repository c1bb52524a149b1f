#include "windows/style/Pictures.h"

#include <QImageReader>
#include <QPainter>
#include <QStyle>
#include <QWidget>
#include <utility>

namespace qismora {

namespace {

constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128};
constexpr int firstFullIcon = 48;

// Loads Qt's image plugin with the first picture, after the first window is shown.
QPixmap Read(const QString& file, const QSize& place, qreal scale) {
  QImageReader reader(file);
  const QSize size = reader.size().scaled(place, Qt::KeepAspectRatio);
  reader.setScaledSize((QSizeF(size) * scale).toSize().expandedTo(QSize(1, 1)));
  QPixmap pixmap = QPixmap::fromImageReader(&reader);
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

QString FileOf(const QString& name) { return QStringLiteral(":/pictures/%1.svg").arg(name); }

}  // namespace

QIcon ProgramIcon() {
  const QString full = FileOf(QStringLiteral("icon"));
  const QString plain = FileOf(QStringLiteral("icon-small"));
  QIcon icon;
  for (const int size : iconSizes) icon.addPixmap(Read(size < firstFullIcon ? plain : full, {size, size}, 1));
  return icon;
}

void Drawing::Show(const QString& name) {
  file_ = FileOf(name);
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
  pixmap_ = Read(file_, place, scale);
  if (colour.isValid() && !pixmap_.isNull()) {
    QPainter painter(&pixmap_);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap_.rect(), colour);
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

}  // namespace qismora
