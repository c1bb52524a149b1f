#pragma once

class QMainWindow;

namespace qismora {

/// Completes the keyboard access to the menu bar: F10 enters it as Alt does, and where two entries share a
/// mnemonic, Alt with it always chooses the first.
void OpenToKeyboard(QMainWindow* window);

}  // namespace qismora
