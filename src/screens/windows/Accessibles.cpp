#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>

#include "screens/windows/CaptionLabel.h"

namespace qismora {

namespace {

class CaptionAccessible : public QAccessibleWidget {
 public:
  explicit CaptionAccessible(CaptionLabel* label) : QAccessibleWidget(label), label_(label) {}

  QAccessible::Role role() const override {
    return label_->Acts() ? QAccessible::Button : QAccessible::StaticText;
  }

  QString text(QAccessible::Text kind) const override {
    QString words = QAccessibleWidget::text(kind);
    if (!words.isEmpty()) return words;
    if (kind == QAccessible::Name) return label_->text();
    if (kind == QAccessible::Description) return label_->Words();
    return words;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (label_->Acts()) names.prepend(pressAction());
    return names;
  }

  // The action may open a modal box; whoever pressed must not wait for its answer.
  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    QCoreApplication::postEvent(label_, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
  }

 private:
  CaptionLabel* label_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* label = dynamic_cast<CaptionLabel*>(object);
  return label == nullptr ? nullptr : new CaptionAccessible(label);
}

}  // namespace

void MakeCaptionsAccessible() {
  QAccessible::installFactory(MakeInterface);  // the same factory is taken only once
}

}  // namespace qismora
