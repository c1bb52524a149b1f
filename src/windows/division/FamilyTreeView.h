#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QWidget>
#include <functional>

#include "screens/FamilyTree.h"

namespace qismora {

/// The family as a tree: each heir with name, heads, share and amount; those who are excluded are paler, with
/// a dashed line to whom they yield. A click or the arrow keys choose an heir.
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

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct Words {
    QString Name;
    QString Receives;
    bool Takes = false;
    int Heads = 0;
  };

  void LayOut();
  void FitPlace();
  QPoint Origin() const;
  QRect RectOf(const TreeNode& node) const;
  void DrawLines(QPainter& painter) const;
  void DrawYields(QPainter& painter) const;
  void DrawNode(QPainter& painter, const TreeNode& node) const;
  void Step(int by);
  QRect InWidget(const QRect& place) const;
  /// Mirrored in a language that is written from the right.
  QPointF Mirrored(const TreePoint& point) const;

  DivisionView view_;
  FamilyTree tree_;
  QHash<int, Words> words_;
  QString deceased_;
  /// A tree that is larger than its place is drawn smaller, as far as it can be read.
  qreal scale_ = 1;
  faraid::Kind chosen_ = faraid::Kind::Remainder;
};

}  // namespace qismora
