// The Division window beside Case Study: prints how long it takes to open for the first time and at best, and
// then, for a usual family and for one of every kind of heir, how long a keystroke takes until table and tree
// are painted. All in milliseconds, at the scale of QT_SCALE_FACTOR.
//   division_window FOLDER     FOLDER stands for the program's own

#include <algorithm>
#include <vector>

#include "FirstPaint.h"
#include "windows/RunningProgram.h"
#include "windows/division/DivisionOpener.h"
#include "windows/style/OutlinedStyle.h"

using namespace qismora;

namespace {

constexpr int keystrokes = 61;
constexpr int openings = 5;

/// The window of the division, which the opener makes when it is first shown.
QWidget* DivisionOf(const QWidget* study) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window != study && window->objectName() == QLatin1String("Division")) return window;
  }
  return nullptr;
}

/// The median of the times from a change of a field to the end of the paint events.
double Keystroke(CaseStudy& form) {
  std::vector<double> times;
  for (int i = 0; i < keystrokes; ++i) {
    const double before = Milliseconds();
    form.Text1(3).Text = i % 2 == 0 ? "3" : "2";
    QApplication::processEvents();  // the update, and the paint that it asks for
    QApplication::processEvents();
    times.push_back(Milliseconds() - before);
  }
  std::nth_element(times.begin(), times.begin() + keystrokes / 2, times.end());
  return times[keystrokes / 2];
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  RunningProgram program(QString::fromLocal8Bit(argv[1]));
  program.Windows.ShowMainMenu();
  program.Windows.MainMenu().Form().ShowCaseStudy();
  CaseStudyWindow* study = program.Windows.Study();
  CaseStudy& form = study->Form();
  for (const int field : {1, 14, 16, 31}) form.Text1(field).Text = "1";
  form.Text1(3).Text = "2";

  double first = 0;
  double best = 0;
  for (int i = 0; i < openings; ++i) {
    if (QWidget* open = DivisionOf(study)) open->close();
    const double before = Milliseconds();
    study->Division().Open();
    QApplication::processEvents();
    const double took = Milliseconds() - before;
    if (first == 0) first = took;
    best = best == 0 ? took : std::min(best, took);
  }
  const double usual = Keystroke(form);
  for (const int field : HeirFieldIndexes) form.Text1(field).Text = field >= 13 && field <= 21 ? "1" : "2";
  for (int i = 0; i < form.Check1.Size; ++i) form.Check1(i).Value = 1;
  std::printf("%.2f %.2f %.2f %.2f\n", first, best, usual, Keystroke(form));
  return 0;
}
