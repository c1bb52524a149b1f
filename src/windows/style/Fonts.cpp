#include "windows/style/Fonts.h"

#include <QWidget>

namespace qismora {

void LimitFont(QWidget* window, int pixels) {
  QFont font = window->font();
  // Computed from the points, because QFontInfo would load a font that may never be drawn.
  const bool inPoints = font.pixelSize() < 0;
  const qreal size = inPoints ? font.pointSizeF() * window->logicalDpiY() / 72 : font.pixelSize();
  if (size <= pixels) return;
  font.setPixelSize(pixels);
  window->setFont(font);
}

QFont HeadingFont(QFont font, int pixels) {
  font.setPixelSize(pixels);
  font.setBold(true);
  return font;
}

}  // namespace qismora
