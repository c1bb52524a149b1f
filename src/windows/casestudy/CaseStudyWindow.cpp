#include "windows/casestudy/CaseStudyWindow.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "windows/casestudy/AnswerStrip.h"
#include "windows/casestudy/CaseFileMenu.h"
#include "windows/casestudy/CaseMenu.h"
#include "windows/casestudy/ClassIIPanel.h"
#include "windows/casestudy/HeirsPanel.h"
#include "windows/casestudy/ResultPanel.h"
#include "windows/casestudy/SavePanel.h"
#include "windows/casestudy/TopStrip.h"
#include "windows/division/DivisionOpener.h"
#include "windows/help/HelpWindow.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/CaptionButton.h"
#include "windows/widgets/HoverFilter.h"

namespace qismora {

namespace {

constexpr QSize windowSize{799, 599};
constexpr QPoint windowPlace{0, -3};
constexpr int margin = 6;
constexpr int readingsStretch = 3;
constexpr int largestText = 12;

}  // namespace

CaseStudyWindow::CaseStudyWindow(CaseRecord& record, CasePorts& ports, int savedLanguage)
    : FormHolder(record, ports, savedLanguage),
      FormWindow(form_, "CaseStudy", QStringLiteral("Case Study"), largestText),
      dialogs_(ports),
      ports_{ports.Time, dialogs_, dialogs_, ports.Store, ports.Folders},
      document_(form_, ports_) {
  StartLanguage(ports.Store);
  document_.Translate = [](const Message& message) { return FromQt(CaseWords::Of(message)); };
  setWindowTitle(QStringLiteral("Case Study - Finding shares of Quranic Sharers"));
  setAttribute(Qt::WA_DeleteOnClose);
  form_.Hide = [this] { hide(); };
  FillCaseMenu(menuBar(), form_, binder_);
  fileMenu_ = new CaseFileMenu(menuBar(), document_);
  BuildDivision(ports.Store);
  AddHelpMenu(menuBar());
  BuildStatusBar(ports);
  BuildFrame();
  BuildTimer();
  strip_ = new AnswerStrip(form_, document_, this);
  AddStrip(strip_);
  TakeDroppedCases(this, document_);
  SetSizes(windowSize, margin);
  OrderTabs();
  KeepOnTop();
  Translate();
}

// What stands beside the form follows the language of the division; the form itself is English.
void CaseStudyWindow::Translate() {
  openDivision_->setText(CaseWords::tr("&Division"));
  menuBar()->setFont(FontBesideEnglish(QApplication::font(menuBar())));
  divisionLine_->setText(CaseWords::tr("Who receives what: F8"));
  divisionLine_->setLayoutDirection(CurrentDirection());
  divisionLine_->setAccessibleName(CaseWords::tr("Who receives what: opens the division"));
  divisionLine_->setToolTip(CaseWords::tr("The final division in one table, with its reasons (F8)"));
  fileMenu_->Translate();
  readings_->Translate();
  strip_->Translate();
  document_.UpdateTitle();
}

void CaseStudyWindow::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() == QEvent::LanguageChange && strip_ != nullptr) Translate();
}

void CaseStudyWindow::BuildFrame() {
  QWidget* frame = Frame111();
  frame->setAccessibleName(QStringLiteral("Case"));
  // Created in the order of the Tab key.
  auto* top = new TopStrip(form_, binder_, frame);
  auto* heirs = new HeirsPanel(form_, binder_, frame);
  auto* classII = new ClassIIPanel(form_, binder_, frame);
  auto* result = new ResultPanel(form_, binder_, frame);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(margin + 2);
  middle->addWidget(heirs, 0);
  middle->addWidget(result, 1);
  auto* rows = new QVBoxLayout(frame);
  rows->setSpacing(margin - 4);
  rows->addWidget(top);
  rows->addLayout(middle, 1);
  rows->addWidget(classII);
  connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, this, [this, result] {
    if (result->ShowEnd()) BringIntoSight(focusWidget());
  });

  // Widgets with a hover effect keep it; moving over any other restores the decorations.
  for (QWidget* child : frame->findChildren<QWidget*>()) {
    if (child->hasMouseTracking()) continue;
    if (child == classII || classII->isAncestorOf(child)) {
      WhenMouseMoves(child, [this] { form_.Frame3_MouseMove(); });
    } else {
      WhenMouseMoves(child, [this] { form_.Frame111_MouseMove(); });
    }
  }
  for (QWidget* widget : {frame, Background(), static_cast<QWidget*>(this)}) {
    WhenMouseMoves(widget, [this] { form_.Frame111_MouseMove(); });
  }
}

// The menu entry has the key; the line at the end of the menu bar is always visible.
void CaseStudyWindow::BuildDivision(Settings& store) {
  division_ = new DivisionOpener(form_, store, this);
  openDivision_ = new QAction(menuBar());
  openDivision_->setObjectName(QStringLiteral("Division"));
  openDivision_->setShortcut(Qt::Key_F8);
  connect(openDivision_, &QAction::triggered, division_, &DivisionOpener::Open);
  menuBar()->addAction(openDivision_);

  divisionLine_ = new QToolButton(menuBar());
  divisionLine_->setObjectName(QStringLiteral("DivisionLine"));
  divisionLine_->setAutoRaise(true);
  divisionLine_->setFocusPolicy(Qt::NoFocus);
  divisionLine_->setMaximumHeight(divisionLine_->fontMetrics().height() + 4);
  connect(divisionLine_, &QToolButton::clicked, division_, &DivisionOpener::Open);
  menuBar()->setCornerWidget(divisionLine_);
}

void CaseStudyWindow::BuildStatusBar(CasePorts& ports) {
  Binder::Result(form_.StatusBar1, AddPanel("StatusBar1.Panel1", QStringLiteral("What was last computed")));

  readings_ = new ReadingsPanel(form_, this);
  statusBar()->addWidget(readings_, readingsStretch);
  readings_->hide();  // the first texts are read as they stand

  saves_ = new SavePanel(ToQt(ports.Folders.Reports()), this);
  statusBar()->addPermanentWidget(saves_, 1);
  ports.SaveEnded = [saves = QPointer<SavePanel>(saves_)](const SaveOutcome& outcome) {
    if (saves != nullptr) saves->ShowOutcome(outcome);
  };
  // What became of a save is said until the next case is typed.
  for (int i = 0; i < form_.Text1.Size; ++i)
    form_.Text1(i).Text.WhenChanged([saves = saves_] { saves->ShowFolder(); });
}

void CaseStudyWindow::BuildTimer() {
  auto* timer = new QTimer(this);
  timer->setObjectName(QStringLiteral("Timer1"));
  connect(timer, &QTimer::timeout, this, [this] { form_.Timer1_Timer(); });
  Binder::Follow(form_.Timer1, [this, timer] {
    timer->stop();
    timer->setInterval(form_.Timer1);
    if (form_.Timer1 > 0) timer->start();
  });
}

// Above all other windows, so that the case stays in sight while its figures are read from another program.
void CaseStudyWindow::KeepOnTop() {
  setWindowFlag(Qt::WindowStaysOnTopHint);
  move(windowPlace);
}

// Tab moves from field to field, as a case is typed, then to the text of the answer and the lines below that
// are cut, and only then to the captions that compute. The texts, still covered, and the lines take the focus
// for a moment to get their place in the order.
void CaseStudyWindow::OrderTabs() {
  QWidget* last = nullptr;
  const auto chain = [&](const QList<QWidget*>& widgets, bool captions) {
    for (QWidget* widget : widgets) {
      if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
      if ((dynamic_cast<CaptionButton*>(widget) != nullptr) != captions) continue;
      if (last != nullptr) setTabOrder(last, widget);
      last = widget;
    }
  };
  const QList<QWidget*> all = Frame111()->findChildren<QWidget*>();
  const auto texts = Frame111()->findChildren<QPlainTextEdit*>();
  for (QPlainTextEdit* text : texts) text->setFocusPolicy(Qt::StrongFocus);
  chain(all, false);
  const QList<QWidget*> lines = strip_->Lines() + QList<QWidget*>{readings_, saves_};
  for (QWidget* line : lines) line->setFocusPolicy(Qt::TabFocus);
  chain(lines, false);
  for (QWidget* line : lines) line->setFocusPolicy(Qt::NoFocus);
  chain(all, true);
  for (QPlainTextEdit* text : texts) text->setFocusPolicy(Qt::NoFocus);
}

void CaseStudyWindow::closeEvent(QCloseEvent* event) {
  if (!document_.MayLeave()) return event->ignore();
  form_.Form_QueryUnload();
  event->accept();
}

}  // namespace qismora
