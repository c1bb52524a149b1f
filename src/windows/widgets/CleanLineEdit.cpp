#include "windows/widgets/CleanLineEdit.h"

#include <QAction>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <utility>

namespace qismora {

namespace {

constexpr char16_t arabicDecimalSeparator = 0x066B;
constexpr char16_t arabicThousandsSeparator = 0x066C;
constexpr char16_t zeroWidthNonJoiner = 0x200C;
constexpr char16_t zeroWidthJoiner = 0x200D;

bool BreaksLine(QChar c) {
  const QChar::Category category = c.category();
  return category == QChar::Other_Control || category == QChar::Separator_Line ||
         category == QChar::Separator_Paragraph;
}

/// Direction marks and other invisible characters, except the two joiners that Persian and Urdu names need.
bool IsInvisible(QChar c) {
  return c.category() == QChar::Other_Format && c != zeroWidthNonJoiner && c != zeroWidthJoiner;
}

/// The text without control characters. A line break between two words becomes a blank.
QString OnOneLine(const QString& text) {
  QString line;
  bool broken = false;
  for (const QChar c : text) {
    if (IsInvisible(c)) continue;
    if (BreaksLine(c)) {
      broken = !line.isEmpty();
      continue;
    }
    if (std::exchange(broken, false)) line += QLatin1Char(' ');
    line += c;
  }
  return line;
}

/// The text with the digits 0 to 9 instead of those of other scripts.
QString WithPlainDigits(QString text) {
  for (QChar& c : text) {
    if (c.category() == QChar::Number_DecimalDigit) c = QLatin1Char(static_cast<char>('0' + c.digitValue()));
    if (c == arabicDecimalSeparator) c = QLatin1Char('.');
    if (c == arabicThousandsSeparator) c = QLatin1Char(',');
  }
  return text;
}

}  // namespace

CleanLineEdit::CleanLineEdit(Content content, QWidget* parent) : QLineEdit(parent), content_(content) {}

QString CleanLineEdit::Typed(const QString& text) const {
  return content_ == Content::Figure ? WithPlainDigits(text) : text;
}

QString CleanLineEdit::Pasted(const QString& text) const {
  const QString line = Typed(OnOneLine(text));
  return content_ == Content::Figure ? line.trimmed() : line;
}

void CleanLineEdit::Paste(QClipboard::Mode mode) {
  const QString text = Pasted(QGuiApplication::clipboard()->text(mode));
  if (!isReadOnly() && !text.isEmpty()) insert(text);
}

void CleanLineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    const bool selection = event->key() == Qt::Key_Insert && event->modifiers() == (Qt::CTRL | Qt::SHIFT);
    return Paste(selection ? QClipboard::Selection : QClipboard::Clipboard);
  }
  const QString text = Typed(event->text());
  if (text == event->text()) return QLineEdit::keyPressEvent(event);
  QKeyEvent clean(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat(),
                  static_cast<quint16>(event->count()));
  QLineEdit::keyPressEvent(&clean);
  event->setAccepted(clean.isAccepted());
}

// On-screen keyboards and many desktops send their text this way.
void CleanLineEdit::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent clean(event->preeditString(), event->attributes());
  clean.setCommitString(Typed(OnOneLine(event->commitString())), event->replacementStart(),
                        event->replacementLength());
  QLineEdit::inputMethodEvent(&clean);
  event->setAccepted(clean.isAccepted());
}

// The middle button pastes the selection.
void CleanLineEdit::mouseReleaseEvent(QMouseEvent* event) {
  const bool pastes =
      event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
  if (!pastes) return QLineEdit::mouseReleaseEvent(event);
  deselect();
  Paste(QClipboard::Selection);
}

// A text that is moved within the field has been cleaned already.
void CleanLineEdit::dropEvent(QDropEvent* event) {
  if (event->source() == this) return QLineEdit::dropEvent(event);
  QMimeData text;
  text.setText(Pasted(event->mimeData()->text()));
  QDropEvent clean(event->position(), event->possibleActions(), &text, event->buttons(), event->modifiers());
  clean.setDropAction(event->dropAction());
  QLineEdit::dropEvent(&clean);
  event->setDropAction(clean.dropAction());
  event->setAccepted(clean.isAccepted());
}

QMenu* CleanLineEdit::CreateContextMenu() {
  QMenu* menu = createStandardContextMenu();
  for (QAction* action : menu->actions()) {
    if (!disconnect(action, SIGNAL(triggered()), this, SLOT(paste()))) continue;
    connect(action, &QAction::triggered, this, [this] { Paste(QClipboard::Clipboard); });
  }
  return menu;
}

}  // namespace qismora
