#include "windows/widgets/FormWindow.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>

#include "windows/style/Fonts.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

constexpr int twips = 15;
/// Pixels above the panels of a status bar.
constexpr int statusMargin = 3;
constexpr QSize formSize{CentredFrame::Width / twips, CentredFrame::Height / twips};

}  // namespace

FormWindow::FormWindow(CentredFrame& form, const char* name, const QString& accessibleName, int largestText)
    : placed_(form),
      scroll_(new QScrollArea(this)),
      background_(new QWidget),
      frame_(new QWidget(background_)) {
  setObjectName(QString::fromLatin1(name));
  setAccessibleName(accessibleName);
  LimitFont(this, largestText);
  OpenToKeyboard(this);
  frame_->setObjectName(QStringLiteral("Frame111"));
  frame_->setAccessibleName(accessibleName);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidgetResizable(true);
  scroll_->setWidget(background_);
  setCentralWidget(scroll_);
  statusBar()->setObjectName(QStringLiteral("StatusBar1"));
  statusBar()->setAccessibleName(QStringLiteral("Status bar"));
}

QLabel* FormWindow::AddPanel(const char* name, const QString& accessibleName) {
  auto* panel = new QLabel(this);
  panel->setObjectName(QString::fromLatin1(name));
  panel->setAccessibleName(accessibleName);
  panel->setTextFormat(Qt::PlainText);
  statusBar()->addWidget(panel, 1);
  return panel;
}

void FormWindow::AddStrip(QWidget* strip) {
  strip_ = strip;
  stripPlace_ = new QWidget(this);
  stripPlace_->setFixedHeight(strip->fontInfo().pixelSize() + 2);
  auto* place = new QWidget(this);
  auto* rows = new QVBoxLayout(place);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(takeCentralWidget(), 1);
  rows->addWidget(stripPlace_);
  setCentralWidget(place);
  place->installEventFilter(this);
  stripPlace_->installEventFilter(this);
  strip->raise();
}

void FormWindow::PlaceStrip() {
  const QRect place(stripPlace_->mapTo(this, QPoint()), stripPlace_->size());
  strip_->setGeometry(place.adjusted(0, 0, 0, statusMargin));
}

// The frame extends below the status bar, because the menu and the status bar are part of the form's height.
void FormWindow::SetSizes(const QSize& window, int margin) {
  bars_ = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
  const bool strip = strip_ != nullptr;
  if (strip) bars_ += strip_->sizeHint().height();
  frame_->layout()->setContentsMargins(margin, strip ? margin / 2 : margin, margin,
                                       strip ? bars_ : margin + bars_);
  const QSize least = frame_->layout()->totalMinimumSize();
  background_->setMinimumSize(least - QSize(0, bars_));
  frameSize_ = formSize.expandedTo(least);

  const QSize screenSize = screen()->availableSize();
  const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  QSize size = window.expandedTo(least).boundedTo(screenSize - QSize(0, titleBar));
  if (size.height() < least.height()) {
    // If the screen is wide enough, the scroll bar does not cover the frame.
    size.rwidth() = qMin(screenSize.width(), size.width() + scroll_->verticalScrollBar()->sizeHint().width());
  }
  setMinimumSize(size);
  resize(size);
  background_->installEventFilter(this);
}

// The form may place the frame outside a small window. Its upper left corner stays visible.
void FormWindow::PlaceFrame() {
  const bool maximized = FillsScreen();
  const QSize place = background_->size() + QSize(0, bars_);
  frame_->resize(FrameGrows() && !maximized ? place : frameSize_.boundedTo(place));
  placed_.Form_Resize(maximized, width() * twips, height() * twips);
  frame_->move(qMax(0, placed_.Frame111Left / twips), qMax(0, placed_.Frame111Top / twips));
}

void FormWindow::BringIntoSight(const QWidget* widget) {
  const QRect place(widget->mapTo(background_, QPoint()), widget->size());
  for (const QPoint& corner : {place.topLeft(), place.bottomRight()})
    scroll_->ensureVisible(corner.x(), corner.y());
}

// The background is resized after the window, so the size of the window is known.
bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool isPlaced = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (watched == background_ && event->type() == QEvent::Resize) PlaceFrame();
  if (isPlaced && strip_ != nullptr && (watched == stripPlace_ || watched == centralWidget())) PlaceStrip();
  return QMainWindow::eventFilter(watched, event);
}

void FormWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) PlaceFrame();
  if (event->type() == QEvent::PaletteChange) binder_.Recolour();
}

}  // namespace qismora
