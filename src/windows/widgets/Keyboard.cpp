#include "windows/widgets/Keyboard.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>

namespace qismora {

namespace {

/// Where two entries share a mnemonic, Qt would alternate between them.
class FirstEntry : public QObject {
 public:
  explicit FirstEntry(QMenuBar* bar) : QObject(bar), bar_(bar) { bar->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return false;
    const auto* keys = static_cast<QShortcutEvent*>(event);
    if (!keys->isAmbiguous()) return false;
    for (QAction* entry : bar_->actions()) {
      if (!entry->isVisible() || QKeySequence::mnemonic(entry->text()) != keys->key()) continue;
      entry->trigger();
      return true;
    }
    return false;
  }

 private:
  QMenuBar* bar_;
};

// A menu bar can be entered by the Alt key alone.
void PressAlt(QMainWindow* window) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(window, &down);
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
  QCoreApplication::sendEvent(window, &up);
}

}  // namespace

void OpenToKeyboard(QMainWindow* window) {
  auto* lead = new QShortcut(Qt::Key_F10, window);
  QObject::connect(lead, &QShortcut::activated, window, [window] { PressAlt(window); });
  new FirstEntry(window->menuBar());
}

}  // namespace qismora
