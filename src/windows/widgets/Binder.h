#pragma once

#include <QPalette>
#include <functional>
#include <vector>

#include "case/Controls.h"
#include "windows/platform/Utf8.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace qismora {

/// Binds widgets to the controls of a form. A widget shows its control now and whenever it changes, and what
/// the user enters goes into the control. Controls outlive their widgets.
class Binder {
 public:
  /// The text of a label or a button.
  template <class Widget>
  static void Caption(Label& control, Widget* widget) {
    Follow(control.Caption, [&control, widget] { widget->setText(ToQt(control.Caption.Get())); });
  }
  /// Makes a caption that names a field.
  static QLabel* FieldCaption(Label& control, const QString& name, QWidget* field);
  /// A text that the program writes. Screen readers read it after the widget's accessible name.
  template <class Widget>
  static void Result(Label& control, Widget* widget) {
    Follow(control.Caption, [&control, widget, name = widget->accessibleName()] {
      const QString words = ToQt(control.Caption.Get());
      widget->setText(words);
      const bool both = !name.isEmpty() && !words.isEmpty();
      widget->setAccessibleName(both ? name + QStringLiteral(": ") + words : name + words);
    });
  }
  /// The text colour of a label, which may change while the program runs.
  void TextColour(Label& control, QWidget* widget);
  void Field(TextBox& control, QLineEdit* widget);
  void Text(TextBox& control, QPlainTextEdit* widget);
  void Check(CheckBox& control, QCheckBox* widget);
  void Choice(ComboBox& control, QComboBox* widget);
  void Group(Frame& control, QGroupBox* widget);
  void Visible(Property<bool>& control, QWidget* widget);
  void Enabled(MenuEntry& control, QAction* action);

  /// Shows a property now, and again whenever it changes.
  template <class Value>
  static void Follow(Property<Value>& property, const std::function<void()>& show) {
    show();
    property.WhenChanged(show);
  }

  /// To be called when the colours of the desktop have changed.
  void Recolour() const;

 private:
  void Colour(Property<int>& control, QWidget* widget, QPalette::ColorRole text,
              QPalette::ColorRole background);

  std::vector<std::function<void()>> colours_;
};

}  // namespace qismora
