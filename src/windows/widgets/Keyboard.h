#pragma once

#include <functional>

class QAction;
class QMainWindow;
class QObject;

namespace qismora {

/// Completes the keyboard access to the menu bar: F10 enters it like Alt. If two entries share a mnemonic,
/// Alt with it always chooses the first.
void OpenToKeyboard(QMainWindow* window);

/// Calls the function when the action is triggered, as long as the context lives. A command may open a modal
/// message box, and a screen reader that has triggered the action must not wait for the answer. So while a
/// screen reader is active, the call comes from the event loop.
void WhenTriggered(const QAction* action, QObject* context, std::function<void()> act);

}  // namespace qismora
