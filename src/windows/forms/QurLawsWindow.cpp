#include "windows/forms/QurLawsWindow.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStatusBar>
#include <utility>

#include "windows/forms/Sizes.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Fonts.h"
#include "windows/widgets/HoverFilter.h"
#include "windows/widgets/ReadingText.h"

namespace qismora {

namespace {

constexpr int titleSize = 15;
constexpr int pageMargin = 12;

/// The heading, whose colour follows the mouse.
class Heading : public QLabel {
 public:
  Heading(QurLaws& form, QWidget* parent) : QLabel(parent), form_(form) { setMouseTracking(true); }

 protected:
  void mouseMoveEvent(QMouseEvent*) override { form_.Label2_MouseMove(); }
  void mousePressEvent(QMouseEvent*) override { form_.Label2_MouseDown(); }

 private:
  QurLaws& form_;
};

}  // namespace

QurLawsWindow::QurLawsWindow(const ShellRecord& shell, MessageBoxes& boxes)
    : FormHolder(shell, boxes), FormWindow(form_, "QurLaws", QStringLiteral("Law page"), largestText) {
  setAttribute(Qt::WA_DeleteOnClose);
  form_.Unload = [this] {
    unloading_ = true;
    close();
  };
  Binder::Follow(form_.Caption, [this] { setWindowTitle(ToQt(form_.Caption.Get())); });
  QAction* leave = menuBar()->addAction(QStringLiteral("&Close"));
  leave->setObjectName(QStringLiteral("Close"));
  leave->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
  connect(leave, &QAction::triggered, this, [this] { form_.Close_Click(); });

  auto* rows = new QVBoxLayout(Frame111());
  rows->addWidget(MakeHeading());
  rows->addWidget(Title());
  rows->addWidget(Page(), 1);
  QLabel* panel = AddPanel("StatusBar1.Panel1", QStringLiteral("Title of the page"));
  Binder::Result(form_.StatusBar1, panel);
  for (QWidget* widget : {static_cast<QWidget*>(statusBar()), static_cast<QWidget*>(panel)}) {
    WhenMouseMoves(widget, [this] { form_.StatusBar1_MouseMove(); });
  }
  for (QWidget* widget : {Frame111(), Background(), static_cast<QWidget*>(this)}) {
    WhenMouseMoves(widget, [this] { form_.Form_MouseMove(); });
  }
  binder_.Recolour();
  SetSizes(largeForm, formGap);
}

QWidget* QurLawsWindow::MakeHeading() {
  auto* heading = new Heading(form_, Frame111());
  heading->setObjectName(QStringLiteral("Label2"));
  heading->setFont(HeadingFont(font(), largeHeading));
  heading->setAlignment(Qt::AlignCenter);
  Binder::Caption(form_.Label2, heading);
  binder_.TextColour(form_.Label2, heading);
  return heading;
}

QWidget* QurLawsWindow::Title() {
  auto* title = new QLineEdit(Frame111());
  title->setObjectName(QStringLiteral("Text1"));
  title->setAccessibleName(QStringLiteral("Title of the page"));
  title->setReadOnly(true);
  title->setFont(HeadingFont(font(), titleSize));
  title->setAlignment(Qt::AlignCenter);
  binder_.Field(form_.Text1, title);
  return title;
}

// Text5 has no widget of its own. Its focus goes to the page, which the keyboard then scrolls.
QWidget* QurLawsWindow::Page() {
  auto* page = new ReadingText(QStringLiteral("Text2"), QStringLiteral("Page"), Frame111());
  page->document()->setDocumentMargin(pageMargin);
  binder_.Text(form_.Text2, page);
  WhenMouseMoves(page->viewport(), [this] { form_.Text2_MouseMove(); });
  form_.Text5.FocusWanted = [page] { page->setFocus(); };
  page->setFocus();
  return page;
}

void QurLawsWindow::closeEvent(QCloseEvent* event) {
  if (!std::exchange(unloading_, true)) form_.Form_Unload();
  event->accept();
}

}  // namespace qismora
