#include "Figures.h"

#include <stdexcept>

#include "Layout.h"

namespace qismora::documents {

namespace {

// The trees are laid out in points from the top left corner; nodes are told by their centre and top.
constexpr double NodeWidth = 80;
constexpr double NodeHeight = 58;
// The kinds of class II have longer names; their Urdu stands in the table beside the tree.
constexpr double WideNode = 108;
constexpr double TallNode = 52;

enum class Kind { Man, Woman, Deceased, NoHeir };

class Tree {
 public:
  Tree(const TermTable& terms, QPainter& painter, QPointF at, double width, double height)
      : terms_(terms), painter_(painter), at_(at), width_(width), height_(height) {}

  /// A box with the caption of an heir on the screen, its Arabic and, where there is room, its Urdu, and
  /// where it says, a number.
  void Heir(const std::string& key, Kind kind, double centre, double top, int number = 0) {
    const std::map<std::string, std::string>& term = terms_.at(key);
    Node(term.at("english"), term.at("arabic"), height_ > TallNode ? term.at("urdu") : "", kind, centre, top);
    if (number > 0) Badge(number, centre - width_ / 2, top);
  }

  void Node(const std::string& english, const std::string& arabic, const std::string& urdu, Kind kind,
            double centre, double top) {
    const QRectF box(Point(centre - width_ / 2, top), QSizeF(Points(width_), Points(height_)));
    painter_.setPen(QPen(kind == Kind::NoHeir ? Grey : Accent, Points(0.9),
                         kind == Kind::NoHeir ? Qt::DashLine : Qt::SolidLine));
    painter_.setBrush(kind == Kind::Deceased ? Accent : kind == Kind::Woman ? Tint : QColor(Qt::white));
    const double round = Points(kind == Kind::Woman ? 13 : 1.5);
    painter_.drawRoundedRect(box, round, round);
    const QColor ink = kind == Kind::Deceased ? QColor(Qt::white)
                       : kind == Kind::NoHeir ? Grey
                                              : QColor(Qt::black);
    Text(english, 7.2, ink, box.topLeft() + QPointF(0, Points(4)), 11);
    Text(arabic, 7.4, ink, box.bottomLeft() - QPointF(0, Points(urdu.empty() ? 24 : 41)), 19);
    const QColor second = kind == Kind::Man || kind == Kind::Woman ? Accent : ink;
    if (!urdu.empty()) Text(urdu, 7.4, second, box.bottomLeft() - QPointF(0, Points(23)), 19);
  }

  void Line(double x1, double y1, double x2, double y2) {
    painter_.setPen(QPen(Accent, Points(0.8)));
    painter_.drawLine(Point(x1, y1), Point(x2, y2));
  }

  /// From a parent's foot down to the middle, across, and down to the top of a child.
  void Descent(double parent, double foot, double child, double top) {
    const double middle = (foot + top) / 2;
    Line(parent, foot, parent, middle);
    Line(parent, middle, child, middle);
    Line(child, middle, child, top);
  }

  void Caption(const std::string& text, double left, double top, double width) {
    TextStyle style = TableStyle();
    style.Size = 8;
    style.Colour = Grey;
    TextBlock(ReadInline(text, style), Points(width), Points(12)).Draw(painter_, Point(left, top));
  }

 private:
  QPointF Point(double x, double y) const { return at_ + QPointF(Points(x), Points(y)); }

  void Text(const std::string& text, double size, const QColor& ink, QPointF at, double pitch) {
    TextStyle style = TableStyle();
    style.Size = size;
    style.Colour = ink;
    const double width = Points(width_ - 8);
    TextBlock(ReadInline(text, style), width, Points(pitch), Qt::AlignHCenter)
        .Draw(painter_, at + QPointF(Points(4), 0));
  }

  void Badge(int number, double x, double y) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(Accent);
    painter_.drawEllipse(Point(x, y), Points(8), Points(8));
    TextStyle style = TableStyle();
    style.Size = 7;
    style.Bold = true;
    style.Colour = Qt::white;
    TextBlock(ReadInline(std::to_string(number), style), Points(16), Points(10), Qt::AlignHCenter)
        .Draw(painter_, Point(x - 8, y - 5.4));
  }

  const TermTable& terms_;
  QPainter& painter_;
  QPointF at_;
  double width_;
  double height_;
};

// The rows of the family, from the great grandparents to the great grandchildren.
constexpr double Row = 82;
constexpr double Own = 3 * Row;
constexpr double Deceased = Own + NodeHeight / 2 + 2;
constexpr double Below = Own + 2 * NodeHeight + 30;

void DrawAscendants(Tree& tree) {
  const double foot = NodeHeight;
  tree.Heir("15", Kind::Man, 40, 0);
  tree.Heir("20", Kind::Woman, 128, 0);
  tree.Heir("21", Kind::Woman, 232, 0);
  tree.Heir("18", Kind::Woman, 372, 0);
  tree.Line(80, foot / 2, 88, foot / 2);
  tree.Line(84, foot / 2, 84, Row);
  tree.Line(232, foot, 232, Row);
  tree.Line(372, foot, 372, Row);
  tree.Heir("14", Kind::Man, 84, Row);
  tree.Heir("19", Kind::Woman, 232, Row);
  tree.Heir("17", Kind::Woman, 372, Row);
  tree.Line(124, Row + foot / 2, 192, Row + foot / 2);
  tree.Line(158, Row + foot / 2, 158, 2 * Row);
  tree.Line(372, Row + foot, 372, 2 * Row);
  tree.Heir("13", Kind::Man, 158, 2 * Row);
  tree.Heir("16", Kind::Woman, 372, 2 * Row);
  tree.Line(198, 2 * Row + foot / 2, 332, 2 * Row + foot / 2);
}

void DrawOwnGeneration(Tree& tree) {
  const double parents = 2 * Row + NodeHeight;
  const double second = Own + NodeHeight + 4;
  tree.Descent(146, parents, 40, Own);
  tree.Descent(384, parents, 427, Own);
  tree.Line(250, parents - NodeHeight / 2, 250, parents + 18);
  tree.Line(136, parents + 18, 250, parents + 18);
  tree.Line(136, parents + 18, 136, Own);
  tree.Line(236, parents + 18, 236, Deceased);
  tree.Heir("31", Kind::Man, 40, Own);
  tree.Heir("30", Kind::Woman, 40, second);
  tree.Heir("22", Kind::Man, 136, Own);
  tree.Heir("23", Kind::Woman, 136, second);
  tree.Heir("33", Kind::Man, 427, Own);
  tree.Heir("32", Kind::Woman, 427, second);
  tree.Line(276, second - 2, 292, second - 2);
  tree.Node("The deceased", "الميت", "میت", Kind::Deceased, 236, Deceased);
  tree.Heir("wives", Kind::Woman, 332, Own);
  tree.Heir("husband", Kind::Man, 332, second);
}

void DrawDescendants(Tree& tree) {
  const double foot = NodeHeight;
  const double besideSpouses = Own + 2 * NodeHeight + 4;
  tree.Line(236, Deceased + foot, 236, besideSpouses);
  tree.Descent(236, besideSpouses, 176, Below);
  tree.Descent(236, besideSpouses, 296, Below);
  tree.Heir("2", Kind::Man, 176, Below);
  tree.Heir("3", Kind::Woman, 296, Below);
  tree.Descent(176, Below + foot, 126, Below + Row);
  tree.Descent(176, Below + foot, 226, Below + Row);
  tree.Descent(296, Below + foot, 326, Below + Row);
  tree.Heir("4", Kind::Man, 126, Below + Row);
  tree.Heir("5", Kind::Woman, 226, Below + Row);
  tree.Node("Their children", "ذوو الأرحام", "ذوی الارحام", Kind::NoHeir, 326, Below + Row);
  tree.Descent(126, Below + Row + foot, 76, Below + 2 * Row);
  tree.Descent(126, Below + Row + foot, 176, Below + 2 * Row);
  tree.Heir("6", Kind::Man, 76, Below + 2 * Row);
  tree.Heir("7", Kind::Woman, 176, Below + 2 * Row);
}

void DrawFamily(Tree& tree) {
  DrawAscendants(tree);
  DrawOwnGeneration(tree);
  DrawDescendants(tree);
  tree.Caption(
      "Black is Arabic, green is Urdu. Square corners: men. Round corners: women. Broken line: distant "
      "kindred, who have no box. Of the two spouses only one kind can be alive: wives of a man, the husband "
      "of a woman.",
      260, Below + 2 * Row + 2, 205);
}

constexpr double FamilyHeight = Below + 2 * Row + NodeHeight + 4;

// The male line beyond the brothers: four columns, one generation a row, in the order of succession.
void DrawClassTwo(Tree& tree) {
  const double row = TallNode + 22;
  const double columns[] = {57, 172, 292, 407};
  tree.Heir("14", Kind::Man, columns[2], 0);
  tree.Descent(columns[2], TallNode, 114, row);
  tree.Descent(columns[2], TallNode, columns[2], row);
  tree.Descent(columns[2], TallNode, columns[3], row);
  tree.Heir("13", Kind::Man, 114, row);
  tree.Descent(114, row + TallNode, columns[0], 2 * row);
  tree.Descent(114, row + TallNode, columns[1], 2 * row);
  tree.Heir("22", Kind::Man, columns[0], 2 * row);
  tree.Heir("31", Kind::Man, columns[1], 2 * row);
  for (int i = 0; i < 12; ++i) {
    const bool uncle = i >= 4;
    const double centre = columns[(uncle ? 2 : 0) + i % 2];
    const int place = uncle ? 1 + (i - 4) / 2 : 3 + i / 2;
    if (i != 4 && i != 5) tree.Line(centre, (place - 1) * row + TallNode, centre, place * row);
    tree.Heir("classII-" + std::to_string(i), Kind::Man, centre, place * row, i + 1);
  }
  tree.Caption(
      "The numbers are the order of succession. The first of them who is alive takes the whole residue, with "
      "all who are his equals, and shuts out the rest. The brothers come before all of them.",
      0, 2, 190);
}

constexpr double ClassTwoHeight = 4 * (TallNode + 22) + TallNode + 4;

}  // namespace

double FigureHeight(const std::string& name) {
  if (name == "family") return Points(FamilyHeight);
  if (name == "class-two") return Points(ClassTwoHeight);
  throw std::runtime_error("no figure " + name);
}

void DrawFigure(const std::string& name, const TermTable& terms, QPainter& painter, QPointF at) {
  const bool family = name == "family";
  Tree tree(terms, painter, at, family ? NodeWidth : WideNode, family ? NodeHeight : TallNode);
  if (family) {
    DrawFamily(tree);
  } else {
    DrawClassTwo(tree);
  }
}

}  // namespace qismora::documents
