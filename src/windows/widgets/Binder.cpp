#include "windows/widgets/Binder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "windows/platform/Utf8.h"
#include "windows/style/Colours.h"

namespace qismora {

void Binder::Colour(Property<int>& control, QWidget* widget, QPalette::ColorRole text,
                    QPalette::ColorRole ground) {
  const auto show = [&control, widget, text, ground] {
    const QPalette desktop = QGuiApplication::palette();
    QPalette own = widget->palette();
    own.setColor(text, InkOf(control, desktop, text, ground));
    widget->setPalette(own);
  };
  control.WhenChanged(show);
  colours_.emplace_back(show);
  if (control > Black) show();
}

void Binder::Recolour() const {
  for (const auto& show : colours_) show();
}

void Binder::Caption(Label& control, QLabel* widget) {
  Follow(control.Caption, [&control, widget] { widget->setText(ToQt(control.Caption.Get())); });
}

void Binder::SpokenCaption(Label& control, QLabel* widget) {
  Caption(control, widget);
  const QString name = widget->accessibleName();
  Follow(control.Caption, [widget, name] {
    const QString words = widget->text();
    const bool both = !name.isEmpty() && !words.isEmpty();
    widget->setAccessibleName(both ? name + QStringLiteral(": ") + words : name + words);
  });
}

void Binder::Look(Label& control, QLabel* widget) {
  Colour(control.ForeColor, widget, QPalette::WindowText, QPalette::Window);
  Border(control.BorderStyle, widget);
}

void Binder::Border(Property<int>& control, QLabel* widget) {
  Follow(control, [&control, widget] {
    widget->setFrameStyle(control == 1 ? int(QFrame::Box) | int(QFrame::Plain) : int(QFrame::NoFrame));
  });
}

void Binder::Box(TextBox& control, QLineEdit* widget) {
  Follow(control.Text, [&control, widget] {
    const QString text = ToQt(control.Text.Get());
    if (widget->text() == text) return;
    if (widget->text().isEmpty()) return widget->setText(text);
    // Unlike a text that is set, one that is put in place of another can be undone.
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

void Binder::Box(Frame& control, QGroupBox* widget) {
  Follow(control.Caption, [&control, widget] { widget->setTitle(ToQt(control.Caption.Get())); });
  Visible(control.Visible, widget);
}

void Binder::Visible(Property<bool>& control, QWidget* widget) {
  if (!control) widget->hide();  // to show what will be shown anyway costs a layout
  control.WhenChanged([&control, widget] { widget->setVisible(control); });
}

void Binder::Enabled(MenuEntry& control, QAction* action) {
  Follow(control.Enabled, [&control, action] { action->setEnabled(control.Enabled); });
}

}  // namespace qismora
