#pragma once

#include <QPainter>
#include <QPdfWriter>
#include <vector>

#include "Layout.h"

namespace qismora::documents {

/// A document of whole pages: a title, a table of contents where it is longer than four pages, and the
/// pieces of its text, each page with its head and its number.
class Pages {
 public:
  Pages(const Source& source, std::vector<Piece> pieces);

  int Count() const { return static_cast<int>(pages_.size()); }
  void Draw(QPdfWriter& writer) const;

 private:
  struct Placed {
    const Piece* What;
    double Top;
  };

  void Paginate(double firstTop);
  void NewPage();
  void Place(const Piece& piece);
  std::size_t ChainEnd(std::size_t from) const;
  double ChainHeight(std::size_t from, std::size_t end) const;

  double TitleHeight() const;
  double ContentsPitch() const;
  double ContentsHeight() const;
  void DrawTitle(QPainter& painter) const;
  void DrawContents(QPainter& painter, double top) const;
  void DrawHeadAndFoot(QPainter& painter, int page) const;

  const Source& source_;
  std::vector<Piece> pieces_;
  std::vector<std::vector<Placed>> pages_;
  double top_ = 0;
  bool contents_ = false;
  struct Entry {
    int Level;
    std::string Text;
    int Page;
  };
  std::vector<Entry> entries_;
};

}  // namespace qismora::documents
