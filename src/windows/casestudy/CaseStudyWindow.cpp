#include "windows/casestudy/CaseStudyWindow.h"

#include <QAction>
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

CaseStudyWindow::CaseStudyWindow(CaseRecord& record, Ports& ports, int savedLanguage)
    : FormHolder(record, ports, savedLanguage),
      FormWindow(form_, "CaseStudy", QStringLiteral("Case Study"), largestText),
      document_(form_, ports) {
  setWindowTitle(QStringLiteral("Case Study - Finding shares of Quranic Sharers"));
  setAttribute(Qt::WA_DeleteOnClose);
  form_.Hide = [this] { hide(); };
  FillCaseMenu(menuBar(), form_, binder_);
  AddCaseFileMenu(menuBar(), document_);
  BuildDivision(ports.Store);
  AddHelpMenu(menuBar());
  BuildStatusBar(ports);
  BuildFrame();
  BuildTimer();
  AddStrip(new AnswerStrip(form_, document_, this));
  TakeDroppedCases(this, document_);
  SetSizes(windowSize, margin);
  OrderTabs();
  KeepOnTop();
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

// The menu entry has the key; the line at the end of the menu bar is always in sight.
void CaseStudyWindow::BuildDivision(Settings& store) {
  division_ = new DivisionOpener(form_, store, this);
  auto* open = new QAction(QStringLiteral("&Division"), menuBar());
  open->setObjectName(QStringLiteral("Division"));
  open->setShortcut(Qt::Key_F8);
  connect(open, &QAction::triggered, division_, &DivisionOpener::Open);
  menuBar()->addAction(open);

  auto* line = new QToolButton(menuBar());
  line->setObjectName(QStringLiteral("DivisionLine"));
  line->setText(QStringLiteral("Who receives what: F8"));
  line->setAccessibleName(QStringLiteral("Who receives what: opens the division"));
  line->setToolTip(QStringLiteral("The final division in one table, with its reasons (F8)"));
  line->setAutoRaise(true);
  line->setFocusPolicy(Qt::NoFocus);
  line->setMaximumHeight(line->fontMetrics().height() + 4);
  connect(line, &QToolButton::clicked, division_, &DivisionOpener::Open);
  menuBar()->setCornerWidget(line);
}

void CaseStudyWindow::BuildStatusBar(Ports& ports) {
  Binder::Result(form_.StatusBar1, AddPanel("StatusBar1.Panel1", QStringLiteral("What was last computed")));

  QWidget* readings = MakeReadingsPanel(form_, this);
  statusBar()->addWidget(readings, readingsStretch);
  readings->hide();  // the first texts are read as they stand

  auto* saves = new SavePanel(ToQt(ports.Places.Reports()), this);
  statusBar()->addPermanentWidget(saves, 1);
  ports.SaveEnded = [saves = QPointer<SavePanel>(saves)](const SaveOutcome& outcome) {
    if (saves != nullptr) saves->ShowOutcome(outcome);
  };
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

void CaseStudyWindow::KeepOnTop() {
  setWindowFlag(Qt::WindowStaysOnTopHint);
  move(windowPlace);
}

// Tab moves from field to field, as a case is typed, then to the text of the answer, and only then to the
// captions that compute. The texts, still covered, take the focus for a moment to get their place in the
// order.
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
  chain(all, true);
  for (QPlainTextEdit* text : texts) text->setFocusPolicy(Qt::NoFocus);
}

void CaseStudyWindow::closeEvent(QCloseEvent* event) {
  if (!document_.MayLeave()) return event->ignore();
  form_.Form_QueryUnload();
  event->accept();
}

}  // namespace qismora
