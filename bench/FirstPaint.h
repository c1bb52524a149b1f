#pragma once

#include <sys/resource.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <utility>

/// Calls a function once, when the window has been painted.
class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget* window, std::function<void()> painted) : QObject(window), painted_(std::move(painted)) {
    window->installEventFilter(this);
  }

  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      window->removeEventFilter(this);
      QTimer::singleShot(0, this, [this] { painted_(); });
    }
    return false;
  }

 private:
  std::function<void()> painted_;
};

inline double Milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// The CPU time of this process, in milliseconds.
inline double CpuTime() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

/// The peak memory of this process, in MiB.
inline double PeakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

/// Prints what bench/measure.py reads: the current time, the CPU time and the peak memory.
inline void PrintStart() { std::printf("%.3f %.3f %.2f", Milliseconds(), CpuTime(), PeakMemory()); }

inline void EndProbe() {
  std::printf("\n");
  std::fflush(stdout);
  QApplication::exit();
}
