#pragma once

#include <QProxyStyle>

namespace qismora {

/// The style of all windows: forms are laid out to the pixel, so it is the same on every desktop. Where
/// frames can hardly be seen, on a dark background and in black and white, fields, buttons and text areas get
/// an outline. Whatever has the focus of the keyboard stands in a clear frame, and every desktop's text is
/// made readable on its background.
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

/// A plain line within the edges of the rectangle, whole at every scale.
void DrawFrame(QPainter* painter, const QColor& line, const QRect& rect);

}  // namespace qismora
