#pragma once

#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

#include "windows/widgets/CaptionButton.h"

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

/// A picture without an action.
class PictureLabel : public QLabel {
 public:
  PictureLabel(const QString& name, const QString& picture, const QString& accessibleName, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
};

/// Whether a picture is drawn in its own colours or in that of text.
enum class Colours { OfPicture, OfText };

/// A picture that acts like a caption.
class PictureButton : public CaptionButton {
 public:
  PictureButton(const QString& name, const QString& picture, Colours colours, Gesture gesture,
                const QString& action, QWidget* parent);

  /// Where the picture is drawn; empty before that.
  QRect PictureRect() const { return painted_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
  Colours colours_;
  QRect painted_;
};

/// A push button with a picture beside its text. Return presses it like Space.
class IconButton : public QPushButton {
 public:
  IconButton(const QString& name, const QString& picture, const QString& text, QWidget* parent);

  void ShowPicture(const QString& name);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
};

}  // namespace qismora
