#pragma once

#include <QPainter>
#include <QTextLayout>
#include <memory>

#include "Inline.h"

namespace qismora::documents {

/// A text broken into lines of one pitch, whatever fonts stand in them, so that a page keeps its rhythm
/// where Arabic script with its tall signs stands between Latin letters.
class TextBlock {
 public:
  /// Left is the side where a line begins, the right one for Arabic script; with AlignAbsolute it is left.
  TextBlock(const StyledText& text, double width, double pitch, Qt::Alignment align = Qt::AlignLeft);

  int Lines() const { return layout_->lineCount(); }
  double Pitch() const { return pitch_; }
  double Height() const { return Lines() * pitch_; }
  /// The width of the longest line.
  double UsedWidth() const;

  void Draw(QPainter& painter, QPointF at) const { DrawLines(painter, at, 0, Lines()); }
  /// Draws some of the lines, the first of them at the given point.
  void DrawLines(QPainter& painter, QPointF at, int first, int count) const;

 private:
  std::shared_ptr<QTextLayout> layout_;
  double pitch_;
};

/// One line of plain text, for heads, feet and labels.
TextBlock OneLine(const QString& text, const TextStyle& style, double width,
                  Qt::Alignment align = Qt::AlignLeft);

}  // namespace qismora::documents
