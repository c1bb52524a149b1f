#include "windows/casestudy/AnswerStrip.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLocale>
#include <memory>

#include "windows/platform/Utf8.h"
#include "windows/widgets/AnnouncedLabel.h"
#include "windows/widgets/Binder.h"

namespace qismora {

namespace {

constexpr QMargins margins{8, 0, 8, 0};
constexpr int gap = 16;
constexpr int widestTitle = 170;

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
    : QFrame(parent), form_(form), answer_(new AnnouncedLabel(QStringLiteral("AnswerState"), this)) {
  setObjectName(QStringLiteral("AnswerStrip"));
  setAccessibleName(QStringLiteral("State of the answer"));
  auto* file = new QLabel(this);
  file->setObjectName(QStringLiteral("CaseTitle"));
  file->setTextFormat(Qt::PlainText);
  // The form leaves little more than the height of the text.
  setFixedHeight(fontInfo().pixelSize() + 2);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(margins);
  row->setSpacing(gap);
  row->addWidget(answer_, 1);
  row->addWidget(file);

  Binder::Follow(document.Title, [&document, file] {
    const QString title = ToQt(document.Title.Get());
    file->setText(file->fontMetrics().elidedText(title, Qt::ElideMiddle, widestTitle));
    file->setToolTip(document.Path().empty() ? title : ToQt(document.Path()));
    file->setAccessibleName(title);
  });
  Binder::Follow(form.AnswerWords, [this] { ShowAnswer(); });
}

// What needs the user's attention stands in bold, so that it is told apart without colour.
void AnswerStrip::ShowAnswer() {
  QFont font = answer_->font();
  font.setBold(IsWarning(form_.Standing()));
  answer_->setFont(font);
  answer_->Show(ToQt(form_.AnswerWords.Get()), true);
}

// A sentence changes with each key; it is announced when another field has come to it.
QWidget* MakeReadingsPanel(CaseStudy& form, QWidget* parent) {
  auto* panel = new AnnouncedLabel(QStringLiteral("Readings"), parent);
  const auto show = [&form, panel, grouping = DesktopGrouping(), misread = std::make_shared<std::size_t>(0)] {
    const std::vector<std::string> sentences = form.Misreadings(grouping);
    QStringList shown;
    for (const std::string& sentence : sentences) shown.append(ToQt(sentence));
    panel->setVisible(!shown.isEmpty());
    panel->Show(shown.join(QStringLiteral("; ")), sentences.size() > *misread);
    *misread = sentences.size();
  };
  for (int i = 0; i < form.Text1.Size; ++i) form.Text1(i).Text.WhenChanged(show);
  Binder::Follow<int>(form.EventsEnded, show);
  return panel;
}

}  // namespace qismora
