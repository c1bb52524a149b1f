#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>

#include "windows/casestudy/SavePanel.h"
#include "windows/forms/MenuOption.h"
#include "windows/forms/VideoPanel.h"
#include "windows/widgets/CaptionLabel.h"

namespace qismora {

namespace {

/// A widget that Return sets going. To a screen reader it is something to be pressed.
class PressAccessible : public QAccessibleWidget {
 public:
  PressAccessible(QWidget* pressed, QAccessible::Role role) : QAccessibleWidget(pressed, role) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    names.prepend(pressAction());
    return names;
  }

  // The action may open a modal box; whoever pressed must not wait for its answer.
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    QCoreApplication::postEvent(widget(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
  }
};

class CaptionAccessible : public PressAccessible {
 public:
  explicit CaptionAccessible(CaptionLabel* label)
      : PressAccessible(label, QAccessible::Button), label_(label) {}

  QAccessible::Role role() const override {
    return label_->Acts() ? QAccessible::Button : QAccessible::StaticText;
  }

  QString text(QAccessible::Text kind) const override {
    QString words = PressAccessible::text(kind);
    if (!words.isEmpty()) return words;
    if (kind == QAccessible::Name) return label_->text();
    if (kind == QAccessible::Description) return label_->Words();
    return words;
  }

  QStringList actionNames() const override {
    QStringList names = PressAccessible::actionNames();
    if (!label_->Acts()) names.removeAll(pressAction());
    return names;
  }

 private:
  CaptionLabel* label_;
};

// The toolkit would call it a check box, since the form itself clears the group.
class OptionAccessible : public PressAccessible {
 public:
  explicit OptionAccessible(MenuOption* option)
      : PressAccessible(option, QAccessible::RadioButton), option_(option) {}

  QAccessible::State state() const override {
    QAccessible::State state = PressAccessible::state();
    state.checkable = true;
    state.checked = option_->isChecked();
    return state;
  }

 private:
  MenuOption* option_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  if (auto* label = dynamic_cast<CaptionLabel*>(object)) return new CaptionAccessible(label);
  if (auto* option = dynamic_cast<MenuOption*>(object)) return new OptionAccessible(option);
  if (auto* saves = dynamic_cast<SavePanel*>(object))
    return new QAccessibleWidget(saves, QAccessible::Notification);
  if (auto* video = dynamic_cast<VideoPanel*>(object)) return new PressAccessible(video, QAccessible::Button);
  return nullptr;
}

}  // namespace

void MakeAccessible() {
  QAccessible::installFactory(MakeInterface);  // the same factory is taken only once
}

}  // namespace qismora
