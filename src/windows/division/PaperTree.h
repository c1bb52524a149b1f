#pragma once

#include <QTextObjectInterface>

#include "screens/FamilyTree.h"

class QPainter;

namespace qismora {

/// The family tree as an object of a text document, drawn in black and white: whoever is excluded has a
/// dashed frame. It is drawn as lines and text, so that paper has it at its full resolution.
class PaperTree : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  /// The number of the object's type in the document.
  static constexpr int Type = QTextFormat::UserObject + 1;

  PaperTree(const DivisionView& view, const QString& title, const QFont& font, QObject* parent);

  /// The tree is scaled down where it is wider than this, in the units of the layout.
  void SetWidest(double width) { widest_ = width; }

  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  QSizeF Size() const;
  void DrawNode(QPainter& painter, const TreeNode& node) const;
  QRectF PlaceOf(const TreeNode& node) const;
  QPointF PlaceOf(const TreePoint& point) const;

  const DivisionView& view_;
  QString title_;
  QFont font_;
  double titleHeight_ = 0;
  FamilyTree tree_;
  double widest_ = 0;
};

}  // namespace qismora
