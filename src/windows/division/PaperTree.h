#pragma once

#include <QTextObjectInterface>

#include "windows/division/WrittenTree.h"

class QPainter;

namespace qismora {

/// The family tree as an object of a text document, drawn in black and white: an excluded heir has a
/// dashed frame and a dashed line to the one who excludes him or her. It is drawn as lines and text, so that
/// paper has it at its full resolution.
class PaperTree : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  /// The number of the object's type in the document.
  static constexpr int Type = QTextFormat::UserObject + 1;

  /// Laid out for a page of this size in points.
  PaperTree(const DivisionView& view, const QString& title, const QFont& font, const QSizeF& page,
            QObject* parent);

  /// In points, as it is printed.
  double TextSize() const;

  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  QSizeF Size() const;
  /// A tree that is larger than a page is drawn smaller.
  double Scale() const;
  void DrawLine(QPainter& painter, const TreeLine& line) const;
  void DrawExclusions(QPainter& painter) const;
  void DrawNode(QPainter& painter, const TreeNode& node) const;
  QRectF PlaceOf(const TreeNode& node) const;
  QPointF PlaceOf(const TreePoint& point) const;

  WrittenTree tree_;
  QString title_;
  QFont font_;
  double titleHeight_ = 0;
  QSizeF page_;
};

}  // namespace qismora
