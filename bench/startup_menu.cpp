// Starts the program. It prints when the main menu was painted, the CPU time, the memory and the number of
// its widgets. Then it prints how long the Case Study takes to open from the menu, the first time and at
// best.
//   startup_menu DIRECTORY [OPENINGS]     DIRECTORY is used as the program's own

#include <algorithm>

#include "FirstPaint.h"
#include "windows/RunningProgram.h"
#include "windows/style/OutlinedStyle.h"

using namespace qismora;

namespace {

/// Opens and closes the Case Study a number of times.
class Openings {
 public:
  Openings(ProgramWindows& windows, int count) : windows_(windows), left_(count) {}

  void Next() {
    if (left_-- == 0) {
      if (first_ > 0) std::printf(" %.2f %.2f", first_, best_);
      return EndProbe();
    }
    const double before = Milliseconds();
    windows_.MainMenu().Form().Option1_Click(6);
    new FirstPaint(windows_.Study(), [this, before] {
      const double took = Milliseconds() - before;
      if (first_ == 0) first_ = took;
      best_ = best_ == 0 ? took : std::min(best_, took);
      windows_.Study()->close();
      QTimer::singleShot(0, [this] { Next(); });
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
  RunningProgram program(QString::fromLocal8Bit(argv[1]));
  Openings openings(program.Windows, argc > 2 ? std::stoi(argv[2]) : 0);
  FirstPaint painted(&program.Windows.MainMenu(), [&] {
    PrintStart();
    int widgets = 0;
    for (const QWidget* widget : program.Windows.MainMenu().findChildren<QWidget*>())
      widgets += widget->isVisible() ? 1 : 0;
    std::printf(" %d", widgets);
    openings.Next();
  });
  program.Windows.ShowMainMenu();
  return QApplication::exec();
}
