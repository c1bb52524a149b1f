#pragma once

class QMainWindow;

namespace qismora {

/// What a menu bar owes to those who use no mouse: F10 leads into it as Alt does, and where two entries share
/// a letter, Alt with it always chooses the first.
void OpenToKeyboard(QMainWindow* window);

}  // namespace qismora
