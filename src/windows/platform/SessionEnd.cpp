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

// What the end of the process still has to do, while the one to do it lives.
std::function<void()> lastThing;

void DoLastThing() {
  if (const auto act = std::exchange(lastThing, nullptr)) act();
}

#ifdef Q_OS_UNIX

int wakes[2] = {-1, -1};  // the ends for reading and for writing

bool OpenWakes() {
  if (pipe(wakes) != 0) return false;
  for (const int end : wakes) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

// A signal may come at any moment: it only wakes the event loop.
void Wake(int) {
  const char any = 1;
  [[maybe_unused]] const ssize_t written = write(wakes[1], &any, 1);
}

void WhenSignalled(QObject* context, std::function<void()> ended) {
  if (wakes[0] < 0 && !OpenWakes()) return;
  auto* notifier = new QSocketNotifier(wakes[0], QSocketNotifier::Read, context);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [ended = std::move(ended)] {
    char any = 0;
    if (read(wakes[0], &any, 1) > 0) ended();
  });
  struct sigaction action = {};
  action.sa_handler = Wake;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaction(signal, &action, nullptr);
}

#else

// Elsewhere nothing tells a program to end but the desktop session, and Qt passes that on.
void WhenSignalled(QObject*, const std::function<void()>&) {}

#endif

}  // namespace

void WhenSessionEnds(QObject* context, std::function<void()> ended) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, context, ended);
  // A display that goes away ends the process in the middle of its event loop.
  lastThing = ended;
  QObject::connect(context, &QObject::destroyed, [] { lastThing = nullptr; });
  [[maybe_unused]] static const int registered = std::atexit(DoLastThing);
  WhenSignalled(context, std::move(ended));
}

}  // namespace qismora
