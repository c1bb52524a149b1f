#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "windows/RunningProgram.h"
#include "windows/platform/Utf8.h"
#include "windows/style/OutlinedStyle.h"

using namespace qismora;

namespace {

// Without a display Qt would abort. This prints a message instead.
void ReportNoDisplay(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return static_cast<void>(std::fprintf(stderr, "%s\n", qPrintable(message)));
  std::fputs("qismora: there is no display to open a window on; start it from a desktop session.\n", stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(ReportNoDisplay);
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  qInstallMessageHandler(nullptr);

  RunningProgram program(QApplication::applicationDirPath());
  program.Windows.ShowMainMenu();
  if (const QStringList arguments = QApplication::arguments(); arguments.size() > 1) {
    const std::string file = FromQt(QFileInfo(arguments.at(1)).absoluteFilePath());
    QTimer::singleShot(0, [&program, file] { program.Windows.OpenCase(file); });
  }
  return QApplication::exec();
}
