#include "windows/division/DivisionTools.h"

#include <QActionGroup>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

#include "windows/division/DivisionWords.h"
#include "windows/language/Languages.h"

namespace qismora {

namespace {

constexpr int captionMargin = 5;

}  // namespace

DivisionTools::DivisionTools(faraid::School school, Settings& store, QWidget* parent) : QToolBar(parent) {
  setObjectName(QStringLiteral("DivisionTools"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setToolButtonStyle(Qt::ToolButtonTextOnly);
  AddSchools(school);
  fourSchools_ = Add("FourSchools", Qt::CTRL | Qt::Key_4);
  fourSchools_->setCheckable(true);
  keep_ = Add("Keep", Qt::CTRL | Qt::Key_K);
  keep_->setCheckable(true);
  copy_ = Add("CopyDivision", Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  print_ = Add("PrintDivision", QKeySequence::Print);
  preview_ = Add("PreviewDivision", Qt::CTRL | Qt::SHIFT | Qt::Key_P);
  pdf_ = Add("SaveDivisionAsPdf", Qt::CTRL | Qt::Key_E);
  AddLanguages(store);
  for (QToolButton* button : findChildren<QToolButton*>()) button->setFocusPolicy(Qt::StrongFocus);
  more_ = findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  if (more_ != nullptr) setTabOrder(language_, more_);
}

QAction* DivisionTools::Add(const char* name, const QKeySequence& key) {
  QAction* action = addAction(QString());
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcut(key);
  return action;
}

void DivisionTools::AddSchools(faraid::School school) {
  schools_ = new QComboBox(this);
  schools_->setObjectName(QStringLiteral("School"));
  schools_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  for (int i = 0; i < 4; ++i) schools_->addItem(QString());
  schools_->setCurrentIndex(static_cast<int>(school));
  schoolCaption_ = new QLabel(this);
  schoolCaption_->setBuddy(schools_);
  schoolCaption_->setContentsMargins(captionMargin, 0, captionMargin, 0);
  addWidget(schoolCaption_);
  addWidget(schools_);
}

void DivisionTools::AddLanguages(Settings& store) {
  language_ = new QToolButton(this);
  language_->setObjectName(QStringLiteral("Language"));
  language_->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(language_);
  auto* group = new QActionGroup(menu);
  const std::optional<Language> chosen = ChosenLanguage(store);
  const auto add = [&](std::optional<Language> choice) {
    QAction* action = menu->addAction(choice ? NameOf(*choice) : QString());
    action->setCheckable(true);
    action->setChecked(choice == chosen);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [&store, choice] { ChooseLanguage(store, choice); });
  };
  add(std::nullopt);
  for (const Language language : AllLanguages) add(language);
  language_->setMenu(menu);
  addWidget(language_);
}

void DivisionTools::Translate() {
  schoolCaption_->setText(tr("&School"));
  for (int i = 0; i < schools_->count(); ++i)
    schools_->setItemText(i, words::SchoolName(static_cast<faraid::School>(i)));
  fourSchools_->setText(tr("&Four schools"));
  fourSchools_->setToolTip(tr("The four schools side by side, and why they differ (Ctrl+4)"));
  keep_->setText(tr("&Keep"));
  keep_->setToolTip(tr("Keep this division and compare the next ones with it (Ctrl+K)"));
  copy_->setText(tr("&Copy"));
  copy_->setToolTip(tr("Copy the table for a letter or a spreadsheet (Ctrl+Shift+C)"));
  print_->setText(tr("&Print..."));
  preview_->setText(tr("Pre&view..."));
  pdf_->setText(tr("Save as P&DF..."));
  language_->setText(tr("&Language"));
  language_->menu()->setFont(font());
  if (more_ != nullptr) more_->setAccessibleName(tr("More commands"));
  language_->menu()->actions().constFirst()->setText(tr("As the desktop"));
}

void DivisionTools::Enable(bool isReadable, bool isDivided) {
  for (QAction* action : {copy_, print_, preview_, pdf_}) action->setEnabled(isReadable);
  fourSchools_->setEnabled(isDivided);
  keep_->setEnabled(isDivided || keep_->isChecked());
}

}  // namespace qismora
