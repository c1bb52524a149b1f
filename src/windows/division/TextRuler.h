#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <cmath>

namespace qismora {

/// Measures texts in a font. It remembers them, since most stay the same from one keystroke to the next, and
/// to measure a text takes longer than anything else about it.
class TextRuler {
 public:
  explicit TextRuler(const QFont& font = {}) : font_(font), metrics_(font) {}

  const QFont& Font() const { return font_; }
  const QFontMetricsF& Metrics() const { return metrics_; }

  /// Of a text in one line, in whole pixels.
  int Width(const QString& text) const {
    const auto known = widths_.constFind(text);
    if (known != widths_.constEnd()) return *known;
    if (widths_.size() >= most) widths_.clear();
    return *widths_.insert(text, static_cast<int>(std::ceil(metrics_.horizontalAdvance(text))));
  }
  int Height(qsizetype lines) const {
    return static_cast<int>(std::ceil(metrics_.lineSpacing() * static_cast<double>(lines)));
  }

 private:
  static constexpr qsizetype most = 2000;

  QFont font_;
  QFontMetricsF metrics_;
  mutable QHash<QString, int> widths_;
};

}  // namespace qismora
