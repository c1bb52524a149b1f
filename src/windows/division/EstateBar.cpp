#include "windows/division/EstateBar.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

#include "windows/division/Patterns.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

namespace {

constexpr int barMargin = 5;

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
  update();
}

QSize EstateBar::sizeHint() const { return {200, fontMetrics().height() + 2 * barMargin}; }

QRectF EstateBar::PlaceOf(std::size_t part) const {
  const QRectF inside = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  double before = 0;
  for (std::size_t i = 0; i < part; ++i) before += Value(parts_[i].Share);
  const double share = Value(parts_[part].Share);
  const double from = layoutDirection() == Qt::RightToLeft ? 1 - before - share : before;
  return {inside.left() + from * inside.width(), inside.top(), share * inside.width(), inside.height()};
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
    const qreal width = fontMetrics().horizontalAdvance(part.Name) + 2 * barMargin;
    if (width + 2 * barMargin > place.width()) continue;
    QRectF field(0, 0, width, fontMetrics().height());
    field.moveCenter(place.center());
    painter.fillRect(field, palette().base());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(field, Qt::AlignCenter, part.Name);
  }
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
