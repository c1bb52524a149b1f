#include "TextBlock.h"

#include <algorithm>

namespace qismora::documents {

namespace {

/// How far down a line its letters stand: the Arabic signs need more room above than below.
constexpr double Baseline = 0.72;

}  // namespace

TextBlock::TextBlock(const StyledText& text, double width, double pitch, Qt::Alignment align)
    : layout_(std::make_shared<QTextLayout>(text.Text)), pitch_(pitch) {
  QTextOption option(align == Qt::AlignLeft && text.RightToLeft ? Qt::AlignRight : align);
  option.setUseDesignMetrics(true);
  option.setTextDirection(text.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  option.setWrapMode(QTextOption::WordWrap);
  layout_->setTextOption(option);
  layout_->setFormats(text.Formats);
  if (!text.Formats.isEmpty()) layout_->setFont(text.Formats.front().format.font());
  layout_->beginLayout();
  for (QTextLine line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
    line.setLineWidth(width);
    line.setPosition(QPointF(0, line.lineNumber() * pitch + Baseline * pitch - line.ascent()));
  }
  layout_->endLayout();
}

double TextBlock::UsedWidth() const {
  double width = 0;
  for (int i = 0; i < Lines(); ++i) width = std::max(width, layout_->lineAt(i).naturalTextWidth());
  return width;
}

void TextBlock::DrawLines(QPainter& painter, QPointF at, int first, int count) const {
  const QPointF origin = at - QPointF(0, first * pitch_);
  for (int i = first; i < first + count; ++i) layout_->lineAt(i).draw(&painter, origin);
}

TextBlock OneLine(const QString& text, const TextStyle& style, double width, Qt::Alignment align) {
  return TextBlock(ReadInline(text.toStdString(), style), width, Points(style.Size * 1.5), align);
}

}  // namespace qismora::documents
