#include "windows/casestudy/ResultPanel.h"

#include <QAction>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QShortcut>

#include "base/Text.h"
#include "windows/casestudy/AnswerLabel.h"
#include "windows/casestudy/CommandRow.h"
#include "windows/casestudy/Frame5Panel.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/ReadingText.h"

namespace qismora {

namespace {

// Rows of the grid. The long reports reach a row further down than the narrative of one rule.
enum Row { CommandLine, HeadingLine, AmountLine, TextLine, LongTextLine };
constexpr int longTextMore = 8;

AnswerLabel* Line(const char* name, const QString& spoken, Label& control, Binder& binder, QWidget* parent) {
  auto* label = new AnswerLabel(QString::fromLatin1(name), spoken, parent);
  binder.SpokenCaption(control, label);
  binder.Look(control, label);
  return label;
}

ReadingText* LongText(const char* name, const QString& spoken, TextBox& control, Binder& binder,
                      QWidget* parent) {
  auto* text = new ReadingText(QString::fromLatin1(name), spoken, parent);
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

ResultPanel::ResultPanel(CaseStudy& form, Binder& binder, QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  setObjectName(QStringLiteral("ResultPanel"));
  setAccessibleName(tr("Results"));
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->setRowStretch(TextLine, 1);
  grid->setRowMinimumHeight(LongTextLine, longTextMore);

  grid->addWidget(new CommandRow(form, binder, this), CommandLine, 0);
  AnswerLabel* heading = Line("Label2", tr("Heading of the result"), form.Label2, binder, this);
  AnswerLabel* amount = Line("Label3", tr("Amount and fraction"), form.Label3, binder, this);
  ReadingText* narrative = LongText("Text2", tr("Narrative of the share"), form.Text2, binder, this);
  ReadingText* report = LongText("Text3", tr("Report"), form.Text3, binder, this);
  grid->addWidget(heading, HeadingLine, 0);
  grid->addWidget(amount, AmountLine, 0);
  grid->addWidget(narrative, TextLine, 0);
  grid->addWidget(report, TextLine, 0, 2, 1);
  auto* cover = new Frame5Panel(form, binder, this);
  grid->addWidget(cover, AmountLine, 0, 3, 1);
  cover->raise();

  auto* copy = new QAction(tr("Copy results"), this);
  copy->setObjectName(QStringLiteral("CopyResults"));
  copy->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  connect(copy, &QAction::triggered, this, [&form] { CopyResults(form); });
  for (QWidget* widget : {static_cast<QWidget*>(heading), static_cast<QWidget*>(amount)}) {
    widget->addAction(copy);
    widget->setContextMenuPolicy(Qt::ActionsContextMenu);
  }
  for (ReadingText* text : {narrative, report}) text->addAction(copy);

  auto* lead = new QShortcut(Qt::Key_F7, this);
  connect(lead, &QShortcut::activated, this, [&form, narrative, report] {
    if (!form.Frame5.Visible) (form.Text3.Visible ? report : narrative)->setFocus(Qt::ShortcutFocusReason);
  });

  // What lies under the cover is out of the way of the Tab key too.
  Binder::Follow(form.Frame5.Visible, [&form, narrative, report, copy] {
    const Qt::FocusPolicy policy = form.Frame5.Visible ? Qt::NoFocus : Qt::StrongFocus;
    narrative->setFocusPolicy(policy);
    report->setFocusPolicy(policy);
    copy->setEnabled(!form.Frame5.Visible);
  });
}

}  // namespace qismora
