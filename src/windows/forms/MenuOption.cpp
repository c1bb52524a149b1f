#include "windows/forms/MenuOption.h"

#include <QButtonGroup>
#include <QKeyEvent>

#include "windows/platform/Utf8.h"
#include "windows/widgets/Binder.h"

namespace qismora {

namespace {

constexpr int rowMargin = 9;

}  // namespace

MenuOption::MenuOption(OptionButton& control, const QString& name, QWidget* parent)
    : QRadioButton(parent), control_(control) {
  setText(ToQt(control.Caption));
  setObjectName(name);
  setAccessibleName(WithoutMnemonics(control.Caption));
  // The form clears the other buttons itself, so Qt must not: each button has its own group.
  auto* group = new QButtonGroup(this);
  group->setExclusive(false);
  group->addButton(this);
  Binder::Follow<bool>(control.Visible, [this] { setVisible(control_.Visible); });
  Binder::Follow<bool>(control.Value, [this] { setChecked(control_.Value); });
  Binder::Follow<int>(control.BackColor, [this] { Colour(); });
  // The command may open a modal message box, and a screen reader must not wait for the answer.
  connect(this, &QRadioButton::toggled, this, [this](bool on) {
    if (!on || control_.Value || !Chosen) return;
    QMetaObject::invokeMethod(
        this, [this] { Chosen(); }, Qt::QueuedConnection);
  });
}

QSize MenuOption::sizeHint() const {
  return {QRadioButton::sizeHint().width(), fontMetrics().height() + rowMargin};
}

// A highlighted entry is bright in every theme, so its text is dark.
void MenuOption::Colour() {
  const int colour = control_.BackColor;
  const bool own = colour >= Black;
  setAutoFillBackground(own);
  QPalette palette;
  if (own) {
    palette = QPalette(QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
  }
  setPalette(palette);
}

void MenuOption::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!event->isAutoRepeat()) click();
      return;
    case Qt::Key_Up:
    case Qt::Key_Left:
      focusNextPrevChild(false);
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      focusNextPrevChild(true);
      return;
    default:
      QRadioButton::keyPressEvent(event);
  }
}

void MenuOption::enterEvent(QEnterEvent* event) {
  QRadioButton::enterEvent(event);
  if (MouseOn) MouseOn();
}

void MenuOption::leaveEvent(QEvent* event) {
  QRadioButton::leaveEvent(event);
  if (MouseOff) MouseOff();
}

QString WithoutMnemonics(const std::string& caption) {
  return ToQt(caption).replace(QLatin1String("&&"), QLatin1String("&"));
}

}  // namespace qismora
