#include "windows/division/Notice.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QPainter>

#include "windows/language/Languages.h"
#include "windows/style/Colours.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

namespace {

constexpr int noticeMargin = 8;
constexpr int stripeWidth = 5;
constexpr double headlineSize = 1.3;
constexpr double noticeTint = 0.16;

/// The colour of a notice's background.
QColor NoticeColour(const QPalette& desktop) {
  if (IsBlackAndWhite(desktop)) return desktop.color(QPalette::Window);
  return Between(desktop.color(QPalette::Base), Amber, noticeTint);
}

}  // namespace

Headline::Headline(QWidget* parent) : QLabel(parent) {
  SetAccessibleRole(this, QAccessible::Notification);
  setObjectName(QStringLiteral("Headline"));
  setWordWrap(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void Headline::SetFont(QFont font) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * headlineSize);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * headlineSize));
  }
  setFont(font);
}

Sentence::Sentence(const char* name, QWidget* parent) : QLabel(parent) {
  setObjectName(QString::fromLatin1(name));
  setWordWrap(true);
  hide();
}

// A sentence may begin with a name in another script, which must not turn it around.
void Sentence::Show(const QString& html) {
  const bool rightToLeft = CurrentDirection() == Qt::RightToLeft;
  const QString words = rightToLeft ? QStringLiteral("<div dir=\"rtl\">%1</div>").arg(html) : html;
  setVisible(!html.isEmpty());
  if (text() == words) return;
  const bool hasLink = html.contains(QLatin1String("<a "));
  setTextInteractionFlags(hasLink ? Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                        Qt::LinksAccessibleByKeyboard
                                  : Qt::TextInteractionFlags(Qt::TextSelectableByMouse));
  setText(words);
}

// Qt would mark a link only at the next Tab.
void Sentence::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason) focusNextPrevChild(true);
  if (event->reason() == Qt::BacktabFocusReason) focusNextPrevChild(false);
}

Notice::Notice(const char* name, QWidget* parent) : Sentence(name, parent) {
  setMargin(noticeMargin);
  setContentsMargins(stripeWidth, 0, 0, 0);
  setAutoFillBackground(true);
}

void Notice::Emphasise() {
  const QPalette desktop = QGuiApplication::palette();
  QPalette own = desktop;
  own.setColor(QPalette::Window, NoticeColour(desktop));
  if (!IsBlackAndWhite(desktop)) own.setColor(QPalette::WindowText, desktop.color(QPalette::Text));
  setPalette(own);
}

void Notice::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  const bool plain = IsBlackAndWhite(QGuiApplication::palette());
  const QColor line =
      plain ? palette().color(QPalette::WindowText) : Readable(Amber, palette().color(QPalette::Window), 3);
  painter.setPen(line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  const int left = layoutDirection() == Qt::RightToLeft ? width() - stripeWidth : 0;
  painter.fillRect(left, 0, stripeWidth, height(), line);
}

// Rich text takes the colour of links from the desktop, which may be unreadable.
QString Link(const QString& target, const QString& words) {
  const QPalette desktop = QGuiApplication::palette();
  const QColor colour =
      Readable(desktop.color(QPalette::Link), NoticeColour(desktop), WantedContrast(desktop));
  return QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
      .arg(target.toHtmlEscaped(), colour.name(), words.toHtmlEscaped());
}

}  // namespace qismora
