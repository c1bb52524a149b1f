#pragma once

#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QString>

#include "windows/widgets/CaptionLabel.h"

namespace qismora {

/// A picture of the program's resources, drawn for the size and scale at which it is shown. There may be
/// none of that name.
class Drawing {
 public:
  void Show(const QString& name);
  bool Exists() const { return !file_.isEmpty(); }

  /// As large as the box allows; an ink colours the whole picture, as writing is coloured. At the first
  /// painting it is still empty: the window shall stand before its pictures are read.
  QPixmap For(QWidget* widget, const QSize& box, const QColor& ink);

 private:
  void Make(const QSize& box, qreal scale, const QColor& ink);

  QString file_;
  bool asked_ = false;
  QSize box_;
  QColor ink_;
  QPixmap pixmap_;
};

/// The program's icon in the sizes of title bars and task lists; the small ones are drawn with fewer lines.
QIcon ProgramIcon();

enum class Ink { Own, Text };

/// A label that shows a picture.
class PictureLabel : public CaptionLabel {
 public:
  PictureLabel(const QString& name, const QString& picture, Ink ink, QWidget* parent);

  bool HasPicture() const { return drawing_.Exists(); }
  /// Where the picture is drawn; empty before that.
  QRect PictureRect() const { return place_; }
  /// Gives the label the face of a button with its picture and its text.
  void Raise() { raised_ = true; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintButton();

  Drawing drawing_;
  Ink ink_;
  QRect place_;
  bool raised_ = false;
};

/// A push button with a picture beside its text.
class PictureButton : public QPushButton {
 public:
  PictureButton(const QString& name, const QString& text, QWidget* parent);

  void ShowPicture(const QString& name);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
};

}  // namespace qismora
