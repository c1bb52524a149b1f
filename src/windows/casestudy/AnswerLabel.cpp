#include "windows/casestudy/AnswerLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace qismora {

namespace {

constexpr int tipLetters = 60;

}  // namespace

AnswerLabel::AnswerLabel(const QString& name, const QString& spoken, QWidget* parent) : QLabel(parent) {
  setObjectName(name);
  setAccessibleName(spoken);
  setTextFormat(Qt::PlainText);
  QFont bold = font();
  bold.setBold(true);
  setFont(bold);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

bool AnswerLabel::IsCut() const { return fontMetrics().horizontalAdvance(text()) > contentsRect().width(); }

bool AnswerLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !IsCut()) return QLabel::event(event);
  // A tool tip does not break a row of digits by itself.
  QString lines = text();
  for (qsizetype end = tipLetters; end < lines.size(); end += tipLetters + 1) {
    lines.insert(end, QLatin1Char('\n'));
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), lines, this);
  return true;
}

void AnswerLabel::paintEvent(QPaintEvent* event) {
  if (!IsCut()) return QLabel::paintEvent(event);
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), int(Qt::AlignLeft | Qt::AlignVCenter), palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace qismora
