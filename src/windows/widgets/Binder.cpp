#include "windows/widgets/Binder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "windows/style/Colours.h"

namespace qismora {

void Binder::Colour(Property<int>& control, QWidget* widget, QPalette::ColorRole text,
                    QPalette::ColorRole background) {
  const auto show = [&control, widget, text, background] {
    const QPalette desktop = QGuiApplication::palette();
    QPalette own = widget->palette();
    own.setColor(text, TextColourOf(control, desktop, text, background));
    widget->setPalette(own);
  };
  control.WhenChanged(show);
  colours_.emplace_back(show);
  if (control > Black) show();
}

void Binder::Recolour() const {
  for (const auto& show : colours_) show();
}

QLabel* Binder::FieldCaption(Label& control, const QString& name, QWidget* field) {
  auto* caption = new QLabel(field->parentWidget());
  caption->setObjectName(name);
  caption->setAccessibleName(field->accessibleName());
  caption->setTextFormat(Qt::PlainText);
  caption->setBuddy(field);
  Caption(control, caption);
  return caption;
}

void Binder::TextColour(Label& control, QWidget* widget) {
  Colour(control.ForeColor, widget, QPalette::WindowText, QPalette::Window);
}

void Binder::Field(TextBox& control, QLineEdit* widget) {
  Follow(control.Text, [&control, widget] {
    const QString text = ToQt(control.Text.Get());
    if (widget->text() == text) return;
    if (widget->text().isEmpty()) return widget->setText(text);
    // Unlike setText, an insertion can be undone.
    widget->selectAll();
    widget->insert(text);
  });
  QObject::connect(widget, &QLineEdit::textChanged, widget,
                   [&control](const QString& text) { control.Text = FromQt(text); });
  Colour(control.ForeColor, widget, QPalette::Text, QPalette::Base);
  control.FocusWanted = [widget] {
    widget->setFocus(Qt::TabFocusReason);
    widget->selectAll();  // what is typed next replaces what was wrong
  };
}

void Binder::Text(TextBox& control, QPlainTextEdit* widget) {
  Follow(control.Text, [&control, widget] { widget->setPlainText(ToQtLines(control.Text.Get())); });
  Visible(control.Visible, widget);
  Colour(control.ForeColor, widget, QPalette::Text, QPalette::Base);
}

void Binder::Check(CheckBox& control, QCheckBox* widget) {
  Follow(control.Caption, [&control, widget] { widget->setText(ToQt(control.Caption.Get())); });
  Follow(control.Value,
         [&control, widget] { widget->setCheckState(control.Value == 1 ? Qt::Checked : Qt::Unchecked); });
  QObject::connect(widget, &QCheckBox::toggled, widget,
                   [&control](bool ticked) { control.Value = ticked ? 1 : 0; });
}

void Binder::Choice(ComboBox& control, QComboBox* widget) {
  for (const std::string& entry : control.List) widget->addItem(ToQt(entry));
  Follow(control.ListIndex, [&control, widget] { widget->setCurrentIndex(control.ListIndex); });
  QObject::connect(widget, &QComboBox::currentIndexChanged, widget,
                   [&control](int index) { control.ListIndex = index; });
}

void Binder::Group(Frame& control, QGroupBox* widget) {
  Follow(control.Caption, [&control, widget] { widget->setTitle(ToQt(control.Caption.Get())); });
  Visible(control.Visible, widget);
}

void Binder::Visible(Property<bool>& control, QWidget* widget) {
  if (!control) widget->hide();  // showing it explicitly would cost a layout
  control.WhenChanged([&control, widget] { widget->setVisible(control); });
}

void Binder::Enabled(MenuEntry& control, QAction* action) {
  Follow(control.Enabled, [&control, action] { action->setEnabled(control.Enabled); });
}

}  // namespace qismora
