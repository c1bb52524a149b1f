#include <algorithm>
#include <numeric>

#include "Layout.h"

namespace qismora::documents {

namespace {

constexpr double CellPadding = Points(5);
constexpr std::size_t ShortTable = 7;

/// The cells of a row with the place of each.
struct Row {
  std::vector<TextBlock> Cells;
  std::vector<double> Left;
  double Height = 0;
};

Row MakeRow(const std::vector<std::string>& cells, const std::vector<double>& widths,
            const TextStyle& style) {
  Row row;
  double left = 0;
  double text = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    row.Cells.emplace_back(ReadInline(cells[i], style), widths[i] - 2 * CellPadding, TablePitch,
                           Qt::AlignLeft | Qt::AlignAbsolute);
    row.Left.push_back(left + CellPadding);
    left += widths[i];
    text = std::max(text, row.Cells.back().Height());
  }
  row.Height = text + 2 * Points(3);
  return row;
}

Piece RowPiece(const Row& row, bool head) {
  Piece piece;
  piece.Height = row.Height;
  piece.Draw = [row, head](QPainter& painter, QPointF at) {
    if (head) painter.fillRect(QRectF(at, QSizeF(ContentWidth, row.Height)), Accent);
    for (std::size_t i = 0; i < row.Cells.size(); ++i) {
      row.Cells[i].Draw(painter, at + QPointF(row.Left[i], Points(3)));
    }
    if (!head)
      painter.fillRect(QRectF(at.x(), at.y() + row.Height - Points(0.6), ContentWidth, Points(0.6)), Rule);
  };
  return piece;
}

}  // namespace

void Layouter::AddTable(const std::vector<std::vector<std::string>>& rows, const std::vector<int>& widths) {
  const double sum = std::accumulate(widths.begin(), widths.end(), 0.0);
  std::vector<double> absolute;
  absolute.reserve(widths.size());
  for (const int width : widths) absolute.push_back(ContentWidth * width / sum);

  TextStyle headStyle = TableStyle();
  headStyle.Bold = true;
  headStyle.Colour = Qt::white;
  Piece head = RowPiece(MakeRow(rows.front(), absolute, headStyle), true);
  head.Before = Points(11);
  head.KeepWithNext = true;
  pieces_.push_back(head);
  const auto repeat = std::make_shared<const Piece>(head);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    Piece piece = RowPiece(MakeRow(rows[i], absolute, TableStyle()), false);
    piece.Repeat = repeat;
    // A short table stays on one page; of a long one neither the first nor the last row stands alone.
    const bool within = rows.size() <= ShortTable || i == 1 || i + 2 == rows.size();
    piece.KeepWithNext = within && i + 1 < rows.size();
    pieces_.push_back(piece);
  }
  pieces_.back().Height += Points(4);
}

}  // namespace qismora::documents
