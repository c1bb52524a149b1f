#pragma once

#include <QProxyStyle>

namespace qismora {

/// The style of all windows. Forms are laid out to the pixel, so it is the same on every desktop. On dark
/// backgrounds and in high contrast, fields, buttons and text areas get an outline. A clear frame shows the
/// keyboard focus. Text colours are adjusted until they are readable on their background.
class OutlinedStyle : public QProxyStyle {
 public:
  OutlinedStyle();

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

/// Draws a line along the inside of the rectangle's edges, sharp at every scale.
void DrawFrame(QPainter* painter, const QColor& line, const QRect& rect);

}  // namespace qismora
