#include "windows/widgets/ReadingText.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

namespace qismora {

namespace {

constexpr int tabWidth = 8;

}  // namespace

ReadingText::ReadingText(const QString& name, const QString& accessibleName, QWidget* parent)
    : QPlainTextEdit(parent) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  verticalScrollBar()->setAccessibleName(QStringLiteral("Scroll: %1").arg(accessibleName));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setTabStopDistance(fontMetrics().averageCharWidth() * tabWidth);
}

void ReadingText::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy) || textCursor().hasSelection()) {
    return QPlainTextEdit::keyPressEvent(event);
  }
  QGuiApplication::clipboard()->setText(toPlainText());
}

void ReadingText::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (!actions().isEmpty()) menu->addSeparator();
  menu->addActions(actions());
  menu->popup(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(cursorRect().bottomLeft())
                                                             : event->globalPos());
}

}  // namespace qismora
