#include "Walker.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "support/MemoryOutside.h"
#include "windows/forms/ProgramWindows.h"
#include "windows/platform/ShellPorts.h"
#include "windows/style/OutlinedStyle.h"

namespace qismora::tour {

namespace {

constexpr int letters = 12;
constexpr int moment = 15;
constexpr double mebibyte = 1024.0 * 1024.0;

struct PastSession {
  DateTime Start;
  DateTime End;
};

// The sessions that the log tells of when the tour begins.
constexpr PastSession pastSessions[] = {
    {{2024, 2, 12, 9, 15, 0}, {2024, 2, 12, 9, 47, 30}},
    {{2024, 2, 19, 18, 2, 11}, {2024, 2, 19, 18, 9, 48}},
    {{2024, 3, 1, 11, 30, 5}, {2024, 3, 1, 12, 55, 40}},
    {{2024, 3, 4, 20, 1, 59}, {2024, 3, 4, 20, 14, 3}},
};

/// Everything around the program. Its files lie below the current folder, so that a picture that shows where
/// shows no name made for this tour alone.
struct Surroundings {
  Surroundings() {
    QDir().mkpath(QStringLiteral("Documents"));
    Folders.Folder = "Documents";
    Memory.Figures = {8192 * mebibyte, 5120 * mebibyte, 32 * mebibyte};
    Integer number(0);
    for (const PastSession& past : pastSessions) {
      number += Integer(1);
      AppendLine(Folders.Folder + "/popuQism.ppl",
                 SessionLine(number, past.Start, past.End, SecondsBetween(past.Start, past.End)));
    }
  }

  testing::MemoryClock Clock;
  QtProgram Running;
  QtMessageBoxes Boxes{Running};
  testing::MemoryFolders Folders;
  QtSaveDialog Dialog{Folders};
  QtSettings Settings;
  testing::MemoryViewer Viewer;
  QtVideoPlayer Player{QStringList()};
  testing::MemoryMemory Memory;
  testing::MemoryProgram Program;
  ShellOutside Ports{{Clock, Boxes, Dialog, Settings, Folders}, Viewer, Player, Memory, Program};
};

/// Plays the steps of the stops. Message boxes are read while they are up, photographed where the stop is for
/// them, and left by the button that Return presses.
class Walker : public QObject {
 public:
  explicit Walker(ProgramWindows& windows) : windows_(windows) {
    windows_.ShowMainMenu();
    startTimer(moment);
  }

  QImage Visit(const Stop& stop) {
    box_ = {};
    for (const Step& step : stop.Steps) {
      Play(step);
      Wait();
    }
    if (stop.Shows == Shown::Box) {
      if (box_.isNull()) qFatal("no box comes up for the picture %s", stop.Picture);
      return box_;
    }
    return WindowAtRest();
  }

 protected:
  void timerEvent(QTimerEvent*) override {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isActiveWindow()) return;
    // A box looks different until it has the focus.
    const QImage before = std::exchange(coming_, Taken(box));
    if (coming_ != before) return;
    if (box_.isNull()) box_ = coming_;
    QTest::keyClick(box, Qt::Key_Return);
  }

 private:
  static QImage Taken(QWidget* widget) {
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

  // Behind a box that has closed, no window is active until somebody turns to it.
  QWidget* InUse() {
    if (QApplication::activeWindow() == nullptr) {
      (last_ != nullptr && last_->isVisible() ? last_.data() : &windows_.MainMenu())->activateWindow();
      Wait();
    }
    last_ = QApplication::activeWindow();
    return last_;
  }

  /// A window that has been asked for may take a moment to come.
  template <class Object>
  Object* Find(const char* name) {
    for (int patience = 200; patience > 0; --patience) {
      QWidget* window = InUse();
      Object* found = window == nullptr ? nullptr : window->findChild<Object*>(QString::fromLatin1(name));
      if (found != nullptr) return found;
      Wait();
    }
    qFatal("the window in use has no %s", name);
  }

  void Play(const Step& step) {
    switch (step.What) {
      case Do::Click:
        return QTest::mouseClick(Find<QWidget>(step.Name), Qt::LeftButton);
      case Do::DoubleClick:
        return QTest::mouseDClick(Find<QWidget>(step.Name), Qt::LeftButton);
      case Do::Hover: {
        auto* widget = Find<QWidget>(step.Name);
        QWidget* window = widget->window();
        return QTest::mouseMove(window->windowHandle(), widget->mapTo(window, widget->rect().center()));
      }
      case Do::Choose:
        return Find<QAction>(step.Name)->trigger();
      case Do::Pick:
        return Find<QComboBox>(step.Name)->setCurrentText(QString::fromLatin1(step.Text));
      case Do::Type: {
        auto* box = Find<QLineEdit>(step.Name);
        QTest::mouseClick(box, Qt::LeftButton);
        box->selectAll();
        return QTest::keyClicks(box, QString::fromLatin1(step.Text));
      }
      case Do::Bottom: {
        QScrollBar* bar = Find<QPlainTextEdit>(step.Name)->verticalScrollBar();
        return bar->setValue(bar->maximum());
      }
      case Do::Close:
        InUse()->close();
    }
  }

  void Wait() {
    QTest::qWait(moment);
    StopTheAnimation();
  }

  // It stands at the same picture, however late it is stopped.
  void StopTheAnimation() {
    if (windows_.Study() == nullptr) return;
    CaseStudy& form = windows_.Study()->Form();
    if (form.Timer1 == 0) return;
    form.Image42_Click();
    do form.Timer1_Timer();
    while (!form.Image42(0).Visible);
  }

  // Drawings come a moment after their window; the picture is taken when nothing moves any more.
  QImage WindowAtRest() {
    constexpr int stillRounds = 3;
    QWidget* window = InUse();
    QImage last = Taken(window);
    for (int still = 0; still < stillRounds;) {
      Wait();
      QImage next = Taken(window);
      still = next == last ? still + 1 : 0;
      last = next;
    }
    return last;
  }

  ProgramWindows& windows_;
  QPointer<QWidget> last_;
  QImage box_;
  QImage coming_;
};

/// Desktop, scale and style of whoever starts the tour are out of the picture.
void FixEnvironment(const QString& home) {
  for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "QT_PLUGIN_PATH"}) {
    qunsetenv(name);
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("XDG_CONFIG_HOME", home.toLocal8Bit());
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what a screen that nobody sees cannot do
}

}  // namespace

Album Walk(const std::vector<Stop>& road, int argc, char** argv) {
  const QTemporaryDir home;
  FixEnvironment(home.path());
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(letters);
  QApplication::setFont(font);

  const QString before = QDir::currentPath();
  QDir::setCurrent(home.path());
  Surroundings around;
  ProgramWindows windows(around.Ports, around.Player);
  Walker walker(windows);
  Album album;
  for (const Stop& stop : road) album[QString::fromLatin1(stop.Picture)] = walker.Visit(stop);
  QDir::setCurrent(before);
  return album;
}

}  // namespace qismora::tour
