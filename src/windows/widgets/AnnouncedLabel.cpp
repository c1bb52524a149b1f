#include "windows/widgets/AnnouncedLabel.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWhatsThis>
#include <QtMath>

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

void AnnouncedLabel::SetWords(const QString& words, const QString& all) {
  all_ = all.isEmpty() ? words : all;
  setText(words);
  setToolTip(all_);
  setAccessibleName(all_);
  OfferAll();
}

bool AnnouncedLabel::IsCut() const {
  return text() != all_ || fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

// A line that is read whole is no stop on the way of the Tab key.
void AnnouncedLabel::OfferAll() {
  const bool isCut = IsCut();
  setFocusPolicy(isCut ? Qt::TabFocus : Qt::NoFocus);
  setCursor(isCut ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void AnnouncedLabel::ShowAll() {
  const QString direction =
      layoutDirection() == Qt::RightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr");
  const QString families = font().families().join(QStringLiteral("', '"));
  QWhatsThis::showText(mapToGlobal(rect().topLeft()),
                       QStringLiteral("<p dir=\"%1\" style=\"font-family: '%2'\">%3</p>")
                           .arg(direction, families, all_.toHtmlEscaped()),
                       this);
}

// Naskh has more space between its lines than any of its signs needs.
QSize AnnouncedLabel::sizeHint() const {
  constexpr double highest = 1.4;
  const QSize size = QLabel::sizeHint();
  return {size.width(), qMin(size.height(), qCeil(highest * fontInfo().pixelSize()))};
}

QSize AnnouncedLabel::minimumSizeHint() const { return {0, sizeHint().height()}; }

void AnnouncedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  OfferAll();
}

void AnnouncedLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) OfferAll();
}

void AnnouncedLabel::keyPressEvent(QKeyEvent* event) {
  const bool isChoice =
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (!isChoice || !IsCut()) return QLabel::keyPressEvent(event);
  ShowAll();
}

void AnnouncedLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && IsCut()) return ShowAll();
  QLabel::mouseReleaseEvent(event);
}

// Where the line is lower than its font, what is drawn of the words is centred, so that neither the tops nor
// the descenders are clipped.
void AnnouncedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QFontMetrics metrics = fontMetrics();
  const QString words = metrics.elidedText(text(), Qt::ElideRight, contentsRect().width());
  QRect place = contentsRect();
  if (metrics.height() > place.height() && !words.isEmpty()) {
    const QRect drawn = metrics.tightBoundingRect(words);
    place.translate(0, (place.height() - drawn.height()) / 2 - drawn.top() - metrics.ascent());
    place.setHeight(metrics.height());
  }
  const int direction =
      layoutDirection() == Qt::RightToLeft ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
  style()->drawItemText(&painter, place, int(alignment()) | direction, palette(), isEnabled(), words,
                        foregroundRole());
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace qismora
