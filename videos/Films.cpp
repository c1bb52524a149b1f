#include "Films.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Avi.h"
#include "Geometry.h"
#include "shell/Videos.h"

namespace qismora::film {

namespace {

// The best that both lengths have room for. One for both: the grain of a picture changes with its quality,
// and the eye sees it change where one film follows the other.
constexpr int quality = 57;

constexpr int dotsPerMeter = 3780;

// The pattern unfolds about the star in the middle.
Stance Opening(double seconds) {
  Stance stance;
  stance.Unfolded = std::min(1.0, seconds / 5.4);
  return stance;
}

// The pattern turns by a right angle, and its straps lean while it does. It ends as it began, and as the
// opening ends: the program plays it again and again, and no joint shows.
Stance Turning(double seconds) {
  const double way = Eased(seconds, 0.1, 4.9);
  Stance stance;
  stance.Turn = 90 * way;
  stance.RosetteTurn = -180 * way;
  stance.Lean -= 15 * std::pow(std::sin(M_PI * way), 2);
  return stance;
}

QByteArray Jpeg(const QImage& image) {
  QBuffer buffer;
  QImageWriter writer(&buffer, "jpg");
  writer.setQuality(quality);
  writer.setOptimizedWrite(true);
  if (!writer.write(image)) qFatal("a frame cannot be written: %s", qPrintable(writer.errorString()));
  return buffer.data();
}

}  // namespace

const std::array<Film, 2> films{{
    {"brindhaven1.avi", SecondVideoLength, 130, Opening},
    {"brindhaven.avi", FirstVideoLength, 112, Turning},
}};

QImage Frame(const Film& film, int number) {
  QImage image(frameSize, QImage::Format_RGB32);
  // Or the files would tell the resolution of the screen at hand.
  image.setDotsPerMeterX(dotsPerMeter);
  image.setDotsPerMeterY(dotsPerMeter);
  QPainter painter(&image);
  Draw(painter, film.At(static_cast<double>(number) / framesPerSecond));
  return image;
}

QByteArray FileOf(const Film& film) {
  QList<QByteArray> frames;
  for (int number = 0; number < film.Frames; ++number) frames << Jpeg(Frame(film, number));
  return Avi(frames, frameSize, framesPerSecond, film.Length);
}

}  // namespace qismora::film
