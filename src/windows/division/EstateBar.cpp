#include "windows/division/EstateBar.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "windows/division/Patterns.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

namespace {

constexpr int barMargin = 5;
constexpr int swatch = 12;
constexpr int betweenEntries = 14;

double Value(const faraid::Fraction& share) {
  return static_cast<double>(share.Num()) / static_cast<double>(share.Den());
}

}  // namespace

EstateBar::EstateBar(QWidget* parent) : QWidget(parent) {
  SetAccessibleRole(this, QAccessible::Graphic);
  setObjectName(QStringLiteral("EstateBar"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void EstateBar::Show(std::vector<Part> parts) {
  parts_ = std::move(parts);
  QStringList words;
  for (const Part& part : parts_) words.append(part.Words);
  setAccessibleDescription(words.join(QStringLiteral("; ")));
  setVisible(!parts_.empty());
  updateGeometry();
  update();
}

int EstateBar::BarHeight() const { return fontMetrics().height() + 2 * barMargin; }

QSize EstateBar::sizeHint() const {
  int height = BarHeight();
  for (const Entry& entry : Legend()) height = std::max(height, entry.Name.bottom() + 1);
  return {200, height};
}

QRectF EstateBar::PlaceOf(std::size_t part) const {
  const QRectF inside = QRectF(0, 0, width(), BarHeight()).adjusted(0.5, 0.5, -0.5, -0.5);
  double before = 0;
  for (std::size_t i = 0; i < part; ++i) before += Value(parts_[i].Share);
  const double share = Value(parts_[part].Share);
  const double from = layoutDirection() == Qt::RightToLeft ? 1 - before - share : before;
  return {inside.left() + from * inside.width(), inside.top(), share * inside.width(), inside.height()};
}

bool EstateBar::HasRoomForName(std::size_t part) const {
  return fontMetrics().horizontalAdvance(parts_[part].Name) + 4 * barMargin <= PlaceOf(part).width();
}

std::vector<EstateBar::Entry> EstateBar::Legend() const {
  std::vector<Entry> legend;
  const int lineHeight = fontMetrics().height();
  QPoint next(0, BarHeight() + barMargin);
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    if (HasRoomForName(i)) continue;
    const int name = fontMetrics().horizontalAdvance(parts_[i].Name);
    const int all = swatch + barMargin + name;
    if (next.x() > 0 && next.x() + all > width()) next = {0, next.y() + lineHeight};
    Entry entry = {i,
                   {next.x(), next.y() + (lineHeight - swatch) / 2, swatch, swatch},
                   {next.x() + swatch + barMargin, next.y(), name, lineHeight}};
    if (layoutDirection() == Qt::RightToLeft) {
      for (QRect* place : {&entry.Pattern, &entry.Name})
        place->moveLeft(width() - place->x() - place->width());
    }
    legend.push_back(entry);
    next.rx() += all + betweenEntries;
  }
  return legend;
}

// The name stands on a plain field, since no text can be read on stripes.
void EstateBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor line = palette().color(QPalette::WindowText);
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    const Part& part = parts_[i];
    const QRectF place = PlaceOf(i);
    FillPattern(painter, place, part.Heir, palette());
    painter.setPen(line);
    painter.drawRect(place);
    if (!HasRoomForName(i)) continue;
    QRectF field(0, 0, fontMetrics().horizontalAdvance(part.Name) + 2 * barMargin, fontMetrics().height());
    field.moveCenter(place.center());
    painter.fillRect(field, palette().base());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(field, Qt::AlignCenter, part.Name);
  }
  painter.setPen(line);
  for (const Entry& entry : Legend()) {
    FillPattern(painter, entry.Pattern, parts_[entry.Part].Heir, palette());
    painter.drawRect(QRectF(entry.Pattern).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.drawText(entry.Name, Qt::AlignCenter | Qt::TextDontClip, parts_[entry.Part].Name);
  }
}

void EstateBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (sizeHint().height() != height()) updateGeometry();
}

bool EstateBar::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    if (!PlaceOf(i).contains(help->pos())) continue;
    QToolTip::showText(help->globalPos(), parts_[i].Words, this, PlaceOf(i).toRect());
    return true;
  }
  QToolTip::hideText();
  return true;
}

}  // namespace qismora
