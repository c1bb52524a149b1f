#include "windows/division/DivisionSentences.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QTextDocumentFragment>
#include <utility>

#include "windows/division/DivisionWords.h"
#include "windows/division/Notice.h"
#include "windows/division/Supposition.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

namespace {

constexpr int betweenSentences = 6;

QString LinkToField(int index, const QString& words) {
  return Link(QStringLiteral("field:%1").arg(index), words);
}

QString Examples(const DivisionView& view, const QString& link) {
  const QString examples = words::ExampleNotice(view).toHtmlEscaped();
  return examples.isEmpty() ? examples
                            : examples + QLatin1Char(' ') + LinkToField(view.Examples.front(), link);
}

QString WhereTheCommandsDiffer(const DivisionView& view) {
  if (!view.Own || view.Differs.None()) return {};
  QString notice = QStringLiteral("<b>%1</b>").arg(words::NoticeHeading().toHtmlEscaped());
  for (const DifferenceKind* kind : view.Differs.Kinds) {
    notice += QStringLiteral(" %1 ").arg(words::DifferenceSentence(*kind).toHtmlEscaped());
    notice += Link(QStringLiteral("differs:") + ToQt(kind->Section), words::PageOfDifferences());
  }
  return notice;
}

QString UnreadableFields(const DivisionView& view) {
  QStringList faults;
  for (const UnreadableField& field : view.Unreadable) {
    faults.append(LinkToField(field.Index, words::Unreadable(field)));
  }
  return faults.join(QStringLiteral("<br>"));
}

}  // namespace

DivisionSentences::DivisionSentences(QWidget* parent)
    : QWidget(parent),
      headline_(new Headline(this)),
      supposition_(new Notice("Supposition", this)),
      estate_(new Sentence("Estate", this)),
      examples_(new Sentence("Examples", this)),
      bequests_(new Sentence("Bequests", this)),
      consent_(new QCheckBox(this)),
      notice_(new Notice("Notice", this)),
      unreadable_(new Notice("Unreadable", this)) {
  consent_->setObjectName(QStringLiteral("HeirsConsent"));
  consent_->hide();
  connect(consent_, &QCheckBox::toggled, this, [this](bool consent) { Consented(consent); });
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(betweenSentences);
  for (QWidget* widget : std::initializer_list<QWidget*>{headline_, supposition_, estate_, examples_,
                                                         bequests_, consent_, notice_, unreadable_}) {
    rows->addWidget(widget);
  }
  for (QLabel* label : std::initializer_list<QLabel*>{supposition_, examples_, notice_, unreadable_}) {
    connect(label, &QLabel::linkActivated, this, [this](const QString& link) { Followed(link); });
  }
}

void DivisionSentences::Show(const DivisionView& view, const Supposition& supposition, bool heirsConsent) {
  headline_->setText(words::Headline(view));
  const QString supposed = supposition.Words(view);
  supposition_->Show(supposed);
  headline_->setAccessibleName(
      (headline_->text() + QLatin1Char(' ') + QTextDocumentFragment::fromHtml(supposed).toPlainText())
          .trimmed());
  estate_->Show(view.Unreadable.empty() ? words::EstateSummary(view).toHtmlEscaped() : QString());
  examples_->Show(Examples(view, tr("Type what is true")));
  // Where nothing is cut, the check box says it.
  bequests_->Show(view.BequestsAreCut() ? words::BequestNotice(view).toHtmlEscaped() : QString());
  consent_->setVisible(view.ConsentMatters());
  consent_->setChecked(heirsConsent);
  notice_->Show(WhereTheCommandsDiffer(view));
  unreadable_->Show(UnreadableFields(view));
}

void DivisionSentences::Translate(const QFont& font) {
  headline_->SetFont(font);
  consent_->setText(tr("The &heirs consent to more than a third"));
  Recolour();
}

void DivisionSentences::Recolour() {
  for (Notice* notice : {supposition_, notice_, unreadable_}) notice->Emphasise();
}

void DivisionSentences::Announce() {
  const QString words = headline_->accessibleName();
  if (std::exchange(announced_, words) != words) qismora::Announce(headline_);
}

}  // namespace qismora
