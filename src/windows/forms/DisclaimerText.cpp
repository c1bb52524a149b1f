#include "windows/forms/DisclaimerText.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace qismora {

DisclaimerText::DisclaimerText(QWidget* parent)
    : ReadingText(QStringLiteral("Text1"), tr("Disclaimer"), parent) {
  setToolTip(tr("Double Click to Hide"));
}

void DisclaimerText::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return ReadingText::keyPressEvent(event);
  if (DoubleClicked) DoubleClicked();
}

void DisclaimerText::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return ReadingText::mouseDoubleClickEvent(event);
  if (DoubleClicked) DoubleClicked();
}

}  // namespace qismora
