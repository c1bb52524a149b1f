#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>

#include "windows/division/WrittenTree.h"

namespace qismora {

/// The family as a tree: each heir with name, heads, share and amount; those who are excluded are paler, with
/// a dashed line to whom they yield. Text keeps the size of the font: a tree that is wider than its place
/// becomes higher. A click or the arrow keys choose an heir.
class FamilyTreeView : public QWidget {
  Q_DECLARE_TR_FUNCTIONS(FamilyTreeView)

 public:
  explicit FamilyTreeView(QWidget* parent);

  void Show(const DivisionView& view);
  /// Emphasises an heir and the line to whom he or she yields; the remainder emphasises nobody.
  void Choose(faraid::Kind heir);
  /// Raised when the user has chosen an heir.
  std::function<void(faraid::Kind)> Chosen;
  QRect PlaceOf(faraid::Kind heir) const;
  QRect PlaceOfDeceased() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LayOut();
  int PlaceWidth() const;
  QPoint Origin() const;
  QRect RectOf(const TreeNode& node) const;
  void DrawLines(QPainter& painter) const;
  void DrawYields(QPainter& painter) const;
  void DrawNode(QPainter& painter, const TreeNode& node) const;
  void DrawText(QPainter& painter, const TreeNode& node, const QRectF& place) const;
  void DrawArrow(QPainter& painter, const TreeLine& line, const QColor& colour) const;
  void Step(int by);
  void SayChosen();
  /// Mirrored in a language that is written from the right.
  QPointF Mirrored(const TreePoint& point) const;

  WrittenTree tree_;
  /// The width for which it is laid out.
  int laidOutFor_ = 0;
  faraid::Kind chosen_ = faraid::Kind::Remainder;
};

}  // namespace qismora
