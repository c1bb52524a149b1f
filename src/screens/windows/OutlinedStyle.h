#pragma once

#include <QProxyStyle>

namespace qismora {

/// The style of all windows: forms are laid out to the pixel, so it is the same on every desktop. Groups are
/// plain outlines; on a dark ground, where their own frames can hardly be seen, boxes and buttons get one
/// too.
class OutlinedStyle : public QProxyStyle {
 public:
  OutlinedStyle();

  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace qismora
