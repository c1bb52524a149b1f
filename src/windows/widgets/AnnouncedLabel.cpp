#include "windows/widgets/AnnouncedLabel.h"

#include <QPainter>
#include <QStyle>

#include "windows/widgets/AccessibleRole.h"

namespace qismora {

AnnouncedLabel::AnnouncedLabel(const QString& name, QWidget* parent) : QLabel(parent) {
  SetAccessibleRole(this, QAccessible::Notification);
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void AnnouncedLabel::Show(const QString& words, bool announce) {
  if (words == text()) return;
  SetWords(words);
  if (announce && !words.isEmpty()) Announce(this);
}

void AnnouncedLabel::SetWords(const QString& words) {
  setText(words);
  setToolTip(words);
  setAccessibleName(words);
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
