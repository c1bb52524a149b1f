#include "windows/platform/SessionEnd.h"

#include <QCoreApplication>
#include <cstdlib>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <csignal>
#endif

namespace qismora {

namespace {

// Called at the end of the process, if the context still exists.
std::function<void()> lastAction;

void RunLastAction() {
  if (const auto act = std::exchange(lastAction, nullptr)) act();
}

#ifdef Q_OS_UNIX

int wakePipe[2] = {-1, -1};  // the ends for reading and for writing

bool OpenWakePipe() {
  if (pipe(wakePipe) != 0) return false;
  for (const int end : wakePipe) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

// A signal handler may do little: it only wakes the event loop.
void Wake(int) {
  const char any = 1;
  [[maybe_unused]] const ssize_t written = write(wakePipe[1], &any, 1);
}

void WhenSignalled(QObject* context, std::function<void()> ended) {
  if (wakePipe[0] < 0 && !OpenWakePipe()) return;
  auto* notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, context);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [ended = std::move(ended)] {
    char any = 0;
    if (read(wakePipe[0], &any, 1) > 0) ended();
  });
  struct sigaction action = {};
  action.sa_handler = Wake;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaction(signal, &action, nullptr);
}

#else

// On other systems only the desktop session ends a program, which Qt reports.
void WhenSignalled(QObject*, const std::function<void()>&) {}

#endif

}  // namespace

void WhenSessionEnds(QObject* context, std::function<void()> ended) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, context, ended);
  // A lost display ends the process within its event loop.
  lastAction = ended;
  QObject::connect(context, &QObject::destroyed, [] { lastAction = nullptr; });
  [[maybe_unused]] static const int registered = std::atexit(RunLastAction);
  WhenSignalled(context, std::move(ended));
}

}  // namespace qismora
