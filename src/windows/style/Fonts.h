#pragma once

#include <QFont>

class QWidget;

namespace qismora {

/// The layout of a form allows for text of so many pixels; larger text comes with the scale of the desktop.
void LimitFont(QWidget* window, int pixels);

/// The font of a heading, so many pixels high.
QFont HeadingFont(QFont font, int pixels);

}  // namespace qismora
