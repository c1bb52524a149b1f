#include "screens/windows/SessionEnd.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace qismora {

namespace {

int wakes[2] = {-1, -1};

// A signal may come at any moment: it only wakes the event loop.
void Wake(int) {
  const char any = 1;
  [[maybe_unused]] const ssize_t written = write(wakes[0], &any, 1);
}

// What the end of the process still has to do, while the one to do it lives.
std::function<void()> lastThing;

void DoLastThing() {
  if (const auto act = std::exchange(lastThing, nullptr)) act();
}

}  // namespace

void WhenSessionEnds(QObject* context, std::function<void()> ended) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, context, ended);
  // A display that goes away ends the process in the middle of its event loop.
  lastThing = ended;
  QObject::connect(context, &QObject::destroyed, [] { lastThing = nullptr; });
  [[maybe_unused]] static const int registered = std::atexit(DoLastThing);
  if (wakes[0] < 0 && socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wakes) != 0) return;
  auto* notifier = new QSocketNotifier(wakes[1], QSocketNotifier::Read, context);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [ended = std::move(ended)] {
    char any = 0;
    if (read(wakes[1], &any, 1) > 0) ended();
  });
  struct sigaction action = {};
  action.sa_handler = Wake;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaction(signal, &action, nullptr);
}

}  // namespace qismora
