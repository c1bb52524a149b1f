#pragma once

#include <QPainter>
#include <functional>
#include <memory>
#include <vector>

#include "Source.h"
#include "Terms.h"
#include "TextBlock.h"

namespace qismora::documents {

// The page, A4.
inline constexpr double PageWidth = Points(595.28);
inline constexpr double PageHeight = Points(841.89);
inline constexpr double Margin = Points(64);
inline constexpr double ContentWidth = PageWidth - 2 * Margin;
inline constexpr double ContentTop = Points(70);
inline constexpr double ContentBottom = Points(782);

/// What cannot be parted by the end of a page: a line, a row, a box, a picture.
struct Piece {
  /// The room above it, which falls away at the top of a page.
  double Before = 0;
  double Height = 0;
  /// The page must not end behind it.
  bool KeepWithNext = false;
  bool BreakBefore = false;
  /// Draws it with its top left corner at the point.
  std::function<void(QPainter&, QPointF)> Draw;
  /// For the table of contents.
  int HeadingLevel = 0;
  std::string Heading;
  /// The heads of a table, drawn again above a row that comes first on its page.
  std::shared_ptr<const Piece> Repeat;
};

/// Turns the blocks of a source into pieces, from top to bottom.
class Layouter {
 public:
  explicit Layouter(const TermTable& terms) : terms_(terms) {}

  std::vector<Piece> Run(const Source& source);

 private:
  void Add(const Block& block);
  void AddHeading(const Block& block);
  void AddParagraph(const Block& block);
  void AddListItem(const Block& block);
  void AddNote(const Block& block);
  void AddTable(const std::vector<std::vector<std::string>>& rows, const std::vector<int>& widths);
  void AddCase(const WorkedCase& worked);
  void AddVerse(const Verse& verse);
  void AddFigure(const std::string& name);
  void AddTerms(const std::string& keys);

  /// Adds the lines of a text one by one, and lets neither its first nor its last stand alone.
  void AddLines(const TextBlock& text, double before, double left);

  const TermTable& terms_;
  std::vector<Piece> pieces_;
  int cases_ = 0;
  bool afterListItem_ = false;
};

/// A text in a cell or a box, drawn in the size of tables.
TextStyle TableStyle();
inline constexpr double BodyPitch = Points(15.6);
inline constexpr double TablePitch = Points(13.6);

}  // namespace qismora::documents
