#include "windows/casestudy/AnswerStrip.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLocale>
#include <utility>

#include "division/DivisionView.h"
#include "windows/casestudy/CaseWords.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/Binder.h"

namespace qismora {

namespace {

constexpr QMargins margins{8, 0, 8, 0};
constexpr int gap = 16;
constexpr int widestTitle = 170;

// The grouping of the desktop's locale, taken from a number with six digits.
Grouping DesktopGrouping() {
  const QString sample = QLocale().toString(100'000);
  return sample.contains(QStringLiteral("1,00,")) ? Grouping::Indian : Grouping::Thousands;
}

bool IsWarning(AnswerStanding standing) {
  return standing != AnswerStanding::NoAnswer && standing != AnswerStanding::Partial &&
         standing != AnswerStanding::Final;
}

}  // namespace

AnswerStrip::AnswerStrip(CaseStudy& form, CaseDocument& document, QWidget* parent)
    : QFrame(parent), form_(form), answer_(new AnnouncedLabel(QStringLiteral("AnswerState"), this)) {
  setObjectName(QStringLiteral("AnswerStrip"));
  file_ = new AnnouncedLabel(QStringLiteral("CaseTitle"), this);
  file_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(margins);
  row->setSpacing(gap);
  row->addWidget(answer_, 1);
  row->addWidget(file_);

  Binder::Follow(document.Title, [this, &document] {
    const QString title = ToQt(document.Title.Get());
    file_->SetWords(file_->fontMetrics().elidedText(title, Qt::ElideMiddle, widestTitle), title);
    if (!document.Path().empty()) file_->setToolTip(ToQt(document.Path()));
  });
  const auto show = [this] { ShowAnswer(); };
  form.AnswerWords.WhenChanged(show);
  form.EventsEnded.WhenChanged(show);
  form.HeirsConsent.WhenChanged(show);
  Translate();
}

void AnswerStrip::Translate() {
  setAccessibleName(CaseWords::tr("State of the answer"));
  setLayoutDirection(CurrentDirection());
  file_->setFont(FontBesideEnglish(font()));
  ShowAnswer();
}

// What needs the user's attention stands in bold, so that it is told apart without colour. A final answer may
// still differ from classical law.
void AnswerStrip::ShowAnswer() {
  const bool differs = form_.Standing() == AnswerStanding::Final && DivisionDiffers();
  QString words = CaseWords::Of(form_.AnswerSentence());
  if (differs) words += QLatin1Char(' ') + CaseWords::tr("The division differs: F8.");
  QFont font = FontBesideEnglish(this->font());
  font.setBold(differs || IsWarning(form_.Standing()));
  answer_->setFont(font);
  answer_->Show(words, true);
}

// The commands take a figure also from a field that the division cannot read. Whether the heirs consent to
// the bequests, they ask themselves; in the division it is ticked.
bool AnswerStrip::DivisionDiffers() const {
  const DivisionView view = ViewDivision(form_, form_.HeirsConsent, faraid::School::Hanafi);
  if (!view.Own) return true;
  return !view.Differs.None() || form_.NetEstate() != view.Own->NetEstate;
}

ReadingsPanel::ReadingsPanel(CaseStudy& form, QWidget* parent)
    : AnnouncedLabel(QStringLiteral("Readings"), parent), form_(form), grouping_(DesktopGrouping()) {
  const auto show = [this] { Translate(); };
  for (int i = 0; i < form.Text1.Size; ++i) form.Text1(i).Text.WhenChanged(show);
  Binder::Follow<int>(form.EventsEnded, show);
}

// Only the first sentence has the space to be read whole; Return or a click shows all of them. A sentence
// changes with each key, so it is announced only when one more field is misread.
void ReadingsPanel::Translate() {
  QStringList sentences;
  for (const Message& sentence : form_.Misreadings(grouping_)) sentences.append(CaseWords::Of(sentence));
  setFont(FontBesideEnglish(parentWidget()->font()));
  setLayoutDirection(CurrentDirection());
  setVisible(!sentences.isEmpty());
  const qsizetype others = sentences.size() - 1;
  const QString first = sentences.value(0);
  SetWords(others > 0 ? CaseWords::tr("%1, and %2 more").arg(first).arg(others) : first,
           sentences.join(QStringLiteral("; ")));
  if (sentences.size() > std::exchange(misread_, sentences.size())) Announce(this);
}

}  // namespace qismora
