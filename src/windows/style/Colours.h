#pragma once

#include <QColor>
#include <QPalette>

namespace qismora {

/// How far two colours stand apart, from 1 for alike to 21 for black and white.
double Contrast(const QColor& one, const QColor& other);

/// A desktop of nothing but black and white, which asks for contrast above all.
bool IsBlackAndWhite(const QPalette& palette);

inline constexpr double LeastContrast = 4.5;
inline constexpr double HighContrast = 7;
double WantedContrast(const QPalette& palette);

/// The tone nearest to the wanted one that can be read on the ground: lighter on a dark ground, darker on
/// a bright one.
QColor Readable(QColor wanted, const QColor& ground, double contrast = LeastContrast);

/// A colour number of a control on this desktop. Black and the colours of the system are what the desktop
/// writes with.
QColor InkOf(int colour, const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground);

/// The colour so far on the way from the ground to the ink, 0 to 1.
QColor Between(const QColor& ground, const QColor& ink, double strength);

}  // namespace qismora
