#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

class QPainter;
class QWidget;

namespace qismora {

/// A picture of the program's resources, drawn for the size and scale at which it is shown.
class Drawing {
 public:
  explicit Drawing(const QString& name) { Show(name); }
  void Show(const QString& name);

  /// The picture, as large as the place allows. A valid colour replaces those of the picture. The first call
  /// returns nothing and requests an update, so that the window appears before its pictures.
  QPixmap For(QWidget* widget, const QSize& place, const QColor& colour = {});
  /// Paints it into the place and returns the rectangle that it covers.
  QRect Paint(QPainter* painter, QWidget* widget, const QRect& place, Qt::Alignment alignment,
              const QColor& colour = {});

 private:
  QString file_;
  bool asked_ = false;
  QSize place_;
  QColor colour_;
  QPixmap pixmap_;
};

/// The program's icon in the sizes of title bars and task lists; the small ones are drawn with fewer lines.
QIcon ProgramIcon();

}  // namespace qismora
