#include <algorithm>
#include <cctype>

#include "Layout.h"

namespace qismora::documents {

namespace {

constexpr double Padding = Points(8);
constexpr double TitleHeight = Points(19);

/// A column of a worked case: lines of figures under small headings.
struct Column {
  std::vector<TextBlock> Lines;
  std::vector<double> Top;
  double Height = 0;

  void AddHead(const std::string& text, double width) {
    TextStyle style = TableStyle();
    style.Bold = true;
    style.Size = 7.8;
    style.Colour = Accent;
    if (Height > 0) Height += Points(5);
    Push(text, style, width);
  }

  void Push(const std::string& text, const TextStyle& style, double width) {
    Lines.emplace_back(ReadAsWritten(text, style), width, Points(13));
    Top.push_back(Height);
    Height += Lines.back().Height();
  }

  void Draw(QPainter& painter, QPointF at) const {
    for (std::size_t i = 0; i < Lines.size(); ++i) Lines[i].Draw(painter, at + QPointF(0, Top[i]));
  }
};

std::string InCapitals(std::string words) {
  std::ranges::transform(words, words.begin(),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return words;
}

Column Boxes(const WorkedCase& worked, double width) {
  Column column;
  column.AddHead("TYPED INTO THE BOXES", width);
  for (const auto& [box, value] : worked.Boxes) {
    std::string line = box;
    column.Push(line.append(" = ").append(value), TableStyle(), width);
  }
  return column;
}

Column Answer(const WorkedCase& worked, double width) {
  Column column;
  TextStyle quiet = TableStyle();
  quiet.Colour = Grey;
  for (const Played& answer : worked.Answers) {
    column.AddHead("THE PROGRAM ANSWERS: " + InCapitals(answer.Command), width);
    for (const std::string& line : answer.Lines) {
      column.Push(line, line.find('=') == std::string::npos ? quiet : TableStyle(), width);
    }
  }
  return column;
}

}  // namespace

void Layouter::AddCase(const WorkedCase& worked) {
  const double left = ContentWidth * 0.34;
  const Column boxes = Boxes(worked, left - 2 * Padding);
  const Column answer = Answer(worked, ContentWidth - left - 2 * Padding);
  TextStyle style = TableStyle();
  style.Bold = true;
  style.Size = 9.4;
  const TextBlock title(ReadInline("Case " + std::to_string(++cases_) + ". " + worked.Title, style),
                        ContentWidth - 2 * Padding, TitleHeight);

  Piece piece;
  piece.Before = Points(12);
  piece.Height = TitleHeight + std::max(boxes.Height, answer.Height) + 2 * Padding - Points(3);
  const double height = piece.Height;
  piece.Draw = [=](QPainter& painter, QPointF at) {
    painter.fillRect(QRectF(at, QSizeF(ContentWidth, TitleHeight)), Tint);
    painter.setPen(QPen(Rule, Points(0.8)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(at, QSizeF(ContentWidth, height)));
    painter.drawLine(at + QPointF(left, TitleHeight), at + QPointF(left, height));
    title.Draw(painter, at + QPointF(Padding, 0));
    boxes.Draw(painter, at + QPointF(Padding, TitleHeight + Padding - Points(2)));
    answer.Draw(painter, at + QPointF(left + Padding, TitleHeight + Padding - Points(2)));
  };
  pieces_.push_back(piece);
}

void Layouter::AddVerse(const Verse& verse) {
  TextStyle arabic;
  arabic.Size = 14;
  arabic.Colour = Qt::black;
  const TextBlock text(ReadInline(verse.Arabic, arabic), ContentWidth - 2 * Points(16), Points(39));
  TextStyle small = TableStyle();
  small.Colour = Accent;
  small.Bold = true;
  const std::string number = std::to_string(verse.Surah) + ":" + std::to_string(verse.Number);
  const TextBlock name(
      ReadInline("Sūrat " + verse.SurahName + " (" + verse.SurahArabic + ") " + number, small),
      ContentWidth - 2 * Points(16), Points(16));
  Piece piece;
  piece.Before = Points(12);
  // The pause marks over the first line need room.
  piece.Height = text.Height() + name.Height() + Points(19);
  piece.KeepWithNext = true;
  const double height = piece.Height;
  piece.Draw = [=](QPainter& painter, QPointF at) {
    painter.setPen(QPen(Rule, Points(0.8)));
    painter.setBrush(Tint);
    painter.drawRoundedRect(QRectF(at, QSizeF(ContentWidth, height)), Points(5), Points(5));
    name.Draw(painter, at + QPointF(Points(16), Points(6)));
    text.Draw(painter, at + QPointF(Points(16), Points(11) + name.Height()));
  };
  pieces_.push_back(piece);
}

}  // namespace qismora::documents
