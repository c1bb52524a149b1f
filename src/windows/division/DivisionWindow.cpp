#include "windows/division/DivisionWindow.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QActionGroup>
#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

#include "screens/CaseStudy.h"
#include "screens/HeirFields.h"
#include "windows/division/DivisionDocument.h"
#include "windows/division/DivisionTable.h"
#include "windows/division/DivisionWords.h"
#include "windows/division/EstateBar.h"
#include "windows/division/FamilyTreeView.h"
#include "windows/division/Languages.h"
#include "windows/division/Paper.h"
#include "windows/help/HelpWindow.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Colours.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

using faraid::Kind;
using faraid::School;

constexpr int margin = 10;
constexpr int noticeMargin = 8;
constexpr QSize usualSize{900, 820};
constexpr int leastWidth = 560;
constexpr int cellMargin = 5;
constexpr int leastSentence = 165;
constexpr int stripeWidth = 5;
constexpr int leastTable = 110;
constexpr int leastPictures = 90;
constexpr double headlineSize = 1.3;
constexpr double noticeTint = 0.16;
const QColor amber(255, 176, 0);
/// A change is announced when the typing pauses.
constexpr int announceAfter = 700;

constexpr const char* application = "Qismora";
constexpr const char* section = "Division";
constexpr const char* schoolNames[] = {"Hanafi", "Maliki", "Shafii", "Hanbali"};

std::string ReadSetting(Settings& store, const char* key) { return store.Read(application, section, key); }
void WriteSetting(Settings& store, const char* key, const std::string& value) {
  store.Write(application, section, key, value);
}

School SavedSchool(Settings& store) {
  const std::string name = ReadSetting(store, "School");
  const auto* found = std::find(std::begin(schoolNames), std::end(schoolNames), name);
  return found == std::end(schoolNames) ? School::Hanafi
                                        : static_cast<School>(found - std::begin(schoolNames));
}

/// Whole numbers separated by commas; nothing unless there are so many.
QList<int> SavedNumbers(Settings& store, const char* key, qsizetype count) {
  QList<int> numbers;
  for (const QString& word : ToQt(ReadSetting(store, key)).split(QLatin1Char(','))) {
    bool isNumber = false;
    numbers.append(word.toInt(&isNumber));
    if (!isNumber) return {};
  }
  return numbers.size() == count ? numbers : QList<int>();
}

void SaveNumbers(Settings& store, const char* key, const QList<int>& numbers) {
  QStringList words;
  for (const int number : numbers) words.append(QString::number(number));
  WriteSetting(store, key, FromQt(words.join(QLatin1Char(','))));
}

/// The headline; screen readers announce it as a notification.
class Headline : public QLabel {
 public:
  using QLabel::QLabel;
};

QAccessibleInterface* HeadlineInterface(const QString&, QObject* object) {
  auto* headline = dynamic_cast<Headline*>(object);
  return headline == nullptr ? nullptr : new QAccessibleWidget(headline, QAccessible::Notification);
}

/// Lines between the rows, a stronger one above the sum, and a stripe where something differs.
class RowDelegate : public QStyledItemDelegate {
 public:
  RowDelegate(const DivisionModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationAlignment = Qt::AlignTop | Qt::AlignHCenter;
    option->textElideMode = Qt::ElideNone;
    option->rect.adjust(0, cellMargin, 0, 0);
    const bool rightToLeft = option->direction == Qt::RightToLeft;
    if (index.column() == 0)
      option->rect.adjust(rightToLeft ? 0 : cellMargin, 0, rightToLeft ? -cellMargin : 0, 0);
  }
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const DivisionTable::Row& row = model_.Table().Rows[index.row()];
    const QPalette& palette = option.palette;
    const QVariant background = index.data(Qt::BackgroundRole);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (selected) {
      painter->fillRect(option.rect, palette.highlight());
    } else if (background.isValid()) {
      painter->fillRect(option.rect, background.value<QColor>());
    }
    QStyledItemDelegate::paint(painter, option, index);
    const bool sum = row.Where == DivisionTable::Place::Sum;
    const QColor text = palette.color(QPalette::Text);
    const QColor line = Between(palette.color(QPalette::Base), text, sum ? 0.7 : 0.2);
    if (sum) painter->fillRect(option.rect.left(), option.rect.top(), option.rect.width(), 2, line);
    painter->fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, line);
    if (row.Differs && index.column() == 0) {
      const bool rightToLeft = option.direction == Qt::RightToLeft;
      const int x = rightToLeft ? option.rect.right() - 3 : option.rect.left();
      painter->fillRect(x, option.rect.top(), 4, option.rect.height() - 1,
                        IsBlackAndWhite(palette) ? text : Readable(amber, palette.color(QPalette::Base), 3));
    }
  }

 private:
  const DivisionModel& model_;
};

/// A sentence that cannot be missed: framed, with a stripe at its beginning.
class Notice : public QLabel {
 public:
  explicit Notice(QWidget* parent) : QLabel(parent) {
    setMargin(noticeMargin);
    setContentsMargins(stripeWidth, 0, 0, 0);
    setAutoFillBackground(true);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const bool plain = IsBlackAndWhite(QGuiApplication::palette());
    const QColor line =
        plain ? palette().color(QPalette::WindowText) : Readable(amber, palette().color(QPalette::Window), 3);
    painter.setPen(line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int left = layoutDirection() == Qt::RightToLeft ? width() - stripeWidth : 0;
    painter.fillRect(left, 0, stripeWidth, height(), line);
  }
};

QLabel* Sentence(const char* name, QLabel* label) {
  label->setObjectName(QString::fromLatin1(name));
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                 Qt::LinksAccessibleByKeyboard);
  label->hide();
  return label;
}

QFont Larger(QFont font) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * headlineSize);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * headlineSize));
  }
  return font;
}

// A figure that comes in two parts, such as 33.33 or 33.34, stands in two lines.
int WidthOf(const QString& cell, const QFontMetrics& font, bool figures) {
  if (!figures) return font.horizontalAdvance(cell);
  int width = 0;
  for (const QString& line : cell.split(QLatin1Char('\n')))
    width = std::max(width, font.horizontalAdvance(line));
  return width;
}

int LinesOf(const QString& cell) { return static_cast<int>(cell.count(QLatin1Char('\n'))) + 1; }

/// The colour of a notice's background.
QColor NoticeColour(const QPalette& desktop) {
  if (IsBlackAndWhite(desktop)) return desktop.color(QPalette::Window);
  return Between(desktop.color(QPalette::Base), amber, noticeTint);
}

void Emphasise(QLabel* label) {
  const QPalette desktop = QGuiApplication::palette();
  QPalette own = desktop;
  own.setColor(QPalette::Window, NoticeColour(desktop));
  if (!IsBlackAndWhite(desktop)) own.setColor(QPalette::WindowText, desktop.color(QPalette::Text));
  label->setPalette(own);
}

// Rich text takes the colour of links from the desktop, which may be unreadable.
QString Link(const QString& target, const QString& words) {
  const QPalette desktop = QGuiApplication::palette();
  const QColor colour =
      Readable(desktop.color(QPalette::Link), NoticeColour(desktop), WantedContrast(desktop));
  return QStringLiteral("<a href=\"%1\" style=\"color:%2\">%3</a>")
      .arg(target.toHtmlEscaped(), colour.name(), words.toHtmlEscaped());
}

// A sentence may begin with a name in another script, which must not turn it around.
void SetSentence(QLabel* label, const QString& html) {
  const bool rightToLeft = CurrentDirection() == Qt::RightToLeft;
  const QString text = rightToLeft ? QStringLiteral("<div dir=\"rtl\">%1</div>").arg(html) : html;
  label->setVisible(!html.isEmpty());
  if (label->text() != text) label->setText(text);
}

}  // namespace

DivisionWindow::DivisionWindow(CaseStudy& form, Settings& store)
    : form_(form), store_(store), school_(SavedSchool(store)) {
  QAccessible::installFactory(HeadlineInterface);  // a second time changes nothing
  setObjectName(QStringLiteral("Division"));
  setWindowFlag(Qt::WindowStaysOnTopHint);  // as Case Study, which would hide it
  StartLanguage(store);
  OpenToKeyboard(this);

  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(margin, margin, margin, margin);
  rows->setSpacing(6);
  BuildSentences(content);
  splitter_ = new QSplitter(Qt::Vertical, content);
  splitter_->setObjectName(QStringLiteral("DivisionSplitter"));
  splitter_->setChildrenCollapsible(false);
  BuildTable();
  BuildPictures();
  rows->addWidget(splitter_, 1);
  rows->addStretch(0);
  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  scroll_->setWidget(content);
  setCentralWidget(scroll_);
  BuildTools();
  BuildActions();
  statusBar()->setObjectName(QStringLiteral("DivisionStatus"));

  announcing_.setSingleShot(true);
  announcing_.setInterval(announceAfter);
  connect(&announcing_, &QTimer::timeout, this, [this] { Announce(); });
  const QList<int> split = SavedNumbers(store_, "Splitter", 2);
  if (!split.isEmpty()) {
    splitByUser_ = true;
    splitter_->setSizes(split);
  }
  connect(splitter_, &QSplitter::splitterMoved, this, [this] { splitByUser_ = true; });
  SayAll();
  Watch();
}

// --- What it is made of
// -------------------------------------------------------------------------------------

void DivisionWindow::BuildTools() {
  auto* tools = new QToolBar(this);
  tools->setObjectName(QStringLiteral("DivisionTools"));
  tools->setMovable(false);
  tools->setContextMenuPolicy(Qt::PreventContextMenu);
  tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
  addToolBar(tools);

  schools_ = new QComboBox(tools);
  schools_->setObjectName(QStringLiteral("School"));
  schools_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  for (int i = 0; i < 4; ++i) schools_->addItem(QString());
  schools_->setCurrentIndex(static_cast<int>(school_));
  connect(schools_, &QComboBox::currentIndexChanged, this, [this](int index) { ChooseSchool(index); });
  schoolCaption_ = new QLabel(tools);
  schoolCaption_->setBuddy(schools_);
  schoolCaption_->setContentsMargins(margin / 2, 0, margin / 2, 0);
  tools->addWidget(schoolCaption_);
  tools->addWidget(schools_);

  fourSchools_ = AddTool(tools, "FourSchools", Qt::CTRL | Qt::Key_4, [this] { Update(); });
  fourSchools_->setCheckable(true);
  keep_ = AddTool(tools, "Keep", Qt::CTRL | Qt::Key_K, [this] {
    kept_ = keep_->isChecked() ? std::optional(shown_) : std::nullopt;
    Update();
  });
  keep_->setCheckable(true);
  const auto paper = [this] { return DivisionDocument(shown_, QDate::currentDate()); };
  copy_ = AddTool(tools, "CopyDivision", Qt::CTRL | Qt::SHIFT | Qt::Key_C, [paper] { CopyPaper(paper()); });
  print_ = AddTool(tools, "PrintDivision", QKeySequence::Print, [this, paper] { PrintPaper(paper(), this); });
  preview_ = AddTool(tools, "PreviewDivision", Qt::CTRL | Qt::SHIFT | Qt::Key_P,
                     [this, paper] { PreviewPaper(paper(), this); });
  pdf_ = AddTool(tools, "SaveDivisionAsPdf", Qt::CTRL | Qt::Key_E, [this, paper] {
    if (const auto outcome = SavePaperAsPdf(paper(), this)) statusBar()->showMessage(*outcome);
  });
  language_ = LanguageButton(tools);
  tools->addWidget(language_);
  for (QToolButton* button : tools->findChildren<QToolButton*>()) {
    if (button->objectName() != QLatin1String("qt_toolbar_ext_button"))
      button->setFocusPolicy(Qt::StrongFocus);
  }
}

QAction* DivisionWindow::AddTool(QToolBar* tools, const char* name, const QKeySequence& key,
                                 const std::function<void()>& act) {
  QAction* action = tools->addAction(QString());
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, act);
  return action;
}

QToolButton* DivisionWindow::LanguageButton(QToolBar* tools) {
  auto* button = new QToolButton(tools);
  button->setObjectName(QStringLiteral("Language"));
  button->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(button);
  auto* group = new QActionGroup(menu);
  const std::optional<Language> chosen = ChosenLanguage(store_);
  const auto add = [&](std::optional<Language> choice) {
    QAction* action = menu->addAction(choice ? NameOf(*choice) : QString());
    action->setCheckable(true);
    action->setChecked(choice == chosen);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice] { ChooseLanguage(store_, choice); });
  };
  add(std::nullopt);
  for (const Language language : AllLanguages) add(language);
  button->setMenu(menu);
  return button;
}

void DivisionWindow::BuildSentences(QWidget* parent) {
  headline_ = new Headline(parent);
  headline_->setObjectName(QStringLiteral("Headline"));
  headline_->setWordWrap(true);
  headline_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  supposition_ = Sentence("Supposition", new Notice(parent));
  estate_ = Sentence("Estate", new QLabel(parent));
  examples_ = Sentence("Examples", new QLabel(parent));
  bequests_ = Sentence("Bequests", new QLabel(parent));
  consent_ = new QCheckBox(parent);
  consent_->setObjectName(QStringLiteral("HeirsConsent"));
  consent_->hide();
  connect(consent_, &QCheckBox::toggled, this, [this](bool consent) { form_.HeirsConsent = consent; });
  notice_ = Sentence("Notice", new Notice(parent));
  unreadable_ = Sentence("Unreadable", new Notice(parent));
  for (QWidget* widget :
       {static_cast<QWidget*>(headline_), static_cast<QWidget*>(supposition_), static_cast<QWidget*>(estate_),
        static_cast<QWidget*>(examples_), static_cast<QWidget*>(bequests_), static_cast<QWidget*>(consent_),
        static_cast<QWidget*>(notice_), static_cast<QWidget*>(unreadable_)}) {
    parent->layout()->addWidget(widget);
  }
  for (QLabel* label : {supposition_, examples_, notice_, unreadable_}) {
    connect(label, &QLabel::linkActivated, this, [this](const QString& link) { Follow(link); });
  }
}

void DivisionWindow::BuildTable() {
  table_ = new QTableView(splitter_);
  table_->setObjectName(QStringLiteral("DivisionTable"));
  model_ = new DivisionModel(table_);
  table_->setModel(model_);
  table_->setItemDelegate(new RowDelegate(*model_, table_));
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setShowGrid(false);
  table_->setWordWrap(true);
  table_->setTabKeyNavigation(false);
  table_->setMinimumHeight(leastTable);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setMinimumSectionSize(1);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setSectionsClickable(false);
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  table_->installEventFilter(this);
  table_->viewport()->installEventFilter(this);
  connect(table_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& place) { ShowMenu(place); });
  connect(table_, &QAbstractItemView::activated, this, [this] {
    const Kind heir = ChosenHeir();
    if (heir != Kind::Remainder) Follow(QStringLiteral("heir:%1").arg(static_cast<int>(heir)));
  });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { tree_->Choose(ChosenHeir()); });
  splitter_->addWidget(table_);
}

void DivisionWindow::BuildPictures() {
  pictures_ = new QWidget(splitter_);
  auto* rows = new QVBoxLayout(pictures_);
  rows->setContentsMargins(0, 4, 0, 0);
  bar_ = new EstateBar(pictures_);
  tree_ = new FamilyTreeView(pictures_);
  treeScroll_ = new QScrollArea(pictures_);
  treeScroll_->setFrameShape(QFrame::NoFrame);
  treeScroll_->setWidgetResizable(true);
  treeScroll_->setFocusPolicy(Qt::NoFocus);
  treeScroll_->setMinimumHeight(leastPictures);
  treeScroll_->setWidget(tree_);
  // A tree that is too wide is seen from its middle.
  QScrollBar* across = treeScroll_->horizontalScrollBar();
  connect(across, &QScrollBar::rangeChanged, this,
          [across](int from, int to) { across->setValue((from + to) / 2); });
  rows->addWidget(bar_);
  rows->addWidget(treeScroll_, 1);
  tree_->Chosen = [this](Kind heir) {
    const QRect place = tree_->PlaceOf(heir);
    treeScroll_->ensureVisible(place.center().x(), place.center().y(), place.width(), place.height());
    const auto& lines = model_->Table().Rows;
    for (int row = 0; row < lines.size(); ++row) {
      if (lines[row].Heir == heir && lines[row].Where != DivisionTable::Place::Sum) table_->selectRow(row);
    }
  };
  splitter_->addWidget(pictures_);
  splitter_->setStretchFactor(1, 1);
}

void DivisionWindow::BuildActions() {
  connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, [this] {
    if (ShowCase) ShowCase();
  });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { LeaveSupposition(); });
}

/// All words that stay while figures change, in the current language.
void DivisionWindow::SayAll() {
  setLayoutDirection(CurrentDirection());
  const QFont font = FontOfLanguage(QApplication::font());
  setFont(font);
  headline_->setFont(Larger(font));
  table_->setFont(font);
  model_->SetFont(font);
  setAccessibleName(tr("Division"));
  schoolCaption_->setText(tr("&School"));
  for (int i = 0; i < schools_->count(); ++i)
    schools_->setItemText(i, words::SchoolName(static_cast<School>(i)));
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
  language_->menu()->actions().constFirst()->setText(tr("As the desktop"));
  consent_->setText(tr("The &heirs consent to more than a third"));
  table_->setAccessibleName(tr("Who receives what"));
  bar_->setAccessibleName(tr("The estate as a bar"));
  tree_->setAccessibleName(tr("Family tree"));
  notice_->setAccessibleName(QString());
  for (QLabel* label : {notice_, supposition_, unreadable_}) Emphasise(label);
}

// --- What it follows
// ----------------------------------------------------------------------------------------

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
  shown_ = ViewDivision(form_, form_.HeirsConsent, school_);
  before_ = kept_;
  if (!deaths_.empty()) {
    CaseTexts texts = ReadScreen(form_, form_.HeirsConsent);
    for (const auto& [heir, heads] : deaths_) {
      const DivisionLine* line = shown_.Find(heir);
      if (line != nullptr) texts = WithHeads(texts, heir, std::max(0, line->Law.Heads - heads));
    }
    before_ = std::exchange(shown_, ViewDivision(texts, school_));
  }
  if (before_ && !before_->IsDivided()) before_.reset();
  ShowSentences();
  ShowTable();
  ShowPictures();
  FitSplitter();
  announcing_.start();
}

void DivisionWindow::ShowSentences() {
  const QString name = ToQt(shown_.Name).trimmed();
  setWindowTitle(name.isEmpty() ? tr("Division") : tr("Division - %1").arg(name));
  headline_->setText(words::Headline(shown_));
  SetSentence(estate_, shown_.Unreadable.empty() ? words::EstateSummary(shown_).toHtmlEscaped() : QString());
  QString examples = words::ExampleNotice(shown_).toHtmlEscaped();
  if (!examples.isEmpty()) {
    examples += QLatin1Char(' ') +
                Link(QStringLiteral("field:%1").arg(shown_.Examples.front()), tr("Type the estate"));
  }
  SetSentence(examples_, examples);
  SetSentence(bequests_, words::BequestNotice(shown_).toHtmlEscaped());
  consent_->setVisible(shown_.ConsentMatters());
  consent_->setChecked(form_.HeirsConsent);

  QString supposition;
  for (const auto& [heir, heads] : deaths_) {
    if (!supposition.isEmpty()) supposition += QStringLiteral(", ");
    supposition += words::Number(heads) + QLatin1Char(' ') + words::Heir(heir, heads);
  }
  if (!supposition.isEmpty()) {
    supposition = QStringLiteral("<b>%1</b> %2 %3")
                      .arg(tr("What if these had died before: %1.").arg(supposition).toHtmlEscaped(),
                           tr("The fields of Case Study are as they were.").toHtmlEscaped(),
                           Link(QStringLiteral("back:"), tr("Back to the case (Esc)")));
  }
  SetSentence(supposition_, supposition);
  ShowNotice();

  QStringList faults;
  for (const UnreadableField& field : shown_.Unreadable) {
    faults.append(Link(QStringLiteral("field:%1").arg(field.Index), words::Unreadable(field)));
  }
  SetSentence(unreadable_, faults.join(QStringLiteral("<br>")));

  const QString state = deaths_.empty() ? tr("the fields of Case Study as they stand now")
                                        : tr("a supposition, not the case of the fields");
  const QString mark = CurrentDirection() == Qt::RightToLeft ? QString(QChar(0x200F)) : QString();
  statusBar()->showMessage(mark + words::SchoolLaw(school_) + QStringLiteral(" · ") + state);
}

void DivisionWindow::ShowNotice() {
  QString notice;
  if (shown_.Own && !shown_.Differs.None()) {
    notice = QStringLiteral("<b>%1</b>").arg(words::NoticeHeading().toHtmlEscaped());
    for (const DifferenceKind* kind : shown_.Differs.Kinds) {
      notice += QStringLiteral("<br>%1 ").arg(words::DifferenceSentence(*kind).toHtmlEscaped());
      notice += Link(QStringLiteral("differs:") + ToQt(kind->Section), words::PageOfDifferences());
    }
  }
  SetSentence(notice_, notice);
}

void DivisionWindow::ShowTable() {
  for (QAction* action : {copy_, print_, preview_, pdf_, fourSchools_})
    action->setEnabled(shown_.IsDivided());
  keep_->setEnabled(shown_.IsDivided() || keep_->isChecked());
  splitter_->setVisible(shown_.IsDivided());
  if (!shown_.IsDivided()) return;
  const Kind heir = ChosenHeir();
  if (fourSchools_->isChecked()) {
    CaseTexts texts = ReadScreen(form_, form_.HeirsConsent);
    for (const auto& [dead, heads] : deaths_) {
      const DivisionLine* line = before_ ? before_->Find(dead) : nullptr;
      if (line != nullptr) texts = WithHeads(texts, dead, std::max(0, line->Law.Heads - heads));
    }
    model_->Show(DivisionTable::OfFourSchools(ViewFourSchools(texts)));
  } else {
    model_->Show(DivisionTable::OfSchool(shown_, before_, deaths_.empty() ? tr("Kept") : tr("As it is")));
  }
  const auto& lines = model_->Table().Rows;
  for (int row = 0; row < lines.size(); ++row) {
    if (lines[row].Heir == heir && heir != Kind::Remainder && ChosenHeir() != heir) table_->selectRow(row);
  }
  FitTable();
}

void DivisionWindow::ShowPictures() {
  if (!shown_.IsDivided()) return;
  std::vector<EstateBar::Part> parts;
  for (const DivisionLine& line : shown_.Takers) {
    const QString name = words::Heir(line.Heir(), line.Law.Heads);
    parts.push_back({line.Heir(), line.Law.Share, name,
                     name + QStringLiteral(": ") + words::Share(line.Law.Share) + QStringLiteral(", ") +
                         words::Amount(line.Amount.Together)});
  }
  bar_->Show(std::move(parts));
  tree_->Show(shown_);
  tree_->Choose(ChosenHeir());
}

// Figures get the width that they need, and sentences what is left; a row is as high as its sentence.
void DivisionWindow::FitTable() {
  const DivisionTable& table = model_->Table();
  QFont bold = table_->font();
  bold.setBold(true);
  const QFontMetrics wide(bold);
  const QFontMetrics metrics = table_->fontMetrics();
  int used = 0;
  for (int column = 0; column < table.FirstSentence; ++column) {
    int width = wide.horizontalAdvance(table.Headings[column]);
    for (const DivisionTable::Row& row : table.Rows) {
      const QFontMetrics& font = row.Where == DivisionTable::Place::Sum ? wide : metrics;
      width = std::max(width, WidthOf(row.Cells[column], font, table.Figures[column]));
    }
    table_->setColumnWidth(column, width + 3 * cellMargin + (column == 0 ? 5 * cellMargin : 0));
    used += table_->columnWidth(column);
  }
  const int last = table.FirstSentence;
  const int sentence = std::max(leastSentence, table_->viewport()->width() - used);
  table_->setColumnWidth(last, sentence);
  for (int row = 0; row < table.Rows.size(); ++row) {
    const QStringList& cells = table.Rows[row].Cells;
    int height = metrics.height();
    for (int column = 1; column < table.FirstSentence; ++column) {
      height = std::max(height, metrics.height() * LinesOf(cells[column]));
    }
    const QRect place(0, 0, sentence - 3 * cellMargin, QWIDGETSIZE_MAX);
    height = std::max(height, metrics.boundingRect(place, int(Qt::TextWordWrap), cells[last]).height());
    table_->setRowHeight(row, height + 2 * cellMargin);
  }
}

// The table gets the height that it needs, up to a half where the pictures need more, until the user moves
// the line between.
void DivisionWindow::FitSplitter() {
  if (splitByUser_ || !shown_.IsDivided()) return;
  int needed = table_->horizontalHeader()->height() + 2 * table_->frameWidth() + 1;
  for (int row = 0; row < model_->rowCount(); ++row) needed += table_->rowHeight(row);
  if (table_->horizontalScrollBar()->isVisible()) needed += table_->horizontalScrollBar()->height();
  const int all = splitter_->height() - splitter_->handleWidth();
  const int pictures = tree_->sizeHint().height() + bar_->sizeHint().height() + margin;
  const int table = std::clamp(needed, leastTable, std::max(leastTable, std::max(all / 2, all - pictures)));
  splitter_->setSizes({table, std::max(1, all - table)});
}

void DivisionWindow::Announce() {
  const QString words = headline_->text() + QLatin1Char(' ') + supposition_->text();
  if (std::exchange(announced_, words) == words || !QAccessible::isActive()) return;
  QAccessibleEvent appeared(headline_, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appeared);
}

// --- What the user does
// -------------------------------------------------------------------------------------

void DivisionWindow::ChooseSchool(int index) {
  school_ = static_cast<School>(index);
  WriteSetting(store_, "School", schoolNames[index]);
  Update();
}

void DivisionWindow::Follow(const QString& link) {
  const QString target = link.section(QLatin1Char(':'), 1);
  if (link.startsWith(QLatin1String("field:"))) return GoToField(target.toInt());
  if (link.startsWith(QLatin1String("heir:"))) {
    const auto heir = static_cast<std::size_t>(target.toInt());
    if (heir < HeirFields.size()) GoToField(HeirFields[heir].Index);
    return;
  }
  if (link.startsWith(QLatin1String("back:"))) return LeaveSupposition();
  ShowHelp(QString::fromLatin1(DifferencesPage), AnchorOf(target), this);
}

void DivisionWindow::GoToField(int index) {
  if (ShowCase) ShowCase();
  form_.Text1(index).SetFocus();
}

Kind DivisionWindow::ChosenHeir() const {
  const QModelIndex current = table_->currentIndex();
  const auto& lines = model_->Table().Rows;
  return current.isValid() && current.row() < lines.size() ? lines[current.row()].Heir : Kind::Remainder;
}

void DivisionWindow::ShowMenu(const QPoint& place) {
  const QModelIndex index = table_->indexAt(place);
  if (index.isValid()) table_->selectRow(index.row());
  auto* menu = new QMenu(table_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(menu, ChosenHeir());
  if (menu->isEmpty()) return menu->deleteLater();
  menu->popup(table_->viewport()->mapToGlobal(place));
}

void DivisionWindow::FillMenu(QMenu* menu, Kind heir) {
  const DivisionLine* line = shown_.Find(heir);
  if (line != nullptr && heir != Kind::Remainder) {
    const int heads = line->Law.Heads;
    const QString name = words::Heir(heir, 1);
    if (heads > 1) {
      menu->addAction(tr("What if one of them had died before: %1").arg(words::Heir(heir, heads)), this,
                      [this, heir] { SupposeDead(heir, 1); });
      menu->addAction(tr("What if all of them had died before: %1").arg(words::Heir(heir, heads)), this,
                      [this, heir, heads] { SupposeDead(heir, heads); });
    } else {
      QAction* action = menu->addAction(tr("What if this heir had died before: %1").arg(name), this,
                                        [this, heir] { SupposeDead(heir, 1); });
      action->setShortcut(Qt::Key_Delete);
    }
    if (static_cast<std::size_t>(heir) < HeirFields.size()) {
      QAction* field = menu->addAction(tr("Go to the field of Case Study"), this, [this, heir] {
        Follow(QStringLiteral("heir:%1").arg(static_cast<int>(heir)));
      });
      field->setShortcut(Qt::Key_Return);
    }
  }
  if (deaths_.empty()) return;
  QAction* back = menu->addAction(tr("Back to the case"), this, [this] { LeaveSupposition(); });
  back->setShortcut(Qt::Key_Escape);
}

void DivisionWindow::SupposeDead(Kind heir, int heads) {
  const auto known = std::ranges::find(deaths_, heir, &Death::first);
  if (known == deaths_.end()) {
    deaths_.emplace_back(heir, heads);
  } else {
    known->second += heads;
  }
  Update();
}

void DivisionWindow::LeaveSupposition() {
  if (deaths_.empty()) return;
  deaths_.clear();
  Update();
}

bool DivisionWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const Kind heir = ChosenHeir();
    if (key == Qt::Key_Delete && heir != Kind::Remainder && shown_.Find(heir) != nullptr) {
      SupposeDead(heir, 1);
      return true;
    }
  }
  if (table_ != nullptr && watched == table_->viewport() && event->type() == QEvent::Resize) FitTable();
  return QMainWindow::eventFilter(watched, event);
}

// --- Where it stands
// ----------------------------------------------------------------------------------------

bool DivisionWindow::HasRoomBeside(const QWidget& study) {
  const QRect screen = study.screen()->availableGeometry();
  return screen.right() - study.frameGeometry().right() >= leastWidth;
}

bool DivisionWindow::IsWanted(Settings& store) { return ReadSetting(store, "Open") != "no"; }

void DivisionWindow::Want(bool wanted) { WriteSetting(store_, "Open", wanted ? "yes" : "no"); }

void DivisionWindow::ShowBeside(const QWidget& study) {
  if (!isVisible()) {
    const QRect screen = study.screen()->availableGeometry();
    const QList<int> saved = SavedNumbers(store_, "Place", 4);
    QRect place;
    if (!saved.isEmpty()) place = QRect(saved[0], saved[1], saved[2], saved[3]);
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    if (place.isEmpty() || !screen.intersects(place)) {
      const QSize size = usualSize.boundedTo(screen.size() - QSize(0, titleBar));
      const int left = study.frameGeometry().right() + 1;
      if (HasRoomBeside(study)) {
        place = QRect(left, study.y(), std::min(size.width(), screen.right() + 1 - left), size.height());
      } else {
        place = QRect(QPoint(screen.right() + 1 - size.width(), screen.top()), size);
      }
    }
    resize(place.size().boundedTo(screen.size() - QSize(0, titleBar)));
    move(place.topLeft());
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
}

void DivisionWindow::SavePlace() {
  if (!isMaximized() && !isFullScreen()) SaveNumbers(store_, "Place", {x(), y(), width(), height()});
  if (splitByUser_) SaveNumbers(store_, "Splitter", splitter_->sizes());
}

void DivisionWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) Update();
}

void DivisionWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) SavePlace();
  QMainWindow::hideEvent(event);
}

void DivisionWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  FitSplitter();
}

// Only the user closes it; with Case Study it is hidden or deleted.
void DivisionWindow::closeEvent(QCloseEvent* event) {
  Want(false);
  QMainWindow::closeEvent(event);
}

void DivisionWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (model_ == nullptr || tree_ == nullptr || language_ == nullptr) return;
  if (event->type() == QEvent::LanguageChange) {
    SayAll();
    model_->ForgetSwatches();
    Update();
  }
  if (event->type() == QEvent::PaletteChange) {
    model_->ForgetSwatches();
    for (QLabel* label : {notice_, supposition_, unreadable_}) Emphasise(label);
    Update();
  }
}

}  // namespace qismora
