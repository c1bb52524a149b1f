#include "windows/widgets/AnnouncedLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>

namespace qismora {

namespace {

QAccessibleInterface* NotificationInterface(const QString&, QObject* object) {
  auto* label = dynamic_cast<AnnouncedLabel*>(object);
  return label == nullptr ? nullptr : new QAccessibleWidget(label, QAccessible::Notification);
}

}  // namespace

AnnouncedLabel::AnnouncedLabel(const QString& name, QWidget* parent) : QLabel(parent) {
  QAccessible::installFactory(NotificationInterface);  // once more changes nothing
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void AnnouncedLabel::Show(const QString& words, bool announce) {
  if (words == text()) return;
  SetWords(words);
  if (announce && !words.isEmpty()) Announce();
}

void AnnouncedLabel::SetWords(const QString& words) {
  setText(words);
  setToolTip(words);
  setAccessibleName(words);
}

// A screen reader announces a notification when it appears.
void AnnouncedLabel::Announce() {
  QAccessibleEvent appeared(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appeared);
}

QSize AnnouncedLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void AnnouncedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int direction =
      layoutDirection() == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
  style()->drawItemText(&painter, contentsRect(), int(alignment()) | direction, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()),
                        foregroundRole());
}

}  // namespace qismora
