#pragma once

#include <QFont>

class QWidget;

namespace qismora {

/// A form has room for letters of so many pixels; larger ones come with the scale of the desktop.
void LimitLetters(QWidget* window, int pixels);

/// The letters of a heading, so many pixels high.
QFont HeadingFont(QFont letters, int pixels);

}  // namespace qismora
