#include "windows/division/Patterns.h"

#include <QPainter>
#include <QPalette>
#include <QtMath>
#include <array>

#include "windows/style/Colours.h"

namespace qismora {

namespace {

constexpr std::array<QRgb, 7> hues = {0xFF205C67, 0xFFB8860B, 0xFFB0503A, 0xFF5B8A3C,
                                      0xFF6A4C93, 0xFF2F6DB5, 0xFF8C6239};
constexpr double leastContrast = 3;
constexpr double paleness = 0.78;
constexpr int patternSpacing = 6;
constexpr int slantedSpacing = 8;
constexpr qreal stroke = 2.2;

enum class Pattern { Full, Rising, Level, Upright, Falling, Dotted, Checked };

// By kind, so that heirs who often take together differ without colours. Class II has one pattern, because
// one of them takes alone.
constexpr std::array<Pattern, 23> patterns = {
    Pattern::Full,     // wives
    Pattern::Full,     // husband
    Pattern::Rising,   // sons
    Pattern::Falling,  // daughters
    Pattern::Rising,   // sons' sons
    Pattern::Checked,  // sons' daughters
    Pattern::Rising,   // sons' sons' sons
    Pattern::Upright,  // sons' sons' daughters
    Pattern::Level,    // father
    Pattern::Level,    // grandfather
    Pattern::Level,    // great-grandfather
    Pattern::Dotted,   // mother
    Pattern::Dotted,   // mother's mother
    Pattern::Dotted,   // mother's mother's mother
    Pattern::Checked,  // father's mother
    Pattern::Checked,  // grandfather's mother
    Pattern::Checked,  // father's mother's mother
    Pattern::Checked,  // full brothers
    Pattern::Upright,  // full sisters
    Pattern::Rising,   // consanguine sisters
    Pattern::Checked,  // consanguine brothers
    Pattern::Level,    // uterine sisters
    Pattern::Falling,  // uterine brothers
};

/// Whether hue and pattern together differ for any two kinds that are not of class II.
constexpr bool AllDiffer() {
  for (std::size_t i = 0; i < patterns.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (i % hues.size() == j % hues.size() && patterns[i] == patterns[j]) return false;
    }
  }
  return true;
}
static_assert(AllDiffer());

Pattern PatternOf(faraid::Kind heir) {
  const auto i = static_cast<std::size_t>(heir);
  return i < patterns.size() ? patterns[i] : Pattern::Upright;
}

void DrawStripes(QPainter& painter, const QRectF& rect, Pattern pattern) {
  const int width = qCeil(rect.width());
  const int height = qCeil(rect.height());
  const auto place = [&rect](int x, int y) { return rect.topLeft() + QPointF(x, y); };
  if (pattern == Pattern::Rising || pattern == Pattern::Falling) {
    const bool rises = pattern == Pattern::Rising;
    for (int x = -height; x < width; x += slantedSpacing) {
      painter.drawLine(place(x, rises ? height : 0), place(x + height, rises ? 0 : height));
    }
  }
  if (pattern == Pattern::Level || pattern == Pattern::Checked) {
    for (int y = patternSpacing / 2; y < height; y += patternSpacing)
      painter.drawLine(place(0, y), place(width, y));
  }
  if (pattern == Pattern::Upright || pattern == Pattern::Checked) {
    for (int x = patternSpacing / 2; x < width; x += patternSpacing)
      painter.drawLine(place(x, 0), place(x, height));
  }
  if (pattern != Pattern::Dotted) return;
  for (int y = patternSpacing / 2; y < height; y += patternSpacing) {
    for (int x = patternSpacing / 2; x < width; x += patternSpacing) painter.drawPoint(place(x, y));
  }
}

}  // namespace

QColor ColourOf(faraid::Kind heir, const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  if (IsBlackAndWhite(palette)) return palette.color(QPalette::Active, QPalette::Text);
  return Readable(QColor(hues[static_cast<std::size_t>(heir) % hues.size()]), base, leastContrast);
}

void FillPattern(QPainter& painter, const QRectF& rect, faraid::Kind heir, const QPalette& palette) {
  const QColor colour = ColourOf(heir, palette);
  const Pattern pattern = PatternOf(heir);
  if (pattern == Pattern::Full) return painter.fillRect(rect, colour);
  painter.save();
  painter.setClipRect(rect, Qt::IntersectClip);
  const QColor base = palette.color(QPalette::Base);
  painter.fillRect(rect, IsBlackAndWhite(palette) ? base : Between(colour, base, paleness));
  painter.setRenderHint(QPainter::Antialiasing, pattern == Pattern::Rising || pattern == Pattern::Falling ||
                                                    pattern == Pattern::Dotted);
  const bool thin = pattern == Pattern::Checked;
  painter.setPen(QPen(colour, thin ? 1 : stroke, Qt::SolidLine,
                      pattern == Pattern::Dotted ? Qt::RoundCap : Qt::FlatCap));
  DrawStripes(painter, rect, pattern);
  painter.restore();
}

QPixmap PatternSwatch(faraid::Kind heir, const QPalette& palette, int size, int top, qreal scale) {
  QPixmap swatch(QSize(size, size + top) * scale);
  swatch.fill(Qt::transparent);
  swatch.setDevicePixelRatio(scale);
  QPainter painter(&swatch);
  const QRectF whole(0, top, size, size);
  FillPattern(painter, whole, heir, palette);
  painter.setPen(ColourOf(heir, palette));
  painter.drawRect(whole.adjusted(0.5, 0.5, -0.5, -0.5));
  return swatch;
}

}  // namespace qismora
