#include "windows/division/DivisionWindow.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDate>
#include <QMenu>
#include <QPointer>
#include <QScrollArea>
#include <QShortcut>
#include <QShowEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "casefile/HeirFields.h"
#include "screens/CaseStudy.h"
#include "windows/division/DivisionDocument.h"
#include "windows/division/DivisionPictures.h"
#include "windows/division/DivisionPlace.h"
#include "windows/division/DivisionSentences.h"
#include "windows/division/DivisionTableView.h"
#include "windows/division/DivisionTools.h"
#include "windows/division/DivisionWords.h"
#include "windows/division/PageSplitter.h"
#include "windows/division/PaperCommands.h"
#include "windows/help/HelpWindow.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/AnnouncedLabel.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::School;

constexpr int windowMargin = 10;
constexpr int betweenParts = 6;
/// A change is announced when the typing pauses.
constexpr int announceAfter = 700;

/// The least height for the pictures, where they scroll.
constexpr int leastPart = 150;

}  // namespace

DivisionWindow::DivisionWindow(CaseStudy& form, Settings& store)
    : form_(form), store_(store), settings_(store), school_(settings_.School()) {
  setObjectName(QStringLiteral("Division"));
  setWindowFlag(Qt::WindowStaysOnTopHint);  // as Case Study, which would hide it
  StartLanguage(store);
  OpenToKeyboard(this);
  BuildContent();
  BuildTools();
  ConnectParts();
  statusBar()->setObjectName(QStringLiteral("DivisionStatus"));
  state_ = new AnnouncedLabel(QStringLiteral("DivisionState"), statusBar());
  state_->setContentsMargins(betweenParts, 0, betweenParts, 0);
  statusBar()->addWidget(state_, 1);
  announcing_.setSingleShot(true);
  announcing_.setInterval(announceAfter);
  connect(&announcing_, &QTimer::timeout, this, [this] { sentences_->Announce(); });
  Translate();
  Watch();
}

// What it is made of

void DivisionWindow::BuildContent() {
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
  rows->setSpacing(betweenParts);
  sentences_ = new DivisionSentences(content);
  splitter_ = new PageSplitter(content);
  splitter_->Resized = [this] { FitSplitter(); };
  splitter_->setObjectName(QStringLiteral("DivisionSplitter"));
  splitter_->setChildrenCollapsible(false);
  table_ = new DivisionTableView(splitter_);
  pictures_ = new DivisionPictures(splitter_);
  splitter_->setStretchFactor(1, 1);
  rows->addWidget(sentences_);
  rows->addWidget(splitter_, 1);
  rows->addStretch(0);
  const QList<int> split = settings_.Numbers("Splitter", 2);
  splitByUser_ = !split.isEmpty();
  if (splitByUser_) splitter_->setSizes(split);
  connect(splitter_, &QSplitter::splitterMoved, this, [this] { splitByUser_ = true; });

  page_ = new QScrollArea(this);
  page_->setFrameShape(QFrame::NoFrame);
  page_->setFocusPolicy(Qt::NoFocus);
  page_->setWidgetResizable(true);
  page_->setWidget(content);
  setCentralWidget(page_);
}

void DivisionWindow::BuildTools() {
  tools_ = new DivisionTools(school_, store_, this);
  addToolBar(tools_);
  connect(tools_->Schools(), &QComboBox::currentIndexChanged, this, [this](int index) {
    school_ = static_cast<School>(index);
    settings_.SetSchool(school_);
    Update();
  });
  connect(tools_->FourSchools(), &QAction::triggered, this, [this] { Update(); });
  connect(tools_->Keep(), &QAction::triggered, this, [this](bool keep) {
    kept_ = keep ? std::optional(shown_) : std::nullopt;
    Update();
  });
  const auto paper = [this] { return DivisionDocument(shown_, QDate::currentDate()); };
  connect(tools_->Copy(), &QAction::triggered, this, [this, paper] {
    CopyPaper(paper());
    state_->Show(tr("Copied. The table can be pasted into a letter or a spreadsheet."), true);
  });
  connect(tools_->Print(), &QAction::triggered, this, [this, paper] { PrintPaper(paper(), this); });
  connect(tools_->Preview(), &QAction::triggered, this, [this, paper] { PreviewPaper(paper(), this); });
  connect(tools_->SaveAsPdf(), &QAction::triggered, this, [this, paper] {
    if (const auto outcome = SavePaperAsPdf(paper(), this)) state_->Show(*outcome, true);
  });
}

void DivisionWindow::ConnectParts() {
  sentences_->Followed = [this](const QString& link) { Follow(link); };
  sentences_->Consented = [this](bool consent) { form_.HeirsConsent = consent; };
  table_->RowChosen = [this] { pictures_->Choose(table_->ChosenHeir()); };
  table_->Activated = [this](Kind heir) { GoToHeir(heir); };
  table_->Deleted = [this](Kind heir) {
    if (shown_.Find(heir) != nullptr) SupposeDead(heir, 1);
  };
  table_->FillMenu = [this](QMenu* menu) { FillMenu(menu); };
  pictures_->Chosen = [this](Kind heir) { table_->Choose(heir); };
  connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, [this] {
    if (ShowCase) ShowCase();
  });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { LeaveSupposition(); });
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [this] { ShowHelp(QString::fromLatin1(GuidePage), QString::fromLatin1(KeysAnchor), this); });
}

/// All words that stay while figures change, in the current language.
void DivisionWindow::Translate() {
  setLayoutDirection(CurrentDirection());
  const QFont font = FontOfLanguage(QApplication::font());
  setFont(font);
  sentences_->Translate(font);
  table_->SetTextFont(font);
  table_->setAccessibleName(tr("Who receives what"));
  pictures_->Translate();
  tools_->Translate();
  setAccessibleName(tr("Division"));
}

// What it follows

// The form cannot be asked to forget a listener, and may outlive the window.
void DivisionWindow::Watch() {
  const auto changed = [window = QPointer<DivisionWindow>(this)] {
    if (window != nullptr) window->Changed();
  };
  for (int i = 0; i < form_.Text1.Size; ++i) {
    if (i != NetEstateField) form_.Text1(i).Text.WhenChanged(changed);
  }
  for (int i = 0; i < form_.Check1.Size; ++i) form_.Check1(i).Value.WhenChanged(changed);
  form_.Combo1.ListIndex.WhenChanged(changed);
  form_.HeirsConsent.WhenChanged(changed);
  form_.CasesStarted.WhenChanged([window = QPointer<DivisionWindow>(this)] {
    if (window != nullptr) window->LeaveSupposition();
  });
}

// A command may change many fields: they are read once, when it has ended.
void DivisionWindow::Changed() {
  if (!isVisible() || std::exchange(pending_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (pending_) Update();
      },
      Qt::QueuedConnection);
}

void DivisionWindow::Update() {
  pending_ = false;
  if (!isVisible()) return;
  texts_ = ReadScreen(form_, form_.HeirsConsent);
  shown_ = ViewDivision(form_, form_.HeirsConsent, school_);
  before_ = kept_;
  if (shown_.IsDivided() && supposition_.DeathsIn(shown_).empty()) supposition_.Clear();
  if (shown_.IsDivided() && !supposition_.IsEmpty()) {
    texts_ = supposition_.Applied(std::move(texts_), shown_);
    before_ = std::exchange(shown_, ViewDivision(texts_, school_));
    shown_.Supposed = supposition_.DeathsIn(*before_);
  }
  if (before_ && !before_->IsDivided()) before_.reset();
  sentences_->Show(shown_, supposition_, form_.HeirsConsent);
  tools_->Enable(shown_.IsReadable(), shown_.IsDivided());
  splitter_->setVisible(shown_.IsDivided());
  if (shown_.IsDivided()) ShowTable();
  ShowState();
  FitSplitter();
  announcing_.start();
}

void DivisionWindow::ShowTable() {
  if (tools_->FourSchools()->isChecked()) {
    table_->Show(DivisionTable::OfFourSchools(ViewFourSchools(texts_)));
  } else {
    const QString heading = shown_.Supposed.empty() ? tr("Kept") : tr("As it is");
    table_->Show(DivisionTable::OfSchool(shown_, before_, heading));
  }
  pictures_->Show(shown_);
  pictures_->Choose(table_->ChosenHeir());
}

void DivisionWindow::ShowState() {
  const QString name = ToQt(shown_.Name).trimmed();
  setWindowTitle(name.isEmpty() ? tr("Division") : tr("Division - %1").arg(name));
  const QString state = shown_.Supposed.empty() ? tr("the fields of Case Study as they stand now")
                                                : tr("a supposition, not the case of the fields");
  state_->SetWords(words::SchoolLaw(school_) + QStringLiteral(" · ") + state);
}

// Where table and pictures do not fit, the pictures take a smaller text, then the heirs without a share and
// the pictures scroll in their parts. Where even the sum would be out of sight so, the whole window scrolls
// as one page, and nothing in it is cut. The user may move the line between.
void DivisionWindow::FitSplitter() {
  if (!shown_.IsDivided()) return;
  const int window = page_->viewport()->height();
  const int free = window - (splitter_->y() + windowMargin) - splitter_->handleWidth();
  const int whole = table_->FullHeight();
  int table = whole;
  int pictures = pictures_->FullHeight();
  if (table + pictures > free) {
    const int takers = std::min(table_->HeightOfTakers(), window);
    pictures = pictures_->LeastHeight();
    const int part = std::min(pictures, std::max(leastPart, window / 4));
    const bool isPage = takers + part > free;
    table = isPage && whole <= window ? whole : takers;
    pictures = isPage ? std::min(pictures, window) : part;
  }
  splitter_->SetLeastHeight(table + splitter_->handleWidth() + pictures);
  if (splitByUser_) return;
  const int all = std::max(free, table + pictures);
  const int own = std::max(table, std::min(whole, all - pictures));
  splitter_->setSizes({own, all - own});
}

void DivisionWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  FitSplitter();
}

// What the user does

void DivisionWindow::Follow(const QString& link) {
  const QString target = link.section(QLatin1Char(':'), 1);
  if (link.startsWith(QLatin1String("field:"))) return GoToField(target.toInt());
  if (link.startsWith(QLatin1String("back:"))) return LeaveSupposition();
  ShowHelp(QString::fromLatin1(DifferencesPage), AnchorOf(target), this);
}

void DivisionWindow::GoToField(int index) {
  if (ShowCase) ShowCase();
  form_.Text1(index).SetFocus();
}

// The kinds of class II have no field.
void DivisionWindow::GoToHeir(Kind heir) {
  const auto field = static_cast<std::size_t>(heir);
  if (field < HeirFields.size()) GoToField(HeirFields[field].Index);
}

void DivisionWindow::FillMenu(QMenu* menu) {
  const Kind heir = table_->ChosenHeir();
  const DivisionLine* line = shown_.Find(heir);
  if (line != nullptr && heir != Kind::Remainder) {
    Supposition::FillMenu(menu, *line, [this, heir](int heads) { SupposeDead(heir, heads); });
    if (static_cast<std::size_t>(heir) < HeirFields.size()) {
      QAction* field =
          menu->addAction(tr("Go to the field of Case Study"), this, [this, heir] { GoToHeir(heir); });
      field->setShortcut(Qt::Key_Return);
    }
  }
  if (supposition_.IsEmpty()) return;
  QAction* back = menu->addAction(tr("Back to the case"), this, [this] { LeaveSupposition(); });
  back->setShortcut(Qt::Key_Escape);
}

void DivisionWindow::SupposeDead(Kind heir, int heads) {
  supposition_.SupposeDead(heir, heads);
  Update();
}

void DivisionWindow::LeaveSupposition() {
  if (supposition_.IsEmpty()) return;
  supposition_.Clear();
  Update();
}

// Where it stands

void DivisionWindow::ShowBeside(const QWidget& study) {
  if (!isVisible()) {
    const QRect place = DivisionPlace(study, settings_, testAttribute(Qt::WA_ShowWithoutActivating),
                                      style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(place.size());
    move(place.topLeft());
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
}

void DivisionWindow::TakeFocus() {
  raise();
  activateWindow();
  if (std::exchange(focused_, true) || !splitter_->isVisible()) return;
  table_->setFocus();
}

void DivisionWindow::SavePlace() {
  if (!isMaximized() && !isFullScreen()) settings_.SetNumbers("Place", {x(), y(), width(), height()});
  if (splitByUser_) settings_.SetNumbers("Splitter", splitter_->sizes());
}

void DivisionWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) Update();
}

void DivisionWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) SavePlace();
  QMainWindow::hideEvent(event);
}

// Only the user closes it; with Case Study it is hidden or deleted.
void DivisionWindow::closeEvent(QCloseEvent* event) {
  settings_.SetWanted(false);
  QMainWindow::closeEvent(event);
}

void DivisionWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (tools_ == nullptr) return;
  if (event->type() == QEvent::LanguageChange) {
    Translate();
  } else if (event->type() == QEvent::PaletteChange) {
    sentences_->Recolour();
  } else {
    return;
  }
  table_->ForgetSwatches();
  Update();
}

}  // namespace qismora
