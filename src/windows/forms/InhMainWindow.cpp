#include "windows/forms/InhMainWindow.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "windows/forms/DisclaimerText.h"
#include "windows/forms/MenuOption.h"
#include "windows/forms/VideoPanel.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Pictures.h"
#include "windows/widgets/Names.h"

namespace qismora {

namespace {

constexpr QSize bannerSize{420, 80};
constexpr QSize pictureSize{320, 240};
constexpr QMargins focusRoom{2, 2, 2, 2};
constexpr int headingSize = 20;
constexpr int gap = 12;
constexpr std::chrono::milliseconds settled{500};

struct Entry {
  const char* Name;
  const char* Caption;
  void (InhMain::*Run)();
};

constexpr Entry entries[] = {
    {"Disclaimer", "&Disclaimer", &InhMain::Disclaimer_Click},
    {"About", "&About", &InhMain::About_Click},
    {"Exitz", "E&xit", &InhMain::Exitz_Click},
};

}  // namespace

InhMainWindow::InhMainWindow(CaseRecord& record, ShellRecord& shell, ShellOutside& outside,
                             QtVideoPlayer& player)
    : FormWindow("InhMain", tr("Main menu")), form_(record, shell, outside) {
  setWindowTitle(tr("Islamic Laws of Inheritance"));
  form_.Hide = [this] {
    // A desktop gives a window that was never placed by its program a new place at each showing.
    windowHandle()->setFramePosition(windowHandle()->framePosition());
    hide();
  };
  BuildMenuBar();
  auto* rows = new QVBoxLayout(Frame111());
  rows->setSpacing(gap);
  rows->addWidget(Head());
  rows->addWidget(Middle(player), 1);
  rows->addWidget(Foot());

  QLabel* panel = AddPanel("StatusBar1.Panel3", tr("Entry under the mouse"));
  Binder::Follow(form_.StatusBar1.Caption, [this, panel, name = panel->accessibleName()] {
    panel->setText(SpokenCaption(form_.StatusBar1.Caption));
    panel->setAccessibleName(name + QStringLiteral(": ") + panel->text());
  });
  Binder::Follow(form_.Hourglass, [this] { form_.Hourglass ? setCursor(Qt::WaitCursor) : unsetCursor(); });
  FollowPlace(form_.Frame111Left, form_.Frame111Top);
  SetSizes();
}

// The widgets go before the form that they show.
InhMainWindow::~InhMainWindow() { delete takeCentralWidget(); }

void InhMainWindow::BuildMenuBar() {
  for (const Entry& entry : entries) {
    QAction* action = menuBar()->addAction(tr(entry.Caption));
    action->setObjectName(QString::fromLatin1(entry.Name));
    connect(action, &QAction::triggered, this, [this, run = entry.Run] { (form_.*run)(); });
    if (entry.Run == &InhMain::Exitz_Click) action->setShortcut(QKeySequence::Quit);
  }
}

QWidget* InhMainWindow::Head() {
  auto* head = new QWidget(Frame111());
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  auto* place = new QWidget(head);
  place->setFixedSize(bannerSize);
  for (int i = 0; i < 2; ++i) {
    auto* banner =
        new PictureLabel(Indexed("Image5", i), QStringLiteral("image5-%1").arg(i), Ink::Own, place);
    banner->setFixedSize(bannerSize);
    banner->setToolTip(tr("In the name of Merciful & Benevolent Allah"));
    banner->setAccessibleName(banner->toolTip());
    banners_[i] = banner;
  }
  ShowBanner();
  auto* heading = new QLabel(head);
  heading->setObjectName(QStringLiteral("Label1"));
  heading->setFont(HeadingFont(font(), headingSize));
  heading->setAlignment(Qt::AlignCenter);
  heading->setWordWrap(true);
  binder_.Caption(form_.Label1, heading);
  row->addWidget(place);
  row->addWidget(heading, 1);
  return head;
}

// One banner is drawn for bright grounds, the other for dark ones.
void InhMainWindow::ShowBanner() {
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  banners_[0]->setVisible(!dark);
  banners_[1]->setVisible(dark);
}

QWidget* InhMainWindow::Menu() {
  auto* menu = new QGroupBox(Frame111());
  menu->setObjectName(QStringLiteral("Frame1"));
  menu->setAccessibleName(tr("Menu"));
  binder_.Box(form_.Frame1, menu);
  auto* rows = new QVBoxLayout(menu);
  rows->setSpacing(0);
  for (int i = 0; i < form_.Option1.Size; ++i) {
    auto* option = new MenuOption(form_.Option1(i), Indexed("Option1", i), menu);
    option->Chosen = [this, i] { form_.Option1_Click(i); };
    option->MouseOn = [this, i] { form_.Option1_MouseMove(i); };
    option->MouseOff = [this] { form_.Frame1_MouseMove(); };
    rows->addWidget(option, 1);
  }
  return menu;
}

QWidget* InhMainWindow::Side(QtVideoPlayer& player) {
  auto* side = new QWidget(Frame111());
  auto* rows = new QVBoxLayout(side);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(gap);
  rows->addWidget(Pictures());
  auto* video = new VideoPanel(side);
  rows->addWidget(video, 1);
  video->Clicked = [this] { form_.Frame5_Click(); };
  video->DoubleClicked = [this] { form_.Frame5_DblClick(); };
  player.PlayIn(video);
  auto* resources = new CaptionLabel(QStringLiteral("Frame2"), side);
  resources->setText(tr("Documents (double click)"));
  resources->setAccessibleName(tr("Documents and resources"));
  resources->setToolTip(tr("Double click, or press Return, to open"));
  resources->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
  resources->setMargin(gap / 2);
  resources->ActOn(Gesture::DoubleClick, tr("Open the documents and resources"),
                   [this] { form_.Frame2_DblClick(); });
  auto* last = new QHBoxLayout;
  last->setSpacing(gap);
  last->addWidget(resources, 1);
  last->addWidget(new QLabel(tr("Session"), side));
  last->addWidget(SessionNumber());
  rows->addLayout(last);
  return side;
}

// The pictures take turns, so it is the place of all six that holds the focus.
QWidget* InhMainWindow::Pictures() {
  auto* place = new CaptionLabel(QStringLiteral("Image3"), Frame111());
  place->setFixedSize(pictureSize);
  place->setAccessibleName(tr("Picture"));
  for (int i = 0; i < form_.Image3.Size; ++i) {
    auto* picture =
        new PictureLabel(Indexed("Image3", i), QStringLiteral("image3-%1").arg(i), Ink::Own, place);
    picture->setGeometry(QRect(QPoint(), pictureSize).marginsRemoved(focusRoom));
    picture->setAccessibleName(tr("Picture %1").arg(i + 1));
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    binder_.Visible(form_.Image3(i).Visible, picture);
    if (!picture->HasPicture() || place->Acts()) continue;
    place->setToolTip(tr("Click for the next picture"));
    place->ActOn(Gesture::Click, tr("Show the next picture"), [this] {
      for (int shown = 0; shown < form_.Image3.Size; ++shown) {
        if (form_.Image3(shown).Visible) return form_.Image3_Click(shown);
      }
    });
  }
  return place;
}

QWidget* InhMainWindow::SessionNumber() {
  auto* number = new CaptionLabel(QStringLiteral("Label22"), Frame111());
  number->setFont(HeadingFont(font(), headingSize));
  number->setToolTip(tr("Popularity details"));
  number->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
  number->setMargin(gap / 2);
  number->setAlignment(Qt::AlignCenter);
  number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
  number->ActOn(Gesture::Click, tr("Show the sessions"), [this] { form_.Label22_Click(); });
  binder_.SpokenCaption(form_.Label22, number);
  Binder::Follow(form_.Label22.Caption, [this, number] {
    number->setAccessibleName(tr("Number of this session: %1").arg(ToQt(form_.Label22.Caption.Get())));
  });
  return number;
}

QWidget* InhMainWindow::Foot() {
  auto* foot = new QWidget(Frame111());
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  auto* agree = new CaptionLabel(QStringLiteral("Label5"), foot);
  agree->setForegroundRole(QPalette::Link);
  agree->setCursor(Qt::PointingHandCursor);
  agree->ActOn(Gesture::Click, tr("Show or hide the disclaimer"), [this] { form_.Label5_Click(); });
  binder_.Caption(form_.Label5, agree);
  auto* advice = new QLabel(foot);
  advice->setObjectName(QStringLiteral("Label6"));
  binder_.Caption(form_.Label6, advice);
  row->addWidget(agree);
  row->addStretch();
  row->addWidget(advice);
  return foot;
}

// The menu, and the disclaimer in its place. What the disclaimer covers is out of the way of the Tab key too;
// the focus comes back when it goes.
QWidget* InhMainWindow::Middle(QtVideoPlayer& player) {
  auto* place = new QWidget(Frame111());
  auto* covered = new QWidget(place);
  auto* columns = new QHBoxLayout(covered);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(gap);
  columns->addWidget(Menu(), 1);
  columns->addWidget(Side(player));
  auto* text = new DisclaimerText(place);
  text->DoubleClicked = [this] { form_.Text1_DblClick(); };
  auto* one = new QGridLayout(place);
  one->setContentsMargins(0, 0, 0, 0);
  one->addWidget(covered, 0, 0);
  one->addWidget(text, 0, 0);
  binder_.Text(form_.Text1, text);
  form_.Text1.Visible.WhenChanged([this, text, covered, before = QPointer<QWidget>()]() mutable {
    if (form_.Text1.Visible) before = focusWidget();
    covered->setVisible(!form_.Text1.Visible);
    if (form_.Text1.Visible) {
      text->setFocus();
    } else if (before != nullptr) {
      before->setFocus();
    }
  });
  return place;
}

void InhMainWindow::TellSize(bool maximized, int width, int height) {
  form_.Form_Resize(maximized, width, height);
  if (!maximized) ForceSize();
}

// A desktop that sizes windows by its own law gets its way: no size is refused twice in a row, unless the
// window has stood at its own size for a while.
void InhMainWindow::ForceSize() {
  if (size() == FormSize()) {
    return QTimer::singleShot(settled, this, [this] {
      if (size() == FormSize()) refused_ = {};
    });
  }
  if (size() == refused_) return;
  refused_ = size();
  QTimer::singleShot(0, this, [this] {
    if (!IsMaximizedForm()) resize(FormSize());
  });
}

void InhMainWindow::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && banners_[0] != nullptr) ShowBanner();
}

// The program's icon waits for the first painting: nobody misses it before.
void InhMainWindow::paintEvent(QPaintEvent* event) {
  FormWindow::paintEvent(event);
  if (std::exchange(painted_, true)) return;
  QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(ProgramIcon()); });
}

void InhMainWindow::closeEvent(QCloseEvent* event) {
  form_.Form_QueryUnload();
  event->accept();
}

}  // namespace qismora
