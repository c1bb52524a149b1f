#include "windows/division/DivisionPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace qismora {

namespace {

constexpr QSize usualSize{900, 820};
constexpr int leastWidth = 560;
constexpr int leastSeen = 120;
constexpr int overlap = 20;

/// Where it was, if enough of it is on the screen to take hold of.
QRect SavedPlace(const QWidget& study, const DivisionSettings& settings, bool opensByItself) {
  const QList<int> saved = settings.Numbers("Place", 4);
  if (saved.isEmpty()) return {};
  const QRect place(saved[0], saved[1], saved[2], saved[3]);
  if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return place;  // only the size
  const QRect seen = place & study.screen()->availableGeometry();
  if (seen.width() < leastSeen || seen.height() < leastSeen || seen.top() - place.top() > overlap) return {};
  const QRect free = study.frameGeometry().adjusted(overlap, overlap, -overlap, -overlap);
  return opensByItself && HasRoomBeside(study) && place.intersects(free) ? QRect() : place;
}

QRect PlaceBeside(const QWidget& study, QSize most) {
  const QRect screen = study.screen()->availableGeometry();
  const QSize size = usualSize.boundedTo(most);
  if (!HasRoomBeside(study)) return {QPoint(screen.right() + 1 - size.width(), screen.top()), size};
  const int left = study.frameGeometry().right() + 1;
  return {left, study.y(), std::min(size.width(), screen.right() + 1 - left), size.height()};
}

}  // namespace

bool HasRoomBeside(const QWidget& study) {
  return study.screen()->availableGeometry().right() - study.frameGeometry().right() >= leastWidth;
}

QRect DivisionPlace(const QWidget& study, const DivisionSettings& settings, bool opensByItself,
                    int titleBar) {
  const QSize most = study.screen()->availableGeometry().size() - QSize(0, titleBar);
  const QRect saved = SavedPlace(study, settings, opensByItself);
  const QRect place = saved.isEmpty() ? PlaceBeside(study, most) : saved;
  return {place.topLeft(), place.size().boundedTo(most)};
}

}  // namespace qismora
