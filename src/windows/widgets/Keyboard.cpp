#include "windows/widgets/Keyboard.h"

#include <QAccessible>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <utility>

namespace qismora {

namespace {

/// Chooses the first of the entries that share a mnemonic. Qt would alternate between them.
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

// Qt enters a menu bar by the Alt key alone.
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

void WhenTriggered(const QAction* action, QObject* context, std::function<void()> act) {
  QObject::connect(action, &QAction::triggered, context, [context, act = std::move(act)] {
    if (!QAccessible::isActive()) return act();
    QMetaObject::invokeMethod(context, act, Qt::QueuedConnection);
  });
}

}  // namespace qismora
