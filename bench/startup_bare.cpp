// A minimal Qt program with a number of plain widgets. It prints when its window was painted, the CPU time
// and the memory.

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include "FirstPaint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(800, 600);
  auto* grid = new QGridLayout(&window);
  const int count = argc > 1 ? std::stoi(argv[1]) : 0;
  for (int i = 0; i < count; ++i) {
    const QString words = QStringLiteral("Widget number %1").arg(i);
    QWidget* widget = i % 2 == 0 ? static_cast<QWidget*>(new QLabel(words)) : new QRadioButton(words);
    grid->addWidget(widget, i / 4, i % 4);
  }
  FirstPaint painted(&window, [] {
    PrintStart();
    EndProbe();
  });
  window.show();
  return QApplication::exec();
}
