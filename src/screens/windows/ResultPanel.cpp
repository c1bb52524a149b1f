#include "screens/windows/ResultPanel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "screens/windows/CommandRow.h"
#include "screens/windows/Frame5Panel.h"

namespace qismora {

namespace {

// Rows of the grid. The long reports reach a row further down than the narrative of one rule.
enum Line { CommandLine, HeadingLine, AmountLine, TextLine, LongTextLine };
constexpr int longTextMore = 8;

QLabel* Heading(const char* name, const QString& spoken, Label& control, Binder& binder, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setAccessibleName(spoken);
  label->setTextFormat(Qt::PlainText);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  // An amount of hundreds of digits must not widen the form.
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  binder.SpokenCaption(control, label);
  binder.Look(control, label);
  return label;
}

QPlainTextEdit* LongText(const char* name, const QString& spoken, TextBox& control, Binder& binder,
                         QWidget* parent) {
  auto* text = new QPlainTextEdit(parent);
  text->setObjectName(QString::fromLatin1(name));
  text->setAccessibleName(spoken);
  text->setReadOnly(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text->setTabChangesFocus(true);
  text->setTabStopDistance(text->fontMetrics().averageCharWidth() * 8);
  binder.Text(control, text);
  return text;
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
  grid->addWidget(Heading("Label2", tr("Heading of the result"), form.Label2, binder, this), HeadingLine, 0);
  grid->addWidget(Heading("Label3", tr("Amount and fraction"), form.Label3, binder, this), AmountLine, 0);
  QPlainTextEdit* narrative = LongText("Text2", tr("Narrative of the share"), form.Text2, binder, this);
  QPlainTextEdit* report = LongText("Text3", tr("Report"), form.Text3, binder, this);
  grid->addWidget(narrative, TextLine, 0);
  grid->addWidget(report, TextLine, 0, 2, 1);
  auto* cover = new Frame5Panel(form, binder, this);
  grid->addWidget(cover, AmountLine, 0, 3, 1);
  cover->raise();

  // What lies under the cover is out of the way of the Tab key too.
  Binder::Follow(form.Frame5.Visible, [&form, narrative, report] {
    const Qt::FocusPolicy policy = form.Frame5.Visible ? Qt::NoFocus : Qt::StrongFocus;
    narrative->setFocusPolicy(policy);
    report->setFocusPolicy(policy);
  });
}

}  // namespace qismora
