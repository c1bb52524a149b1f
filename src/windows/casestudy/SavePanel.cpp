#include "windows/casestudy/SavePanel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDir>
#include <QPainter>
#include <QStyle>

#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

QAccessibleInterface* NotificationInterface(const QString&, QObject* object) {
  auto* panel = dynamic_cast<SavePanel*>(object);
  return panel == nullptr ? nullptr : new QAccessibleWidget(panel, QAccessible::Notification);
}

}  // namespace

SavePanel::SavePanel(const QString& folder, QWidget* parent) : QLabel(parent) {
  QAccessible::installFactory(NotificationInterface);  // a second time changes nothing
  setObjectName(QStringLiteral("StatusBar1.Panel2"));
  setTextFormat(Qt::PlainText);
  Say(QStringLiteral("Full reports are saved in "), folder);
}

void SavePanel::Say(const QString& words, const QString& path) {
  words_ = words;
  path_ = QDir::toNativeSeparators(path);
  setText(words_ + path_);
  setToolTip(text());
  setAccessibleName(text());
}

// A screen reader announces a notification when it appears.
void SavePanel::ShowOutcome(const SaveOutcome& outcome) {
  Say(outcome.Saved() ? QStringLiteral("Saved: ")
                      : QStringLiteral("Not saved (%1): ").arg(ToQt(outcome.Reason)),
      ToQt(outcome.Path));
  QAccessibleEvent appeared(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appeared);
}

QSize SavePanel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void SavePanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int left = contentsRect().width() - fontMetrics().horizontalAdvance(words_);
  style()->drawItemText(&painter, contentsRect(), int(Qt::AlignRight | Qt::AlignVCenter), palette(),
                        isEnabled(), words_ + fontMetrics().elidedText(path_, Qt::ElideMiddle, left),
                        foregroundRole());
}

}  // namespace qismora
