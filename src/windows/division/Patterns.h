#pragma once

#include <QColor>
#include <QPixmap>

#include "faraid/Kinds.h"

class QPainter;
class QPalette;
class QRectF;

namespace qismora {

/// The colour of an heir in table, bar and tree. It belongs to the kind and stays the same whoever else is
/// alive.
QColor ColourOf(faraid::Kind heir, const QPalette& palette);

/// Fills a rectangle with the colour and the pattern of an heir, so that heirs can be told apart without
/// colours.
void FillPattern(QPainter& painter, const QRectF& rect, faraid::Kind heir, const QPalette& palette);

/// The same as a small picture for the table, below a margin at the top.
QPixmap PatternSwatch(faraid::Kind heir, const QPalette& palette, int size, int top, qreal scale);

}  // namespace qismora
