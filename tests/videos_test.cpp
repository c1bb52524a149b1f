#include <gtest/gtest.h>

#include <QFile>
#include <QtEndian>
#include <cstdlib>
#include <map>

#include "Avi.h"
#include "Films.h"

namespace qismora::film {
namespace {

/// The chunks of a film, as a player reads them.
class Reader {
 public:
  explicit Reader(QByteArray content) : content_(std::move(content)) { Walk(0, content_.size()); }

  quint32 Number(qsizetype at) const { return qFromLittleEndian<quint32>(content_.constData() + at); }
  QByteArray Code(qsizetype at) const { return content_.mid(at, 4); }
  /// Where the one chunk of this name has its content.
  qsizetype At(const char* code) const {
    EXPECT_EQ(places_.count(code), 1U) << code;
    const auto found = places_.find(code);
    return found == places_.end() ? 8 : found->second;
  }
  quint32 LengthAt(qsizetype content) const { return Number(content - 4); }
  /// The frames that the index leads to.
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
  qsizetype FrameChunks() const { return static_cast<qsizetype>(places_.count("00dc")); }

 private:
  // The place of a list is that of its type, from where the index counts.
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

QByteArray Built(const Film& film) {
  QFile file(QStringLiteral(FILMS_FOLDER "/%1").arg(QLatin1String(film.FileName)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << film.FileName;
  return file.readAll();
}

QImage Decoded(const QByteArray& jpeg) {
  return QImage::fromData(jpeg, "JPG").convertToFormat(QImage::Format_RGB32);
}

/// How much the colours of two pictures differ, from 0 to 255.
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

TEST(Films, HaveTheLengthsThatTheProgramPlays) {
  const std::map<std::string, qsizetype> lengths{{"brindhaven.avi", 1069056}, {"brindhaven1.avi", 941056}};
  for (const Film& film : films) EXPECT_EQ(Built(film).size(), lengths.at(film.FileName)) << film.FileName;
}

TEST(Films, TellTheirFormAndTheirFramesToPlayers) {
  for (const Film& film : films) {
    const Reader reader(Built(film));
    const auto width = static_cast<quint32>(frameSize.width());
    const auto height = static_cast<quint32>(frameSize.height());
    const auto count = static_cast<quint32>(film.Frames);
    EXPECT_EQ(reader.At("AVI "), 8);
    const qsizetype main = reader.At("avih");
    EXPECT_EQ(reader.LengthAt(main), 56U);
    EXPECT_EQ(reader.Number(main), 1000000U / framesPerSecond);
    EXPECT_EQ(reader.Number(main + 16), count);
    EXPECT_EQ(reader.Number(main + 32), width);
    EXPECT_EQ(reader.Number(main + 36), height);
    const qsizetype stream = reader.At("strh");
    EXPECT_EQ(reader.LengthAt(stream), 56U);
    EXPECT_EQ(reader.Code(stream) + reader.Code(stream + 4), "vidsMJPG");
    EXPECT_EQ(reader.Number(stream + 24), reader.Number(stream + 20) * framesPerSecond);
    EXPECT_EQ(reader.Number(stream + 32), count);
    EXPECT_EQ(reader.Number(stream + 52), width + (height << 16));
    const qsizetype format = reader.At("strf");
    EXPECT_EQ(reader.LengthAt(format), 40U);
    EXPECT_EQ(reader.Number(format + 4), width);
    EXPECT_EQ(reader.Number(format + 8), height);
    EXPECT_EQ(reader.Code(format + 16), "MJPG");
    EXPECT_EQ(reader.FrameChunks(), film.Frames);
    EXPECT_EQ(reader.Frames().size(), film.Frames);
  }
}

// What a viewer would be startled by: a frame that is none, a jump from one frame to the next, a joint that
// shows where the second film follows the first and then itself.
TEST(Films, RunWithoutJumpsAndWithoutJoints) {
  constexpr double jump = 15;
  constexpr double joint = 1.5;
  QImage last;
  for (const Film* film : {&films[0], &films[1], &films[1]}) {
    double limit = joint;
    for (const QByteArray& jpeg : Reader(Built(*film)).Frames()) {
      const QImage image = Decoded(jpeg);
      ASSERT_EQ(image.size(), frameSize) << film->FileName;
      const double way = last.isNull() ? 0 : Difference(last, image);
      ASSERT_LT(way, limit) << film->FileName;
      limit = jump;
      last = image;
    }
  }
}

TEST(Films, AreTheSameBytesWheneverTheyAreMade) {
  for (const Film& film : films) EXPECT_TRUE(FileOf(film) == Built(film)) << film.FileName;
}

TEST(Avi, IsFilledToItsLengthOrRefused) {
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
}  // namespace qismora::film
