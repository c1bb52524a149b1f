#include "screens/windows/DisclaimerText.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace qismora {

DisclaimerText::DisclaimerText(QWidget* parent) : QPlainTextEdit(parent) {
  setObjectName(QStringLiteral("Text1"));
  setAccessibleName(tr("Disclaimer"));
  setToolTip(tr("Double Click to Hide"));
  setReadOnly(true);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void DisclaimerText::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QPlainTextEdit::keyPressEvent(event);
  if (DoubleClicked) DoubleClicked();
}

void DisclaimerText::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QPlainTextEdit::mouseDoubleClickEvent(event);
  if (DoubleClicked) DoubleClicked();
}

}  // namespace qismora
