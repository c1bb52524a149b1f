#pragma once

#include <QColor>
#include <QPalette>

namespace qismora {

/// The contrast ratio of two colours, from 1 for alike to 21 for black and white.
double Contrast(const QColor& one, const QColor& other);

/// A desktop of nothing but black and white, which asks for contrast above all.
bool IsBlackAndWhite(const QPalette& palette);

inline constexpr double LeastContrast = 4.5;
inline constexpr double HighContrast = 7;
double WantedContrast(const QPalette& palette);

/// The tone nearest to the wanted one that can be read on the background: lighter on a dark background,
/// darker on a bright one.
QColor Readable(QColor wanted, const QColor& background, double contrast = LeastContrast);

/// A control's colour number on this desktop. For black and the system colours it is the desktop's own text
/// colour.
QColor TextColourOf(int colour, const QPalette& palette, QPalette::ColorRole text,
                    QPalette::ColorRole background);

/// A mix of two colours: 0 is the first, 1 the second.
QColor Between(const QColor& from, const QColor& to, double strength);

}  // namespace qismora
