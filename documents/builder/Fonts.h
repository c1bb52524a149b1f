#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace qismora::documents {

/// All lengths of a page are in tenths of a point, so that font sizes are whole numbers.
inline constexpr int Resolution = 720;
constexpr double Points(double points) { return points * Resolution / 72.0; }

enum class Face { Serif, Sans };

struct TextStyle {
  Face Family = Face::Serif;
  double Size = 10.3;
  bool Bold = false;
  bool Italic = false;
  QColor Colour{0x22, 0x22, 0x22};
  /// How much larger the Arabic script stands in it: its letters are small for their size.
  double ArabicScale = 1.28;
};

inline const QColor Accent(0x1d, 0x5c, 0x4a);
inline const QColor Tint(0xee, 0xf4, 0xf0);
inline const QColor Rule(0xb9, 0xc9, 0xc0);
inline const QColor Grey(0x66, 0x66, 0x66);

/// Loads the fonts of the documents from their files and from nowhere else: what else is installed must
/// not change a page. Throws when a file is missing.
void LoadFonts(const QString& notoFolder, const QString& amiriFolder);

/// The font of a style, for its Latin letters or for its Arabic ones.
QFont FontFor(const TextStyle& style, bool arabic);

/// Throws when the font of the style has no glyph for a letter of the text.
void CheckGlyphs(const QString& text, const TextStyle& style, bool arabic);

}  // namespace qismora::documents
