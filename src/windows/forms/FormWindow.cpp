#include "windows/forms/FormWindow.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "windows/widgets/Accessibles.h"
#include "windows/widgets/Keyboard.h"
#include "windows/widgets/SmallScreen.h"

namespace qismora {

namespace {

constexpr QSize formSize{800, 600};
constexpr int twips = 15;
constexpr int margin = 12;
constexpr int largestLetters = 14;

}  // namespace

FormWindow::FormWindow(const char* name, const QString& spoken) {
  MakeAccessible();
  setObjectName(QString::fromLatin1(name));
  setAccessibleName(spoken);
  LimitLetters(this, largestLetters);
  OpenToKeyboard(this);
  auto* ground = new QWidget(this);
  frame_ = new QWidget(ground);
  frame_->setObjectName(QStringLiteral("Frame111"));
  frame_->setAccessibleName(spoken);
  setCentralWidget(ground);
  statusBar()->setObjectName(QStringLiteral("StatusBar1"));
  statusBar()->setAccessibleName(tr("Status bar"));
}

QLabel* FormWindow::AddPanel(const char* name, const QString& spoken) {
  auto* panel = new QLabel(this);
  panel->setObjectName(QString::fromLatin1(name));
  panel->setAccessibleName(spoken);
  panel->setTextFormat(Qt::PlainText);
  statusBar()->addWidget(panel, 1);
  return panel;
}

// On a screen smaller than the form its upper left corner stays in sight.
void FormWindow::FollowPlace(Property<int>& left, Property<int>& top) {
  const auto place = [this, &left, &top] { frame_->move(qMax(0, left / twips), qMax(0, top / twips)); };
  Binder::Follow<int>(left, place);
  Binder::Follow<int>(top, place);
}

void FormWindow::SetSizes() {
  const int bars = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
  frame_->layout()->setContentsMargins(margin, margin, margin, margin + bars);
  const QSize size = frame_->layout()->totalMinimumSize().expandedTo(formSize);
  frame_->resize(size);
  FitWindow(this, size, size - QSize(0, bars), screen()->availableSize());
}

void FormWindow::Tell() { TellSize(IsMaximizedForm(), width() * twips, height() * twips); }

void FormWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Tell();
}

void FormWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) Tell();
  if (event->type() == QEvent::PaletteChange) binder_.Recolour();
}

}  // namespace qismora
