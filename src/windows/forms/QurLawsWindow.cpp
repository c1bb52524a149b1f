#include "windows/forms/QurLawsWindow.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <utility>

#include "windows/forms/HeadingLabel.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/HoverWatch.h"
#include "windows/widgets/ReadingText.h"

namespace qismora {

namespace {

constexpr int headingSize = 20;
constexpr int titleSize = 15;
constexpr int pageMargin = 12;

}  // namespace

QurLawsWindow::QurLawsWindow(const ShellRecord& shell, MessageBoxes& boxes)
    : FormWindow("QurLaws", tr("Law page")), form_(shell, boxes) {
  setAttribute(Qt::WA_DeleteOnClose);
  form_.Unload = [this] {
    unloading_ = true;
    close();
  };
  Binder::Follow(form_.Caption, [this] { setWindowTitle(ToQt(form_.Caption.Get())); });
  QAction* leave = menuBar()->addAction(tr("&Close"));
  leave->setObjectName(QStringLiteral("Close"));
  leave->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
  connect(leave, &QAction::triggered, this, [this] { form_.Close_Click(); });

  auto* rows = new QVBoxLayout(Frame111());
  rows->addWidget(Heading());
  rows->addWidget(Title());
  rows->addWidget(Page(), 1);
  QLabel* panel = AddPanel("StatusBar1.Panel1", tr("Title of the page"));
  binder_.SpokenCaption(form_.StatusBar1, panel);
  for (QWidget* widget : {static_cast<QWidget*>(statusBar()), static_cast<QWidget*>(panel)}) {
    WhenMouseMoves(widget, [this] { form_.StatusBar1_MouseMove(); });
  }
  for (QWidget* widget : {Frame111(), centralWidget(), static_cast<QWidget*>(this)}) {
    WhenMouseMoves(widget, [this] { form_.Form_MouseMove(); });
  }
  binder_.Recolour();
  FollowPlace(form_.Frame111Left, form_.Frame111Top);
  SetSizes();
}

// The widgets go before the form that they show.
QurLawsWindow::~QurLawsWindow() { delete takeCentralWidget(); }

QWidget* QurLawsWindow::Heading() {
  auto* heading = new HeadingLabel(Frame111());
  heading->setObjectName(QStringLiteral("Label2"));
  heading->setFont(HeadingFont(font(), headingSize));
  heading->setAlignment(Qt::AlignCenter);
  heading->Moved = [this] { form_.Label2_MouseMove(); };
  heading->Pressed = [this] { form_.Label2_MouseDown(); };
  binder_.Caption(form_.Label2, heading);
  binder_.Look(form_.Label2, heading);
  return heading;
}

QWidget* QurLawsWindow::Title() {
  auto* title = new QLineEdit(Frame111());
  title->setObjectName(QStringLiteral("Text1"));
  title->setAccessibleName(tr("Title of the page"));
  title->setReadOnly(true);
  title->setFont(HeadingFont(font(), titleSize));
  title->setAlignment(Qt::AlignCenter);
  binder_.Box(form_.Text1, title);
  return title;
}

// There is no panel of other products beside the page, so the focus that is meant for it goes to the page,
// where the keys scroll.
QWidget* QurLawsWindow::Page() {
  auto* page = new ReadingText(QStringLiteral("Text2"), tr("Page"), Frame111());
  page->document()->setDocumentMargin(pageMargin);
  binder_.Text(form_.Text2, page);
  WhenMouseMoves(page->viewport(), [this] { form_.Text2_MouseMove(); });
  form_.Text5.FocusWanted = [page] { page->setFocus(); };
  page->setFocus();
  return page;
}

void QurLawsWindow::TellSize(bool maximized, int width, int height) {
  form_.Form_Resize(maximized, width, height);
}

void QurLawsWindow::closeEvent(QCloseEvent* event) {
  if (!std::exchange(unloading_, true)) form_.Form_Unload();
  event->accept();
}

}  // namespace qismora
