#include "Layout.h"

#include <sstream>
#include <stdexcept>

#include "Figures.h"

namespace qismora::documents {

namespace {

constexpr double BoxPadding = Points(9);

TextStyle HeadingStyle(int level) {
  TextStyle style;
  style.Family = Face::Sans;
  style.Bold = true;
  style.Colour = Accent;
  style.Size = level == 1 ? 16.5 : level == 2 ? 12.6 : 10.8;
  style.ArabicScale = 1.15;
  return style;
}

/// The text of a heading without its marks and its Arabic, which have no place in a table of contents.
std::string PlainHeading(std::string text) {
  const std::size_t open = text.find(" (");
  if (open != std::string::npos && text.find_first_of("\xd8\xd9\xda\xdb", open) != std::string::npos) {
    text.resize(open);
  }
  std::erase(text, '*');
  return text;
}

/// A text on a tinted ground with a bar at its left.
Piece TintedBox(const TextBlock& text, double before) {
  Piece piece;
  piece.Before = before;
  piece.Height = text.Height() + 2 * BoxPadding - Points(4);
  const double height = piece.Height;
  piece.Draw = [text, height](QPainter& painter, QPointF at) {
    painter.fillRect(QRectF(at, QSizeF(ContentWidth, height)), Tint);
    painter.fillRect(QRectF(at, QSizeF(Points(3), height)), Accent);
    text.Draw(painter, at + QPointF(BoxPadding + Points(4), BoxPadding - Points(2)));
  };
  return piece;
}

}  // namespace

TextStyle TableStyle() {
  TextStyle style;
  style.Family = Face::Sans;
  style.Size = 8.9;
  style.ArabicScale = 1.42;
  return style;
}

std::vector<Piece> Layouter::Run(const Source& source) {
  for (const Block& block : source.Blocks) {
    Add(block);
    afterListItem_ = block.Kind == BlockKind::Bullet || block.Kind == BlockKind::Numbered;
  }
  return std::move(pieces_);
}

void Layouter::Add(const Block& block) {
  const std::size_t before = pieces_.size();
  switch (block.Kind) {
    case BlockKind::Heading:
      return AddHeading(block);
    case BlockKind::Paragraph:
      return AddParagraph(block);
    case BlockKind::Bullet:
    case BlockKind::Numbered:
      return AddListItem(block);
    case BlockKind::Note:
      return AddNote(block);
    case BlockKind::Table:
      return AddTable(block.Rows, block.Widths);
    case BlockKind::Case:
      return AddCase(block.Case);
    case BlockKind::VerseText:
      return AddVerse(block.Ayah);
    case BlockKind::Figure:
      return AddFigure(block.Text);
    case BlockKind::Terms:
      return AddTerms(block.Text);
    case BlockKind::PageBreak:
      pieces_.emplace_back();
      pieces_[before].BreakBefore = true;
      pieces_[before].KeepWithNext = true;
      pieces_[before].Draw = [](QPainter&, QPointF) {};
  }
}

void Layouter::AddHeading(const Block& block) {
  const TextStyle style = HeadingStyle(block.Level);
  const TextBlock text(ReadInline(block.Text, style), ContentWidth, Points(style.Size * 1.42));
  Piece piece;
  const bool underHeading = !pieces_.empty() && pieces_.back().HeadingLevel > 0;
  piece.Before = Points(underHeading ? 4 : block.Level == 1 ? 24 : block.Level == 2 ? 17 : 12);
  piece.Height = text.Height() + Points(block.Level == 1 ? 7 : 1);
  piece.KeepWithNext = true;
  piece.HeadingLevel = block.Level;
  piece.Heading = PlainHeading(block.Text);
  const bool line = block.Level == 1;
  piece.Draw = [text, line](QPainter& painter, QPointF at) {
    text.Draw(painter, at);
    if (line)
      painter.fillRect(QRectF(at.x(), at.y() + text.Height() + Points(2), ContentWidth, Points(0.8)), Rule);
  };
  pieces_.push_back(piece);
}

void Layouter::AddLines(const TextBlock& text, double before, double left) {
  const int lines = text.Lines();
  for (int i = 0; i < lines; ++i) {
    Piece piece;
    piece.Before = i == 0 ? before : 0;
    piece.Height = text.Pitch();
    piece.KeepWithNext = lines > 1 && (i == 0 || i == lines - 2);
    piece.Draw = [text, left, i](QPainter& painter, QPointF at) {
      text.DrawLines(painter, at + QPointF(left, 0), i, 1);
    };
    pieces_.push_back(piece);
  }
}

void Layouter::AddParagraph(const Block& block) {
  // A paragraph that ends in a colon belongs to what it announces.
  const std::size_t last = block.Text.find_last_not_of('*');
  const bool announces = last != std::string::npos && block.Text[last] == ':';
  AddLines(TextBlock(ReadInline(block.Text, TextStyle()), ContentWidth, BodyPitch), Points(7.5), 0);
  if (announces) pieces_.back().KeepWithNext = true;
}

void Layouter::AddListItem(const Block& block) {
  const double indent = Points(block.Kind == BlockKind::Bullet ? 15 : 20);
  const TextBlock text(ReadInline(block.Text, TextStyle()), ContentWidth - indent, BodyPitch);
  const QString mark = block.Kind == BlockKind::Bullet ? QString(u'•') : QString::number(block.Level) + ".";
  TextStyle style;
  style.Colour = Accent;
  style.Bold = true;
  const TextBlock sign(ReadInline(mark.toStdString(), style), indent, BodyPitch);
  const std::size_t first = pieces_.size();
  AddLines(text, Points(afterListItem_ ? 3 : 7), indent);
  Piece& piece = pieces_[first];
  piece.Draw = [draw = piece.Draw, sign](QPainter& painter, QPointF at) {
    sign.Draw(painter, at + QPointF(Points(2), 0));
    draw(painter, at);
  };
}

void Layouter::AddNote(const Block& block) {
  TextStyle style;
  style.Size = 9.8;
  const double width = ContentWidth - 2 * BoxPadding - Points(6);
  pieces_.push_back(TintedBox(TextBlock(ReadInline(block.Text, style), width, Points(14.8)), Points(11)));
}

void Layouter::AddFigure(const std::string& name) {
  Piece piece;
  piece.Before = Points(12);
  piece.Height = FigureHeight(name);
  piece.Draw = [&terms = terms_, name](QPainter& painter, QPointF at) {
    DrawFigure(name, terms, painter, at);
  };
  pieces_.push_back(piece);
}

void Layouter::AddTerms(const std::string& keys) {
  std::vector<std::vector<std::string>> rows = {{"On the screen", "Who it is", "Arabic", "Urdu"}};
  std::istringstream in(keys);
  for (std::string key; in >> key;) {
    const auto found = terms_.find(key);
    if (found == terms_.end()) throw std::runtime_error("no term " + key);
    const std::map<std::string, std::string>& term = found->second;
    rows.push_back({term.at("english"), term.at("meaning"),
                    term.at("arabic") + "<br>*" + term.at("arabic_latin") + "*",
                    term.at("urdu") + "<br>*" + term.at("urdu_latin") + "*"});
  }
  if (!pieces_.empty()) pieces_.back().KeepWithNext = true;
  AddTable(rows, {9, 11, 11, 11});
}

}  // namespace qismora::documents
