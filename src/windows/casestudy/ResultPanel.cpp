#include "windows/casestudy/ResultPanel.h"

#include <QAction>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include "base/Text.h"
#include "windows/casestudy/CommandRow.h"
#include "windows/casestudy/Frame5Panel.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/ReadingText.h"

namespace qismora {

namespace {

// Rows of the grid. The report covers the narrative of one rule and extends one row below it.
enum { CommandLine, HeadingLine, AmountLine, TextLine, LongTextLine };
constexpr int longTextMore = 8;

/// A line of the answer. One that is too long, such as an amount of hundreds of digits, is broken anywhere.
class AnswerLabel : public QLabel {
 public:
  explicit AnswerLabel(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
  }

  QSize sizeHint() const override { return {0, fontMetrics().height()}; }
  QSize minimumSizeHint() const override { return sizeHint(); }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override {
    return fontMetrics().boundingRect(0, 0, width, QWIDGETSIZE_MAX, flags, text()).height();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text(), foregroundRole());
  }

 private:
  static constexpr int flags = int(Qt::AlignLeft) | int(Qt::AlignTop) | int(Qt::TextWrapAnywhere);
};

AnswerLabel* Line(const char* name, const QString& accessibleName, Label& control, Binder& binder,
                  QWidget* parent) {
  auto* label = new AnswerLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setAccessibleName(accessibleName);
  label->setTextFormat(Qt::PlainText);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  Binder::Result(control, label);
  binder.TextColour(control, label);
  return label;
}

ReadingText* LongText(const char* name, const QString& accessibleName, TextBox& control, Binder& binder,
                      QWidget* parent) {
  auto* text = new ReadingText(QString::fromLatin1(name), accessibleName, parent);
  binder.Text(control, text);
  return text;
}

// The answer as it is read: heading, amount, and the text that is shown.
void CopyResults(const CaseStudy& form) {
  const TextBox& shown = form.Text3.Visible ? form.Text3 : form.Text2;
  const std::string lines = Join(form.Label2.Caption, CRLF, form.Label3.Caption, CRLF, CRLF, shown.Text);
  QGuiApplication::clipboard()->setText(ToQtLines(lines));
}

}  // namespace

ResultPanel::ResultPanel(CaseStudy& form, Binder& binder, QWidget* parent) : QWidget(parent), form_(form) {
  auto* grid = new QGridLayout(this);
  setObjectName(QStringLiteral("ResultPanel"));
  setAccessibleName(QStringLiteral("Results"));
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->setRowStretch(TextLine, 1);
  grid->setRowMinimumHeight(LongTextLine, longTextMore);

  grid->addWidget(new CommandRow(form, binder, this), CommandLine, 0);
  QLabel* heading = Line("Label2", QStringLiteral("Heading of the result"), form.Label2, binder, this);
  QLabel* amount = Line("Label3", QStringLiteral("Amount and fraction"), form.Label3, binder, this);
  narrative_ = LongText("Text2", QStringLiteral("Narrative of the share"), form.Text2, binder, this);
  report_ = LongText("Text3", QStringLiteral("Report"), form.Text3, binder, this);
  grid->addWidget(heading, HeadingLine, 0);
  grid->addWidget(amount, AmountLine, 0);
  grid->addWidget(narrative_, TextLine, 0);
  grid->addWidget(report_, TextLine, 0, 2, 1);
  auto* cover = new Frame5Panel(form, binder, this);
  grid->addWidget(cover, AmountLine, 0, 3, 1);
  cover->raise();

  auto* copy = new QAction(QStringLiteral("Copy results"), this);
  copy->setObjectName(QStringLiteral("CopyResults"));
  copy->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  connect(copy, &QAction::triggered, this, [&form] { CopyResults(form); });
  for (QWidget* widget : {static_cast<QWidget*>(heading), static_cast<QWidget*>(amount)}) {
    widget->addAction(copy);
    widget->setContextMenuPolicy(Qt::ActionsContextMenu);
  }
  for (ReadingText* text : {narrative_, report_}) text->addAction(copy);

  // Tab skips what Frame5 covers.
  Binder::Follow(form.Frame5.Visible, [this, copy] {
    const Qt::FocusPolicy policy = form_.Frame5.Visible ? Qt::NoFocus : Qt::StrongFocus;
    narrative_->setFocusPolicy(policy);
    report_->setFocusPolicy(policy);
    copy->setEnabled(!form_.Frame5.Visible);
  });
}

bool ResultPanel::ShowEnd() {
  if (form_.Frame5.Visible) return false;
  ReadingText* text = form_.Text3.Visible ? report_ : narrative_;
  text->setFocus(Qt::ShortcutFocusReason);
  text->moveCursor(QTextCursor::End);
  return true;
}

}  // namespace qismora
