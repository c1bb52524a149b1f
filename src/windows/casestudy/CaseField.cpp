#include "windows/casestudy/CaseField.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <utility>

#include "windows/style/Colours.h"

namespace qismora {

namespace {

constexpr int rowMargin = 4;
constexpr int textMargin = 2;
constexpr double amberTint = 0.35;

}  // namespace

CaseField::CaseField(const QString& name, Content content, QWidget* parent) : CleanLineEdit(content, parent) {
  setObjectName(name);
}

QSize CaseField::sizeHint() const {
  return {QLineEdit::sizeHint().width(), fontMetrics().height() + rowMargin};
}

QSize CaseField::minimumSizeHint() const { return {0, sizeHint().height()}; }

void CaseField::focusInEvent(QFocusEvent* event) {
  entering_ = event->reason() == Qt::MouseFocusReason;
  QLineEdit::focusInEvent(event);
}

// The first click into a field takes its whole text, as Tab does: what is typed next replaces the 0.
void CaseField::mouseReleaseEvent(QMouseEvent* event) {
  CleanLineEdit::mouseReleaseEvent(event);
  if (std::exchange(entering_, false) && !hasSelectedText()) selectAll();
}

void CaseField::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QLineEdit::mouseDoubleClickEvent(event);
  if (Toggle) Toggle();
  selectAll();
}

void CaseField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_F2:
      if (Toggle) Toggle();
      selectAll();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (Explain && event->modifiers().testFlag(Qt::ControlModifier)) return Explain();
      return CleanLineEdit::keyPressEvent(event);
    case Qt::Key_Up:
      focusNextPrevChild(false);
      return;
    case Qt::Key_Down:
      focusNextPrevChild(true);
      return;
    default:
      CleanLineEdit::keyPressEvent(event);
  }
}

void CaseField::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = CreateContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addSeparator();
  if (Explain) {
    QAction* explain = menu->addAction(QStringLiteral("Explain this share"), this, [this] { Explain(); });
    explain->setShortcut(Qt::CTRL | Qt::Key_Return);
  }
  QAction* toggle = menu->addAction(QStringLiteral("Toggle between 0 and 1"), this, [this] {
    if (Toggle) Toggle();
  });
  toggle->setShortcut(Qt::Key_F2);
  menu->popup(event->reason() == QContextMenuEvent::Keyboard ? mapToGlobal(rect().bottomLeft())
                                                             : event->globalPos());
}

void CaseField::SetTip(const QString& tip) {
  tip_ = tip;
  Mark(mark_);
}

void CaseField::Mark(const QString& words) {
  if (std::exchange(mark_, words) != words) update();
  setToolTip(words.isEmpty() ? tip_ : words + QStringLiteral("\n\n") + tip_);
  setAccessibleDescription(words);
}

// Dots show that a figure is longer than its field; whoever edits it sees the part around the cursor.
void CaseField::paintEvent(QPaintEvent* event) {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  const QRect place = inside.adjusted(textMargin, 0, -textMargin, 0);
  if (hasFocus() || fontMetrics().horizontalAdvance(text()) <= place.width())
    return QLineEdit::paintEvent(event);
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
  style()->drawItemText(&painter, place, int(Qt::AlignLeft | Qt::AlignVCenter), palette(), true, shown,
                        QPalette::Text);
}

// A read-only field has the colour of the form.
void CaseField::initStyleOption(QStyleOptionFrame* option) const {
  QLineEdit::initStyleOption(option);
  if (!mark_.isEmpty()) {
    option->palette.setColor(QPalette::Base, Between(palette().color(QPalette::Base), Amber, amberTint));
  }
  if (isReadOnly()) option->palette.setBrush(QPalette::Base, palette().window());
}

}  // namespace qismora
