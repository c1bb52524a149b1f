#include "screens/windows/OutlinedStyle.h"

#include <QPainter>
#include <QStyleOption>

#include "screens/windows/LateIcon.h"

namespace qismora {

namespace {

constexpr int darkGround = 64;
constexpr int boxStrength = 110;
constexpr double groupStrength = 0.2;
constexpr int titleMargin = 3;
constexpr qreal roundness = 2;

void DrawOutline(QPainter* painter, const QPalette& palette, const QRect& rect, int strength,
                 qreal round = roundness) {
  QColor line = palette.color(QPalette::WindowText);
  line.setAlpha(strength);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(line);
  painter->setBrush(Qt::NoBrush);
  const QRectF edge = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter->drawRoundedRect(edge, round, round);
  painter->restore();
}

QColor Between(const QColor& ground, const QColor& ink, double strength) {
  const auto mixed = [strength](int from, int to) { return from + static_cast<int>((to - from) * strength); };
  return {mixed(ground.red(), ink.red()), mixed(ground.green(), ink.green()),
          mixed(ground.blue(), ink.blue())};
}

// Filled bars of one plain colour: large tinted or smooth frames would start the painter's threads.
void DrawGroup(QPainter* painter, const QPalette& palette, const QRect& rect) {
  const QColor line =
      Between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), groupStrength);
  for (const int y : {rect.top(), rect.bottom()}) painter->fillRect(rect.left(), y, rect.width(), 1, line);
  for (const int x : {rect.left(), rect.right()}) painter->fillRect(x, rect.top(), 1, rect.height(), line);
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

// Every menu bar asks for the sign that stands where it is too narrow for its entries. Making it has the
// toolkit load all that it can read pictures with, so it waits until such a menu bar comes.
QIcon OutlinedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton) return QIcon(new LateIcon(baseStyle(), which));
  return QProxyStyle::standardIcon(which, option, widget);
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  if (element == PE_FrameGroupBox) {
    const int title = qMax(pixelMetric(PM_IndicatorHeight), option->fontMetrics.height()) + titleMargin;
    DrawGroup(painter, option->palette, option->rect.adjusted(0, title, 0, 0));
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool radio = element == PE_IndicatorRadioButton;
  const bool framed = radio || element == PE_PanelLineEdit || element == PE_IndicatorCheckBox ||
                      element == PE_PanelButtonCommand;
  if (framed && option->palette.color(QPalette::Window).lightness() <= darkGround) {
    DrawOutline(painter, option->palette, option->rect, boxStrength,
                radio ? option->rect.width() / 2.0 : roundness);
  }
}

}  // namespace qismora
