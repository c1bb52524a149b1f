#include "windows/style/Letters.h"

#include <QWidget>

namespace qismora {

void LimitLetters(QWidget* window, int pixels) {
  QFont letters = window->font();
  // The size is reckoned from the points: to ask for it would load a font that may never be drawn.
  const bool inPoints = letters.pixelSize() < 0;
  const qreal size = inPoints ? letters.pointSizeF() * window->logicalDpiY() / 72 : letters.pixelSize();
  if (size <= pixels) return;
  letters.setPixelSize(pixels);
  window->setFont(letters);
}

QFont HeadingFont(QFont letters, int pixels) {
  letters.setPixelSize(pixels);
  letters.setBold(true);
  return letters;
}

}  // namespace qismora
