#include "windows/casestudy/CaseStudyWindow.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>

#include "windows/casestudy/CaseMenu.h"
#include "windows/casestudy/ClassIIPanel.h"
#include "windows/casestudy/HeirsPanel.h"
#include "windows/casestudy/ResultPanel.h"
#include "windows/casestudy/SavePanel.h"
#include "windows/casestudy/TopStrip.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Letters.h"
#include "windows/widgets/Accessibles.h"
#include "windows/widgets/CaptionLabel.h"
#include "windows/widgets/HoverWatch.h"
#include "windows/widgets/Keyboard.h"
#include "windows/widgets/SmallScreen.h"

namespace qismora {

namespace {

constexpr QSize windowSize{799, 599};
constexpr QPoint windowPlace{0, -3};
constexpr QSize caseSize{800, 600};
constexpr int twips = 15;
constexpr int margin = 6;
constexpr int largestLetters = 12;

}  // namespace

CaseStudyWindow::CaseStudyWindow(CaseRecord& record, Outside& outside, int savedLanguage)
    : form_(record, outside, savedLanguage) {
  MakeAccessible();
  setObjectName(QStringLiteral("CaseStudy"));
  setAccessibleName(tr("Case Study"));
  setWindowTitle(tr("Case Study - Finding shares of Quranic Sharers"));
  setAttribute(Qt::WA_DeleteOnClose);
  form_.Hide = [this] { hide(); };
  LimitLetters(this, largestLetters);
  FillCaseMenu(menuBar(), form_, binder_);
  BuildStatusBar(outside);
  BuildFrame();
  BuildTimer();
  SetSizes();
  OrderTabs();
  OpenToKeyboard(this);
  KeepOnTop();
}

// The widgets go before the form that they show.
CaseStudyWindow::~CaseStudyWindow() { delete takeCentralWidget(); }

void CaseStudyWindow::BuildFrame() {
  auto* ground = new QWidget(this);
  frame_ = new QWidget(ground);
  frame_->setObjectName(QStringLiteral("Frame111"));
  frame_->setAccessibleName(tr("Case"));
  // Made in the order in which Tab leads through them.
  auto* top = new TopStrip(form_, binder_, frame_);
  auto* heirs = new HeirsPanel(form_, binder_, frame_);
  auto* classII = new ClassIIPanel(form_, binder_, frame_);
  auto* result = new ResultPanel(form_, binder_, frame_);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(margin + 2);
  middle->addWidget(heirs, 0);
  middle->addWidget(result, 1);
  auto* rows = new QVBoxLayout(frame_);
  rows->setSpacing(margin - 2);
  rows->addWidget(top);
  rows->addLayout(middle, 1);
  rows->addWidget(classII);
  setCentralWidget(ground);

  // What has a hover of its own keeps it; everything else takes the decorations back.
  for (QWidget* child : frame_->findChildren<QWidget*>()) {
    if (child->hasMouseTracking()) continue;
    if (child == classII || classII->isAncestorOf(child)) {
      WhenMouseMoves(child, [this] { form_.Frame3_MouseMove(); });
    } else {
      WhenMouseMoves(child, [this] { form_.Frame111_MouseMove(); });
    }
  }
  for (QWidget* widget : {frame_, ground, static_cast<QWidget*>(this)}) {
    WhenMouseMoves(widget, [this] { form_.Frame111_MouseMove(); });
  }
  const auto place = [this] { frame_->move(form_.Frame111Left / twips, form_.Frame111Top / twips); };
  Binder::Follow(form_.Frame111Left, place);
  Binder::Follow(form_.Frame111Top, place);
}

void CaseStudyWindow::BuildStatusBar(Outside& outside) {
  statusBar()->setObjectName(QStringLiteral("StatusBar1"));
  statusBar()->setAccessibleName(tr("Status bar"));
  auto* panel = new QLabel(this);
  panel->setObjectName(QStringLiteral("StatusBar1.Panel1"));
  panel->setAccessibleName(tr("What was last computed"));
  binder_.SpokenCaption(form_.StatusBar1, panel);
  statusBar()->addWidget(panel);

  auto* saves = new SavePanel(ToQt(outside.Places.Reports()), this);
  statusBar()->addPermanentWidget(saves, 1);
  outside.SaveEnded = [saves = QPointer<SavePanel>(saves)](const SaveOutcome& outcome) {
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

// Menu and status bar take their part of the form's height. Should letters be taller than usual, the window
// grows rather than cut them.
void CaseStudyWindow::SetSizes() {
  const int bars = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
  const int below = caseSize.height() - windowSize.height() + bars;
  frame_->layout()->setContentsMargins(margin, margin, margin + 1, below + margin);
  frameSize_ = frame_->layout()->totalMinimumSize().expandedTo(caseSize);
  frame_->resize(frameSize_);
  const QSize needed = windowSize + frameSize_ - caseSize;
  FitWindow(this, needed, needed - QSize(0, bars), screen()->availableSize());
}

void CaseStudyWindow::KeepOnTop() {
  setWindowFlag(Qt::WindowStaysOnTopHint);
  move(windowPlace);
}

// Tab leads from box to box, as a case is typed, and on to the text of the answer; only then to the captions
// that compute. The texts are covered as yet: what takes no focus has no place in the order.
void CaseStudyWindow::OrderTabs() {
  QWidget* last = nullptr;
  const auto chain = [&](const QList<QWidget*>& widgets, bool captions) {
    for (QWidget* widget : widgets) {
      if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
      if ((dynamic_cast<CaptionLabel*>(widget) != nullptr) != captions) continue;
      if (last != nullptr) setTabOrder(last, widget);
      last = widget;
    }
  };
  const QList<QWidget*> all = frame_->findChildren<QWidget*>();
  const auto texts = frame_->findChildren<QPlainTextEdit*>();
  for (QPlainTextEdit* text : texts) text->setFocusPolicy(Qt::StrongFocus);
  chain(all, false);
  chain(all, true);
  for (QPlainTextEdit* text : texts) text->setFocusPolicy(Qt::NoFocus);
}

// A larger window shows more of the answer; a maximized one has the form in its middle.
void CaseStudyWindow::TellSize() {
  const bool maximized = isMaximized() || isFullScreen();
  const QSize more = size() - (windowSize + frameSize_ - caseSize);
  frame_->resize(maximized ? frameSize_ : frameSize_ + more.expandedTo({0, 0}));
  form_.Form_Resize(maximized, width() * twips, height() * twips);
}

void CaseStudyWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  TellSize();
}

void CaseStudyWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) TellSize();
  if (event->type() == QEvent::PaletteChange) binder_.Recolour();
}

void CaseStudyWindow::closeEvent(QCloseEvent* event) {
  form_.Form_QueryUnload();
  event->accept();
}

}  // namespace qismora
