// The program as it starts: tells when the main menu was painted, the memory that it took, the number of its
// widgets, and how long the Case Study takes to open from the menu, the first time and at best.

#include <algorithm>

#include "FirstPaint.h"
#include "screens/windows/OutlinedStyle.h"
#include "screens/windows/ProgramWindows.h"
#include "screens/windows/ShellPorts.h"

using namespace qismora;

namespace {

/// Opens and closes the Case Study so many times.
class Openings {
 public:
  Openings(ProgramWindows& windows, int count) : windows_(windows), left_(count) {}

  void Next() {
    const double before = Milliseconds();
    windows_.MainMenu().Form().Option1_Click(6);
    new FirstPaint(windows_.Study(), [this, before] {
      const double took = Milliseconds() - before;
      if (first_ == 0) first_ = took;
      best_ = best_ == 0 ? took : std::min(best_, took);
      windows_.Study()->close();
      if (--left_ > 0) return QTimer::singleShot(0, [this] { Next(); });
      std::printf(" %.2f %.2f\n", first_, best_);
      std::fflush(stdout);
      QApplication::exit();
    });
  }

 private:
  ProgramWindows& windows_;
  int left_;
  double first_ = 0;
  double best_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  SystemClock clock;
  QtMessageBoxes boxes;
  ProgramFolders folders(QString::fromLocal8Bit(argv[1]));
  QtSaveDialog dialog(folders);
  QtSettings settings;
  QtDocumentViewer viewer;
  QtVideoPlayer player(folders.Plugins());
  SystemMemory memory;
  QtProgram program;
  ShellOutside outside{{clock, boxes, dialog, settings, folders}, viewer, player, memory, program};
  ProgramWindows windows(outside, player);
  Openings openings(windows, argc > 2 ? std::stoi(argv[2]) : 1);
  FirstPaint painted(&windows.MainMenu(), [&] {
    int widgets = 0;
    for (const QWidget* widget : windows.MainMenu().findChildren<QWidget*>())
      widgets += widget->isVisible() ? 1 : 0;
    std::printf("%.3f %.2f %d", Milliseconds(), PeakMemory(), widgets);
    openings.Next();
  });
  windows.ShowMainMenu();
  return QApplication::exec();
}
