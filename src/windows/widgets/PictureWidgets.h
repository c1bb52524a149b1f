#pragma once

#include <QLabel>
#include <QPushButton>

#include "windows/style/Pictures.h"
#include "windows/widgets/CaptionButton.h"

namespace qismora {

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
