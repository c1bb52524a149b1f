#pragma once

class QMainWindow;

namespace qismora {

/// What a window owes to those who use no mouse: the focus can be seen from the first moment, F10 leads into
/// the menu bar as Alt does, and where two entries of the bar share a letter, Alt with it always chooses the
/// first.
void OpenToKeyboard(QMainWindow* window);

}  // namespace qismora
