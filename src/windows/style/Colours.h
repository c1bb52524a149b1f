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

/// The tone nearest to the wanted one that can be read on the background: lighter on a dark background,
/// darker on a bright one.
QColor Readable(QColor wanted, const QColor& background, double contrast = LeastContrast);

/// A colour number of a control on this desktop. Black and the colours of the system are what the desktop
/// writes with.
QColor TextColourOf(int colour, const QPalette& palette, QPalette::ColorRole text,
                    QPalette::ColorRole background);

/// The colour so far on the way from one to the other, 0 to 1.
QColor Between(const QColor& from, const QColor& to, double strength);

}  // namespace qismora
