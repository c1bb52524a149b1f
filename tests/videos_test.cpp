#include <gtest/gtest.h>

#include <QFile>
#include <QtEndian>
#include <cstdlib>
#include <map>

#include "Avi.h"
#include "MenuVideos.h"

namespace qismora::video {
namespace {

/// Reads the chunks of a video as a player does.
class Reader {
 public:
  explicit Reader(QByteArray content) : content_(std::move(content)) { Walk(0, content_.size()); }

  quint32 Number(qsizetype at) const { return qFromLittleEndian<quint32>(content_.constData() + at); }
  QByteArray Code(qsizetype at) const { return content_.mid(at, 4); }
  /// The offset of the content of the only chunk with this code.
  qsizetype At(const char* code) const {
    EXPECT_EQ(places_.count(code), 1U) << code;
    const auto found = places_.find(code);
    return found == places_.end() ? 8 : found->second;
  }
  quint32 LengthAt(qsizetype content) const { return Number(content - 4); }
  /// The frames that the index points to.
  QList<QByteArray> Frames() const {
    QList<QByteArray> frames;
    const qsizetype index = At("idx1");
    for (qsizetype entry = index; entry < index + LengthAt(index); entry += 16) {
      const qsizetype chunk = At("movi") + Number(entry + 8);
      EXPECT_EQ(Code(entry), "00dc");
      EXPECT_EQ(Code(chunk), "00dc");
      EXPECT_EQ(Number(chunk + 4), Number(entry + 12));
      frames << content_.mid(chunk + 8, Number(chunk + 4));
    }
    return frames;
  }

 private:
  // The offset of a list is that of its type, which the index is relative to.
  void Walk(qsizetype at, qsizetype end) {
    while (at < end) {
      ASSERT_LE(at + 8, end);
      const QByteArray code = Code(at);
      const qsizetype length = Number(at + 4);
      const bool list = code == "RIFF" || code == "LIST";
      ASSERT_LE(at + 8 + length, end) << code.constData();
      places_.emplace((list ? Code(at + 8) : code).toStdString(), at + 8);
      if (list) Walk(at + 12, at + 8 + length);
      at += 8 + length + length % 2;
    }
    EXPECT_EQ(at, end);
  }

  QByteArray content_;
  std::multimap<std::string, qsizetype> places_;
};

QByteArray Built(const Video& video) {
  QFile file(QStringLiteral(VIDEO_DIRECTORY "/%1").arg(QLatin1String(video.FileName)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << video.FileName;
  return file.readAll();
}

QImage Decoded(const QByteArray& jpeg) {
  return QImage::fromData(jpeg, "JPG").convertToFormat(QImage::Format_RGB32);
}

/// The mean difference of the colours of two pictures, from 0 to 255.
double Difference(const QImage& one, const QImage& other) {
  double sum = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
    }
  }
  return sum / (3.0 * one.width() * one.height());
}

TEST(MenuVideos, HaveTheLengthsThatTheProgramPlays) {
  const std::map<std::string, qsizetype> lengths{{"brindhaven.avi", 1069056}, {"brindhaven1.avi", 941056}};
  for (const Video& video : videos)
    EXPECT_EQ(Built(video).size(), lengths.at(video.FileName)) << video.FileName;
}

// A viewer would notice a frame that is no picture, a jump from one frame to the next, a seam where the
// second video follows the first and then itself.
TEST(MenuVideos, RunWithoutJumpsAndSeams) {
  constexpr double jump = 15;
  constexpr double seam = 1.5;
  QImage last;
  for (const Video* video : {&videos[0], &videos[1], &videos[1]}) {
    double limit = seam;
    const QList<QByteArray> frames = Reader(Built(*video)).Frames();
    ASSERT_EQ(frames.size(), video->Frames) << video->FileName;
    for (const QByteArray& jpeg : frames) {
      const QImage image = Decoded(jpeg);
      ASSERT_EQ(image.size(), frameSize) << video->FileName;
      const double difference = last.isNull() ? 0 : Difference(last, image);
      ASSERT_LT(difference, limit) << video->FileName;
      limit = jump;
      last = image;
    }
  }
}

TEST(MenuVideos, AreReproducible) {
  for (const Video& video : videos) EXPECT_TRUE(FileOf(video) == Built(video)) << video.FileName;
}

TEST(Avi, IsPaddedToItsLengthOrRefused) {
  const QList<QByteArray> frames{"odd", "even", ""};
  const QSize size(16, 16);
  constexpr qsizetype least = 320;
  for (qsizetype length = least; length < least + 8; length += 2) {
    const QByteArray file = Avi(frames, size, 20, length);
    ASSERT_EQ(file.size(), length);
    EXPECT_EQ(Reader(file).Frames(), frames);
  }
  EXPECT_TRUE(Avi(frames, size, 20, least - 2).isEmpty());
  EXPECT_TRUE(Avi(frames, size, 20, least + 1).isEmpty());
}

}  // namespace
}  // namespace qismora::video
