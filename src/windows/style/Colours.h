#pragma once

#include <QColor>
#include <QPalette>

namespace qismora {

/// The contrast ratio of two colours, from 1 for alike to 21 for black and white.
double Contrast(const QColor& one, const QColor& other);

/// Whether the desktop uses only black and white, as high contrast themes do.
bool IsBlackAndWhite(const QPalette& palette);

/// Contrast ratios for text (WCAG 2.1, levels AA and AAA).
inline constexpr double LeastContrast = 4.5;
inline constexpr double HighContrast = 7;
/// The ratio that text needs on this desktop.
double WantedContrast(const QPalette& palette);

/// The wanted colour, made lighter on a dark background or darker on a bright one until it has this contrast.
QColor Readable(QColor wanted, const QColor& background, double contrast = LeastContrast);

/// The text colour for the colour number of a control (case/Controls.h). Black and the system colours give
/// the text colour of the desktop.
QColor TextColourOf(int colour, const QPalette& palette, QPalette::ColorRole text,
                    QPalette::ColorRole background);

/// Marks what needs attention, as a tint or a stripe.
inline constexpr QColor Amber(255, 176, 0);

/// A mix of two colours: 0 is the first, 1 the second.
QColor Between(const QColor& from, const QColor& to, double strength);

}  // namespace qismora
