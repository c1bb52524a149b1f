#pragma once

#include <QPalette>
#include <functional>
#include <vector>

#include "case/Controls.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace qismora {

/// Ties widgets to the controls of a form: each widget shows its control at once and whenever it changes,
/// and what the user enters goes into the control. Widgets and controls live equally long.
class Binder {
 public:
  void Caption(Label& control, QLabel* widget);
  /// A label that shows a result: it is spoken behind the widget's accessible name.
  void SpokenCaption(Label& control, QLabel* widget);
  /// The colour and the border that a label changes while the program runs.
  void Look(Label& control, QLabel* widget);
  void Box(TextBox& control, QLineEdit* widget);
  void Text(TextBox& control, QPlainTextEdit* widget);
  void Check(CheckBox& control, QCheckBox* widget);
  void Choice(ComboBox& control, QComboBox* widget);
  void Box(Frame& control, QGroupBox* widget);
  void Visible(Property<bool>& control, QWidget* widget);
  void Border(Property<int>& control, QLabel* widget);
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
  void Colour(Property<int>& control, QWidget* widget, QPalette::ColorRole text, QPalette::ColorRole ground);

  std::vector<std::function<void()>> colours_;
};

}  // namespace qismora
