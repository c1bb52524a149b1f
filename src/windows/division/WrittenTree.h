#pragma once

#include <QHash>
#include <QPolygonF>
#include <QString>
#include <QStringList>

#include "division/FamilyTree.h"
#include "windows/division/TextRuler.h"

namespace qismora {

/// What a node of the tree says of an heir.
struct TreeText {
  /// "2 Daughters".
  QString Name;
  /// Share and amount, or why there is none: "yields to a son".
  QString Receives;
  bool Takes = false;
  int Heads = 0;
};

/// The family tree with its texts, laid out so that all of them can be read in a font.
class WrittenTree {
 public:
  /// The space around texts and between nodes.
  struct Spacing {
    int AcrossText;
    int DownText;
    int LeastWidth;
    int Gap;
    int RowGap;
    int Link;
  };

  explicit WrittenTree(const DivisionView& view = {});

  /// Breaks texts in two if the tree would otherwise be wider than this, or much higher. It may still be
  /// wider.
  void LayOut(const TextRuler& ruler, const Spacing& spacing, int widest);
  /// Draws the lines of the excluded heirs into the tree that is laid out, once. They take the most time.
  void DrawExclusions();

  const FamilyTree& Tree() const { return tree_; }
  const QString& Deceased() const { return deceased_; }
  const TreeText& Of(const TreeNode& node) const { return texts_.find(static_cast<int>(node.Heir)).value(); }
  /// The lines of text in a node, one below the other.
  QStringList LinesIn(const TreeNode& node) const;

 private:
  /// The texts of the nodes in lines.
  struct Lines {
    QStringList Deceased;
    QHash<int, QStringList> Heirs;
  };
  /// Which texts may be broken in two: none, all but the reasons of those who receive nothing, or all.
  enum class Broken { None, NotReasons, All };
  Lines Write(const TextRuler& ruler, const Spacing& spacing, Broken broken, TreeMetrics& metrics) const;

  DivisionView view_;
  FamilyTree tree_;
  TreeMetrics metrics_;
  bool hasExclusions_ = false;
  QString deceased_;
  QHash<int, TreeText> texts_;
  Lines lines_;
};

/// The head of an arrow that ends at a point and comes from another one.
QPolygonF ArrowAt(const QPointF& end, const QPointF& from, qreal size);

}  // namespace qismora
