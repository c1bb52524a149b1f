#include "windows/forms/InhMainWindow.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "windows/forms/MenuOption.h"
#include "windows/forms/Sizes.h"
#include "windows/forms/VideoPanel.h"
#include "windows/help/HelpWindow.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Fonts.h"
#include "windows/style/Pictures.h"
#include "windows/widgets/Keyboard.h"
#include "windows/widgets/Names.h"
#include "windows/widgets/PictureWidgets.h"
#include "windows/widgets/ReadingText.h"

namespace qismora {

namespace {

constexpr QSize bannerSize{420, 80};
constexpr QSize videoSize{320, 240};
constexpr QMargins focusMargins{2, 2, 2, 2};
constexpr QMargins panelMargins{6, 6, 6, 6};
constexpr std::chrono::milliseconds settled{500};

struct MenuItem {
  const char* Name;
  const char* Caption;
  void (InhMain::*Run)();
};

constexpr MenuItem menuItems[] = {
    {"Disclaimer", "&Disclaimer", &InhMain::Disclaimer_Click},
    {"About", "&About", &InhMain::About_Click},
    {"Exitz", "E&xit", &InhMain::Exitz_Click},
};

/// The disclaimer. A double click or Escape hides it.
class DisclaimerText : public ReadingText {
 public:
  DisclaimerText(InhMain& form, QWidget* parent)
      : ReadingText(QStringLiteral("Text1"), QStringLiteral("Disclaimer"), parent), form_(form) {
    setToolTip(QStringLiteral("Double Click to Hide"));
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Escape) return ReadingText::keyPressEvent(event);
    form_.Text1_DblClick();
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return ReadingText::mouseDoubleClickEvent(event);
    form_.Text1_DblClick();
  }

 private:
  InhMain& form_;
};

}  // namespace

InhMainWindow::InhMainWindow(CaseRecord& record, ShellRecord& shell, ShellPorts& ports, QtVideoPlayer& player)
    : FormHolder(record, shell, ports),
      FormWindow(form_, "InhMain", QStringLiteral("Main menu"), largestText) {
  setWindowTitle(QStringLiteral("Islamic Laws of Inheritance"));
  form_.Hide = [this] {
    // A window without a position of its own would appear in another place the next time.
    windowHandle()->setFramePosition(windowHandle()->framePosition());
    hide();
  };
  BuildMenuBar();
  auto* rows = new QVBoxLayout(Frame111());
  rows->setSpacing(formGap);
  rows->addWidget(Head());
  rows->addWidget(Middle(player), 1);
  rows->addWidget(Foot());

  QLabel* panel = AddPanel("StatusBar1.Panel3", QStringLiteral("MenuItem under the mouse"));
  Binder::Follow(form_.StatusBar1.Caption, [this, panel, name = panel->accessibleName()] {
    panel->setText(WithoutMnemonics(form_.StatusBar1.Caption));
    panel->setAccessibleName(name + QStringLiteral(": ") + panel->text());
  });
  Binder::Follow(form_.ShowsWaitCursor,
                 [this] { form_.ShowsWaitCursor ? setCursor(Qt::WaitCursor) : unsetCursor(); });
  SetSizes(largeForm, formGap);
}

void InhMainWindow::BuildMenuBar() {
  for (const MenuItem& entry : menuItems) {
    QAction* action = menuBar()->addAction(QString::fromUtf8(entry.Caption));
    action->setObjectName(QString::fromLatin1(entry.Name));
    WhenTriggered(action, this, [this, run = entry.Run] { (form_.*run)(); });
    if (entry.Run == &InhMain::Exitz_Click) action->setShortcut(QKeySequence::Quit);
  }
  AddHelpMenu(menuBar());
}

QWidget* InhMainWindow::Head() {
  auto* head = new QWidget(Frame111());
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(formGap);
  auto* place = new QWidget(head);
  place->setFixedSize(bannerSize);
  for (int i = 0; i < 2; ++i) {
    const QString words = QStringLiteral("In the name of Merciful & Benevolent Allah");
    auto* banner = new PictureLabel(Indexed("Image5", i), QStringLiteral("image5-%1").arg(i), words, place);
    banner->setFixedSize(bannerSize);
    banner->setToolTip(words);
    banners_[i] = banner;
  }
  ShowBanner();
  auto* heading = new QLabel(head);
  heading->setObjectName(QStringLiteral("Label1"));
  heading->setFont(HeadingFont(font(), largeHeading));
  heading->setAlignment(Qt::AlignCenter);
  Binder::Caption(form_.Label1, heading);
  row->addWidget(place);
  row->addWidget(heading, 1);
  return head;
}

// One banner is drawn for bright backgrounds, the other for dark ones.
void InhMainWindow::ShowBanner() {
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  banners_[0]->setVisible(!dark);
  banners_[1]->setVisible(dark);
}

QWidget* InhMainWindow::Menu() {
  auto* menu = new QGroupBox(Frame111());
  menu->setObjectName(QStringLiteral("Frame1"));
  menu->setAccessibleName(QStringLiteral("Menu"));
  binder_.Group(form_.Frame1, menu);
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
  rows->setSpacing(formGap);
  rows->addWidget(Pictures());
  auto* video = new VideoPanel(side);
  rows->addWidget(video, 1);
  connect(video, &QAbstractButton::clicked, this, [this] { form_.Frame5_Click(); });
  video->DoubleClicked = [this] { form_.Frame5_DblClick(); };
  player.PlayIn(video);
  auto* resources = new CaptionButton(QStringLiteral("Frame2"), Gesture::DoubleClick,
                                      QStringLiteral("Open the documents and resources"), side);
  resources->setText(QStringLiteral("Documents (double click)"));
  resources->setAccessibleName(QStringLiteral("Documents and resources"));
  resources->setToolTip(QStringLiteral("Double click, or press Return, to open"));
  resources->SetBorder(QFrame::StyledPanel);
  resources->setContentsMargins(panelMargins);
  connect(resources, &QAbstractButton::clicked, this, [this] { form_.Frame2_DblClick(); });
  auto* last = new QHBoxLayout;
  last->setSpacing(formGap);
  last->addWidget(resources, 1);
  last->addWidget(new QLabel(QStringLiteral("Session"), side));
  last->addWidget(SessionNumber());
  rows->addLayout(last);
  return side;
}

// One picture at a time is visible. The button is the parent of all six.
QWidget* InhMainWindow::Pictures() {
  auto* place = new CaptionButton(QStringLiteral("Image3"), Gesture::Click,
                                  QStringLiteral("Show the next picture"), Frame111());
  place->setFixedSize(videoSize);
  place->setAccessibleName(QStringLiteral("Picture"));
  place->setToolTip(QStringLiteral("Click for the next picture"));
  for (int i = 0; i < form_.Image3.Size; ++i) {
    auto* picture = new PictureLabel(Indexed("Image3", i), QStringLiteral("image3-%1").arg(i),
                                     QStringLiteral("Picture %1").arg(i + 1), place);
    picture->setGeometry(QRect(QPoint(), videoSize).marginsRemoved(focusMargins));
    binder_.Visible(form_.Image3(i).Visible, picture);
  }
  connect(place, &QAbstractButton::clicked, this, [this] {
    for (int shown = 0; shown < form_.Image3.Size; ++shown) {
      if (form_.Image3(shown).Visible) return form_.Image3_Click(shown);
    }
  });
  return place;
}

QWidget* InhMainWindow::SessionNumber() {
  auto* number = new CaptionButton(QStringLiteral("Label22"), Gesture::Click,
                                   QStringLiteral("Show the sessions"), Frame111());
  number->setFont(HeadingFont(font(), largeHeading));
  number->setToolTip(QStringLiteral("Popularity details"));
  number->SetBorder(QFrame::StyledPanel);
  number->setContentsMargins(panelMargins);
  number->SetAlignment(Qt::AlignCenter);
  number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
  number->setAccessibleName(QStringLiteral("Number of this session"));
  connect(number, &QAbstractButton::clicked, this, [this] { form_.Label22_Click(); });
  Binder::Result(form_.Label22, number);
  return number;
}

QWidget* InhMainWindow::Foot() {
  auto* foot = new QWidget(Frame111());
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  auto* agree = new CaptionButton(QStringLiteral("Label5"), Gesture::Click,
                                  QStringLiteral("Show or hide the disclaimer"), foot);
  agree->setForegroundRole(QPalette::Link);
  agree->setCursor(Qt::PointingHandCursor);
  connect(agree, &QAbstractButton::clicked, this, [this] { form_.Label5_Click(); });
  Binder::Caption(form_.Label5, agree);
  auto* advice = new QLabel(foot);
  advice->setObjectName(QStringLiteral("Label6"));
  Binder::Caption(form_.Label6, advice);
  row->addWidget(agree);
  row->addStretch();
  row->addWidget(advice);
  return foot;
}

// The menu, and the disclaimer over it. While the disclaimer is shown, Tab skips the menu. When it is hidden,
// the focus returns.
QWidget* InhMainWindow::Middle(QtVideoPlayer& player) {
  auto* place = new QWidget(Frame111());
  auto* covered = new QWidget(place);
  auto* columns = new QHBoxLayout(covered);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(formGap);
  columns->addWidget(Menu(), 1);
  columns->addWidget(Side(player));
  auto* text = new DisclaimerText(form_, place);
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

void InhMainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  ForceSize();
}

// The menu is laid out for one size, in whose frame everything stands; maximized, the frame is centred. Any
// other size is taken back, unless the desktop insists on it: a size is not refused twice in a row, unless
// the window has had its own size for a while in between.
void InhMainWindow::ForceSize() {
  if (FillsScreen()) return;
  if (size() == minimumSize()) {
    return QTimer::singleShot(settled, this, [this] {
      if (size() == minimumSize()) refused_ = {};
    });
  }
  if (size() == refused_) return;
  refused_ = size();
  QTimer::singleShot(0, this, [this] {
    if (!FillsScreen()) resize(minimumSize());
  });
}

void InhMainWindow::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) ForceSize();
  if (event->type() == QEvent::PaletteChange && banners_[0] != nullptr) ShowBanner();
}

// The program's icon is created after the first painting, so that it does not delay the window.
void InhMainWindow::paintEvent(QPaintEvent* event) {
  FormWindow::paintEvent(event);
  if (std::exchange(painted_, true)) return;
  QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(ProgramIcon()); });
}

void InhMainWindow::closeEvent(QCloseEvent* event) {
  form_.Form_QueryUnload();
  event->setAccepted(form_.Ended());
}

}  // namespace qismora
