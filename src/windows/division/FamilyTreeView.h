#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <array>
#include <functional>

#include "windows/division/WrittenTree.h"

namespace qismora {

/// The family as a tree: each heir with name, heads, share and amount; excluded heirs are paler, with a
/// dashed line to the heir who excludes them. A tree that does not fit its place takes a smaller text, down
/// to what can be read well; then it is larger than its place. A click or the arrow keys choose an heir.
class FamilyTreeView : public QWidget {
  Q_DECLARE_TR_FUNCTIONS(FamilyTreeView)

 public:
  explicit FamilyTreeView(QWidget* parent);

  void Show(const DivisionView& view);
  /// Emphasises an heir, and the line to the one who excludes him or her; the remainder emphasises nobody.
  void Choose(faraid::Kind heir);
  /// Raised when the user has chosen an heir.
  std::function<void(faraid::Kind)> Chosen;
  QRect PlaceOf(faraid::Kind heir) const;
  QRect PlaceOfDeceased() const;

  /// How high it is in the width that it has: with text in the size of the font, and in the smallest size.
  int FullHeight() const;
  int LeastHeight() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The tree with its text in one of the sizes, laid out when it is first needed.
  struct Sized {
    bool IsLaidOut = false;
    TextRuler Ruler;
    WrittenTree Tree;
  };
  static constexpr std::size_t Sizes = 3;

  void LayOut();
  void ChooseSize();
  const Sized& InSize(std::size_t size) const;
  const WrittenTree& Tree() const { return InSize(size_).Tree; }
  int HeightIn(std::size_t size) const;
  bool FitsIn(std::size_t size, const QSize& place) const;
  QSize Place() const;
  QPoint Origin() const;
  QRect RectOf(const TreeNode& node) const;
  void DrawLines(QPainter& painter) const;
  void DrawExclusions(QPainter& painter) const;
  void DrawNode(QPainter& painter, const TreeNode& node) const;
  void DrawText(QPainter& painter, const TreeNode& node, const QRectF& place) const;
  void DrawArrow(QPainter& painter, const TreeLine& line, const QColor& colour) const;
  void Step(int by);
  void SayChosen();
  /// Mirrored in a language that is written from the right.
  QPointF Mirrored(const TreePoint& point) const;

  WrittenTree written_;
  /// The width for which it is laid out.
  int laidOutFor_ = 0;
  mutable std::array<Sized, Sizes> sized_;
  /// The size that is shown.
  std::size_t size_ = 0;
  faraid::Kind chosen_ = faraid::Kind::Remainder;
};

}  // namespace qismora
