#pragma once

#include <QColor>
#include <QPalette>

namespace qismora {

/// The tone nearest to the wanted one that can be read on the ground: lighter on a dark ground, darker on
/// a bright one.
QColor Readable(QColor wanted, const QColor& ground);

/// A colour number of a control on this desktop. Black and the colours of the system are what the desktop
/// writes with.
QColor InkOf(int colour, const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground);

}  // namespace qismora
