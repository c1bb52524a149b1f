// The program on the screen that it is started on, which may be too small for its forms.
#include <QAction>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTest>

#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"

namespace qismora {

using testing::Find;
using testing::MessageBoxSpy;
using testing::ProgramFixture;

namespace {

constexpr QSize advisedScreen{800, 600};

// Noto Sans has taller lines: a row of the form needs three pixels more.
constexpr const char* usualFont = "DejaVu Sans";
constexpr const char* tallFont = "Noto Sans";

/// The part of a widget's corner that can be seen.
bool CornerIsSeen(const QWidget* widget) {
  return widget->visibleRegion().contains(widget->rect().adjusted(0, 0, -1, -1).bottomRight());
}

}  // namespace

class SmallScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { Start(usualFont); }
  void cleanup() { program_.reset(); }

  void everythingCanBeReached_data() {
    QTest::addColumn<QByteArray>("font");
    QTest::addColumn<bool>("maximized");
    for (const char* font : {usualFont, tallFont}) {
      QTest::addRow("%s", font) << QByteArray(font) << false;
      QTest::addRow("%s, maximized", font) << QByteArray(font) << true;
    }
  }
  // Nothing lies to the left of the window or above it, and a scroll bar leads to all that lies beyond its
  // other edges. A screen of 800 by 600 shows both forms whole, below a title bar.
  void everythingCanBeReached() {
    QFETCH(const QByteArray, font);
    QFETCH(const bool, maximized);
    Start(font);
    const QSize screen = windows_->MainMenu().screen()->availableSize();
    for (QWidget* window :
         {static_cast<QWidget*>(&windows_->MainMenu()), static_cast<QWidget*>(windows_->Study()),
          static_cast<QWidget*>(windows_->Laws())}) {
      const QByteArray name = window->objectName().toUtf8();
      const int titleBar = window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
      if (maximized) window->showMaximized();
      QVERIFY(QTest::qWaitForWindowExposed(window));
      if (maximized) QTRY_VERIFY2(window->height() > screen.height() - titleBar, name);
      const int above = maximized ? 0 : titleBar;
      QVERIFY2(window->width() <= screen.width() && window->height() + above <= screen.height(), name);
      const auto* scroll = window->findChild<QScrollArea*>();
      const QWidget* frame = Find(window, "Frame111");
      QTRY_VERIFY(scroll->widget()->rect().contains(frame->childrenRect().translated(frame->pos())));
      const QWidget* seen = scroll->viewport();
      QTRY_COMPARE(scroll->horizontalScrollBar()->isVisible(), scroll->widget()->width() > seen->width());
      QTRY_COMPARE(scroll->verticalScrollBar()->isVisible(), scroll->widget()->height() > seen->height());
      // The one for the height stands beside the frame, not over its edge, where the screen is wide enough.
      const int beside = scroll->verticalScrollBar()->sizeHint().width();
      if (screen.width() >= scroll->widget()->minimumWidth() + beside)
        QVERIFY2(!scroll->horizontalScrollBar()->isVisible(), name);
      if (screen.width() < advisedScreen.width() || screen.height() < advisedScreen.height()) continue;
      QTRY_COMPARE(scroll->widget()->size(), seen->size());
    }
  }

  // The amounts are at the end of the answer.
  void f7BringsTheEndOfTheAnswerIntoSight() {
    CaseStudyWindow* study = windows_->Study();
    study->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(study));
    Find<QAction>(study, "FullReport")->trigger();
    boxes_.Take();
    auto* report = Find<QPlainTextEdit>(study, "Text3");
    QVERIFY(report->verticalScrollBar()->maximum() > 0);
    QTest::keyClick(study, Qt::Key_F7);
    QVERIFY(report->hasFocus());
    QVERIFY(report->textCursor().atEnd());
    QVERIFY(report->viewport()->rect().contains(report->cursorRect()));
    QVERIFY(CornerIsSeen(report));
  }

  // Tab leads to each field and brings it into sight.
  void tabBringsWhatItReachesIntoSight() {
    CaseStudyWindow* study = windows_->Study();
    study->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(study));
    auto* last = Find<QCheckBox>(study, "Check1(11)");
    Find(study, "Check1(10)")->setFocus();
    QTest::keyClick(study->focusWidget(), Qt::Key_Tab);
    QVERIFY(last->hasFocus());
    QTRY_VERIFY(!last->visibleRegion().isEmpty());
  }

  void theLogFitsTheScreen() {
    windows_->MainMenu().Form().ShowSession();
    boxes_.Take();
    const QWidget* log = windows_->Log();
    QVERIFY(log->height() < log->screen()->availableSize().height());
  }

 private:
  void Start(const char* fontName) {
    testing::UseFont(fontName);
    program_.reset();
    program_ = std::make_unique<ProgramFixture>();
    windows_ = &program_->Start();
    windows_->MainMenu().Form().ShowCaseStudy();
    windows_->MainMenu().Form().ShowQurLaws();
    windows_->ShowMainMenu();
  }

  MessageBoxSpy boxes_;
  std::unique_ptr<ProgramFixture> program_;
  ProgramWindows* windows_ = nullptr;
};

}  // namespace qismora

int main(int argc, char** argv) {
  return qismora::testing::RunWindowTest<qismora::SmallScreenTest>(argc, argv);
}

#include "small_screen_test.moc"
