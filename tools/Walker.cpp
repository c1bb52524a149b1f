#include "Walker.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "support/FakePorts.h"
#include "windows/ProgramWindows.h"
#include "windows/language/Languages.h"
#include "windows/platform/QtShellPorts.h"
#include "windows/style/OutlinedStyle.h"

namespace qismora::tour {

namespace {

constexpr int fontPixels = 12;
constexpr int pollMilliseconds = 15;
constexpr double mebibyte = 1024.0 * 1024.0;
constexpr int gapBetweenWindows = 8;

struct PastSession {
  DateTime Start;
  DateTime End;
};

// The sessions that are in the log when the tour begins.
constexpr PastSession pastSessions[] = {
    {{2024, 2, 12, 9, 15, 0}, {2024, 2, 12, 9, 47, 30}},
    {{2024, 2, 19, 18, 2, 11}, {2024, 2, 19, 18, 9, 48}},
    {{2024, 3, 1, 11, 30, 5}, {2024, 3, 1, 12, 55, 40}},
    {{2024, 3, 4, 20, 1, 59}, {2024, 3, 4, 20, 14, 3}},
};

/// The ports of the program on its tour. All files are below the current directory, so that no picture shows
/// the name of a temporary directory.
struct TourPorts {
  TourPorts() {
    QDir().mkpath(QStringLiteral("Documents"));
    Folders.Folder = "Documents";
    // The division opens on request, in the size that the pictures have.
    Settings.Write("Qismora", "Division", "Open", "no");
    Settings.Write("Qismora", "Division", "Place", "0,0,860,740");
    Settings.Write("Qismora", "Division", "Language", "en");
    Memory.Figures = {8192 * mebibyte, 5120 * mebibyte, 32 * mebibyte};
    Integer number(0);
    for (const PastSession& past : pastSessions) {
      number += Integer(1);
      AppendLine(Folders.Folder + "/popuQism.ppl",
                 SessionLine(number, past.Start, past.End, SecondsBetween(past.Start, past.End)));
    }
  }

  testing::FakeClock Clock;
  QtProgram Running;
  QtMessageBoxes Boxes{Running};
  testing::FakeFolders Folders;
  QtFileDialogs Dialogs{Folders};
  QtSettings Settings;
  testing::FakeDocumentViewer Viewer;
  QtVideoPlayer Player{QStringList()};
  testing::FakeMemoryMeter Memory;
  testing::FakeProgram Program;
  ShellPorts Ports{{Clock, Boxes, Dialogs, Settings, Folders}, Viewer, Player, Memory, Program};
};

/// Plays the steps of the stops. When a message box opens, it takes a picture of it and closes it with
/// Return.
class Walker : public QObject {
 public:
  explicit Walker(ProgramWindows& windows) : windows_(windows) {
    windows_.ShowMainMenu();
    startTimer(pollMilliseconds);
  }

  QImage Visit(const Stop& stop) {
    messageBox_ = {};
    for (const Step& step : stop.Steps) {
      Play(step);
      Wait();
    }
    if (stop.Shows == Shown::MessageBox) {
      if (messageBox_.isNull()) qFatal("no message box opens for the picture %s", stop.Picture);
      return messageBox_;
    }
    const QImage window = WindowAtRest();
    return stop.Shows == Shown::Window ? window : SideBySide(Picture(windows_.Study()), window);
  }

 protected:
  void timerEvent(QTimerEvent*) override {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isActiveWindow()) return;
    // A message box looks different until it has the focus.
    const QImage previous = std::exchange(last_, Picture(box));
    if (last_ != previous) return;
    if (messageBox_.isNull()) messageBox_ = last_;
    QTest::keyClick(box, Qt::Key_Return);
  }

 private:
  static QImage Picture(QWidget* widget) {
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

  static QImage SideBySide(const QImage& left, const QImage& right) {
    QImage both(left.width() + gapBetweenWindows + right.width(), std::max(left.height(), right.height()),
                QImage::Format_RGB32);
    both.fill(Qt::white);
    QPainter painter(&both);
    painter.drawImage(0, 0, left);
    painter.drawImage(left.width() + gapBetweenWindows, 0, right);
    return both;
  }

  // After a message box has closed, no window is active until one is activated.
  QWidget* ActiveWindow() {
    if (QApplication::activeWindow() == nullptr) {
      (window_ != nullptr && window_->isVisible() ? window_.data() : &windows_.MainMenu())->activateWindow();
      Wait();
    }
    window_ = QApplication::activeWindow();
    return window_;
  }

  /// Waits for the control, since a window may take a moment to open.
  template <class Object>
  Object* Find(const char* name) {
    for (int attempts = 200; attempts > 0; --attempts) {
      QWidget* window = ActiveWindow();
      Object* found = window == nullptr ? nullptr : window->findChild<Object*>(QString::fromLatin1(name));
      if (found != nullptr) return found;
      Wait();
    }
    qFatal("the active window has no %s", name);
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
        auto* field = Find<QLineEdit>(step.Name);
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        return QTest::keyClicks(field, QString::fromLatin1(step.Text));
      }
      case Do::Bottom: {
        QScrollBar* bar = Find<QPlainTextEdit>(step.Name)->verticalScrollBar();
        return bar->setValue(bar->maximum());
      }
      case Do::SetLanguage:
        for (const Language language : AllLanguages) {
          if (NameOf(language) == QString::fromUtf8(step.Name)) SetLanguage(language);
        }
        return;
      case Do::Close:
        ActiveWindow()->close();
    }
  }

  void Wait() {
    QTest::qWait(pollMilliseconds);
    StopTheAnimation();
  }

  // Stops the animation always at the same picture.
  void StopTheAnimation() {
    if (windows_.Study() == nullptr) return;
    CaseStudy& form = windows_.Study()->Form();
    if (form.Timer1 == 0) return;
    form.Image42_Click();
    do form.Timer1_Timer();
    while (!form.Image42(0).Visible);
  }

  // A window may be drawn in several steps. The picture is taken when it has stopped changing.
  QImage WindowAtRest() {
    constexpr int unchangedRounds = 3;
    QWidget* window = ActiveWindow();
    QImage picture = Picture(window);
    for (int unchanged = 0; unchanged < unchangedRounds;) {
      Wait();
      QImage next = Picture(window);
      unchanged = next == picture ? unchanged + 1 : 0;
      picture = next;
    }
    return picture;
  }

  ProgramWindows& windows_;
  QPointer<QWidget> window_;
  QImage messageBox_;
  QImage last_;
};

/// Makes the pictures independent of the desktop, scale and style of the user who starts the tour.
void FixEnvironment(const QString& home) {
  for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                           "QT_QPA_PLATFORMTHEME", "QT_PLUGIN_PATH"}) {
    qunsetenv(name);
  }
  const QString screen = home + QStringLiteral("/screen.json");
  AppendLine(screen.toStdString(),
             R"({"screens": [{"name": "Screen", "x": 0, "y": 0, "width": 1920, "height": 1080,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toLocal8Bit());
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("XDG_CONFIG_HOME", home.toLocal8Bit());
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what the offscreen platform cannot do
}

}  // namespace

Album Walk(const std::vector<Stop>& stops, int argc, char** argv) {
  const QTemporaryDir home;
  FixEnvironment(home.path());
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(fontPixels);
  QApplication::setFont(font);

  const QString before = QDir::currentPath();
  QDir::setCurrent(home.path());
  TourPorts tour;
  ProgramWindows windows(tour.Ports, tour.Player);
  Walker walker(windows);
  Album album;
  for (const Stop& stop : stops) album[QString::fromLatin1(stop.Picture)] = walker.Visit(stop);
  QDir::setCurrent(before);
  return album;
}

}  // namespace qismora::tour
