#include "windows/casestudy/AnswerStrip.h"

#include <QGridLayout>
#include <QLocale>

#include "windows/platform/Utf8.h"
#include "windows/widgets/AnnouncedLabel.h"
#include "windows/widgets/Binder.h"

namespace qismora {

namespace {

constexpr QMargins margins{8, 2, 8, 0};

// As the desktop groups a number of six digits.
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
    : QFrame(parent),
      form_(form),
      answer_(new AnnouncedLabel(QStringLiteral("AnswerState"), this)),
      readings_(new AnnouncedLabel(QStringLiteral("Readings"), this)) {
  setObjectName(QStringLiteral("AnswerStrip"));
  setAccessibleName(QStringLiteral("State of the answer"));
  auto* file = new QLabel(this);
  file->setObjectName(QStringLiteral("CaseTitle"));
  file->setTextFormat(Qt::PlainText);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(margins);
  grid->setVerticalSpacing(0);
  grid->setColumnStretch(0, 1);
  grid->addWidget(answer_, 0, 0);
  grid->addWidget(file, 0, 1);
  grid->addWidget(readings_, 1, 0, 1, 2);

  Binder::Follow(document.Title, [&document, file] {
    const QString title = ToQt(document.Title.Get());
    constexpr int widest = 260;
    file->setText(file->fontMetrics().elidedText(title, Qt::ElideMiddle, widest));
    file->setToolTip(document.Path().empty() ? title : ToQt(document.Path()));
    file->setAccessibleName(title);
  });
  Binder::Follow(form.AnswerWords, [this] { ShowAnswer(); });
  for (int i = 0; i < form.Text1.Size; ++i) form.Text1(i).Text.WhenChanged([this] { ShowReadings(); });
  Binder::Follow(form.EventsEnded, [this] { ShowReadings(); });
}

// What needs the user's attention stands in bold, so that it is told apart without colour.
void AnswerStrip::ShowAnswer() {
  QFont font = answer_->font();
  font.setBold(IsWarning(form_.Standing()));
  answer_->setFont(font);
  answer_->Show(ToQt(form_.AnswerWords.Get()), true);
}

// A sentence changes with each key; it is announced when another field has come to it.
void AnswerStrip::ShowReadings() {
  static const Grouping grouping = DesktopGrouping();
  const std::vector<std::string> sentences = form_.Misreadings(grouping);
  QStringList shown;
  for (const std::string& sentence : sentences) shown.append(ToQt(sentence));
  readings_->Show(shown.join(QStringLiteral("; ")), sentences.size() > misread_);
  misread_ = sentences.size();
}

}  // namespace qismora
