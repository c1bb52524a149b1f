#pragma once

#include <QFont>

class QWidget;

namespace qismora {

/// Limits the text of a window to this height in pixels, for which its layout has space. Larger text needs a
/// larger scale of the desktop.
void LimitFont(QWidget* window, int pixels);

/// A bold font of this height in pixels.
QFont HeadingFont(QFont font, int pixels);

}  // namespace qismora
