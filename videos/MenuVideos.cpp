#include "MenuVideos.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Avi.h"
#include "Geometry.h"
#include "shell/Videos.h"

namespace qismora::video {

namespace {

// The highest JPEG quality that fits into both lengths. It is the same for both: a viewer would see the grain
// change where one video follows the other.
constexpr int quality = 57;

constexpr int dotsPerMeter = 3780;

// The pattern unfolds around the star in the centre.
Stance Opening(double seconds) {
  Stance stance;
  stance.Unfolded = std::min(1.0, seconds / 5.4);
  return stance;
}

// The pattern turns by a right angle while its straps lean. It ends as it begins and as the opening ends,
// because the program plays it again and again and no seam may show.
Stance Turning(double seconds) {
  const double progress = Eased(seconds, 0.1, 4.9);
  Stance stance;
  stance.Turn = 90 * progress;
  stance.RosetteTurn = -180 * progress;
  stance.Lean -= 15 * std::pow(std::sin(M_PI * progress), 2);
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

const std::array<Video, 2> videos{{
    {"brindhaven1.avi", SecondVideoLength, 130, Opening},
    {"brindhaven.avi", FirstVideoLength, 112, Turning},
}};

QImage Frame(const Video& video, int number) {
  QImage image(frameSize, QImage::Format_RGB32);
  // Otherwise the files would depend on the resolution of the current screen.
  image.setDotsPerMeterX(dotsPerMeter);
  image.setDotsPerMeterY(dotsPerMeter);
  QPainter painter(&image);
  Draw(painter, video.At(static_cast<double>(number) / framesPerSecond));
  return image;
}

QByteArray FileOf(const Video& video) {
  QList<QByteArray> frames;
  for (int number = 0; number < video.Frames; ++number) frames << Jpeg(Frame(video, number));
  return Avi(frames, frameSize, framesPerSecond, video.Length);
}

}  // namespace qismora::video
