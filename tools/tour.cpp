// Plays a worked case in the real windows and leaves pictures of them in a folder. It needs no display.

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "screens/windows/CaseStudyWindow.h"
#include "screens/windows/OutlinedStyle.h"
#include "screens/windows/Ports.h"

using namespace qismora;

namespace {

struct Entry {
  const char* Box;
  const char* Text;
};

// A wife, a son and a daughter share 24000.
constexpr Entry typed[] = {
    {"Text1(1)", "1"},      {"Text1(2)", "1"},  {"Text1(3)", "1"},  {"Text1(24)", "Abdullah"},
    {"Text1(25)", "24000"}, {"Text1(26)", "0"}, {"Text1(27)", "0"}, {"Text1(28)", "0"},
};

/// Answers the boxes that come up, as a person would who only reads them.
class Reader : public QObject {
 public:
  Reader() { startTimer(20); }

 protected:
  void timerEvent(QTimerEvent*) override {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      QTest::keyClick(box, Qt::Key_Return);
    }
  }
};

class Tour {
 public:
  Tour(CaseStudyWindow& window, const QDir& folder) : window_(window), folder_(folder) {}

  bool Play() {
    QTest::qWait(50);
    if (!Picture("1-start")) return false;
    for (const Entry& entry : typed) {
      auto* box = window_.findChild<QLineEdit*>(QString::fromLatin1(entry.Box));
      QTest::mouseClick(box, Qt::LeftButton);
      QTest::keyClicks(box, QString::fromLatin1(entry.Text));
    }
    window_.findChild<QAction*>(QStringLiteral("Resid"))->trigger();
    if (!Picture("2-residuaries")) return false;
    Double("Label1(1)");
    return Picture("3-share-of-wife") && View(0, "4-urdu") && View(2, "5-arabic");
  }

 private:
  void Double(const char* name) {
    QTest::mouseDClick(window_.findChild<QWidget*>(QString::fromLatin1(name)), Qt::LeftButton);
  }

  bool View(int index, const char* name) {
    QTest::mouseClick(window_.findChild<QWidget*>(QStringLiteral("Label4(%1)").arg(index)), Qt::LeftButton);
    return Picture(name);
  }

  bool Picture(const char* name) {
    QTest::qWait(50);  // the caption pictures come a moment after the window
    const QString file = folder_.filePath(QStringLiteral("%1.png").arg(QString::fromLatin1(name)));
    if (!window_.grab().save(file)) {
      std::fprintf(stderr, "qismora_tour: cannot write %s\n", qPrintable(file));
      return false;
    }
    std::printf("%s\n", qPrintable(file));
    return true;
  }

  CaseStudyWindow& window_;
  QDir folder_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: qismora_tour FOLDER\n", stderr);
    return 2;
  }
  QTemporaryDir home;  // the tour changes no settings of the user
  qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  folder.mkpath(QStringLiteral("."));

  SystemClock clock;
  QtMessageBoxes boxes;
  SystemFolders folders;
  QtSaveDialog dialog(folders);
  QtSettings settings;
  Outside outside{clock, boxes, dialog, settings, folders};
  CaseRecord record;
  auto* window = new CaseStudyWindow(record, outside, 1);
  window->show();
  Reader reader;
  const bool played = Tour(*window, folder).Play();
  delete window;
  return played ? 0 : 1;
}
