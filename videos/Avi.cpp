#include "Avi.h"

#include <QDataStream>
#include <QIODevice>
#include <algorithm>

namespace qismora::video {

namespace {

constexpr int chunkHeader = 8;
constexpr quint32 hasIndex = 0x10;
constexpr quint32 isKeyFrame = 0x10;
constexpr quint32 defaultQuality = 0xffffffff;

/// Appends fields to a chunk, little-endian.
class Fields {
 public:
  Fields() : stream_(&bytes_, QIODevice::WriteOnly) { stream_.setByteOrder(QDataStream::LittleEndian); }

  Fields& Code(const char* fourCharacterCode) {
    stream_.writeRawData(fourCharacterCode, 4);
    return *this;
  }
  Fields& Long(qsizetype number) {
    stream_ << static_cast<quint32>(number);
    return *this;
  }
  Fields& Short(int number) {
    stream_ << static_cast<quint16>(number);
    return *this;
  }
  const QByteArray& Bytes() const { return bytes_; }

 private:
  QByteArray bytes_;
  QDataStream stream_;
};

/// A chunk begins at an even offset. Its length field does not count the padding byte.
QByteArray Chunk(const char* code, const QByteArray& content) {
  QByteArray chunk = Fields().Code(code).Long(content.size()).Bytes() + content;
  if (content.size() % 2 != 0) chunk.append('\0');
  return chunk;
}

QByteArray List(const char* type, const QByteArray& content) { return Chunk("LIST", type + content); }

QByteArray MainHeader(const QList<QByteArray>& frames, QSize size, int framesPerSecond, qsizetype largest) {
  return Fields()
      .Long(1000000 / framesPerSecond)
      .Long(largest * framesPerSecond)
      .Long(0)
      .Long(hasIndex)
      .Long(frames.size())
      .Long(0)
      .Long(1)
      .Long(largest)
      .Long(size.width())
      .Long(size.height())
      .Long(0)
      .Long(0)
      .Long(0)
      .Long(0)
      .Bytes();
}

QByteArray StreamHeader(const QList<QByteArray>& frames, QSize size, int framesPerSecond, qsizetype largest) {
  return Fields()
      .Code("vids")
      .Code("MJPG")
      .Long(0)
      .Long(0)
      .Long(0)
      .Long(1)
      .Long(framesPerSecond)
      .Long(0)
      .Long(frames.size())
      .Long(largest)
      .Long(defaultQuality)
      .Long(0)
      .Short(0)
      .Short(0)
      .Short(size.width())
      .Short(size.height())
      .Bytes();
}

QByteArray PictureFormat(QSize size) {
  constexpr int headerSize = 40;
  constexpr int bits = 24;
  return Fields()
      .Long(headerSize)
      .Long(size.width())
      .Long(size.height())
      .Short(1)
      .Short(bits)
      .Code("MJPG")
      .Long(size.width() * size.height() * bits / 8)
      .Long(0)
      .Long(0)
      .Long(0)
      .Long(0)
      .Bytes();
}

}  // namespace

QByteArray Avi(const QList<QByteArray>& frames, QSize size, int framesPerSecond, qsizetype length) {
  qsizetype largest = 0;
  QByteArray video;
  Fields index;
  for (const QByteArray& frame : frames) {
    largest = std::max(largest, frame.size());
    // Offsets in the index are relative to the type of the list, not to its first frame.
    index.Code("00dc").Long(isKeyFrame).Long(video.size() + 4).Long(frame.size());
    video += Chunk("00dc", frame);
  }
  const QByteArray stream = Chunk("strh", StreamHeader(frames, size, framesPerSecond, largest)) +
                            Chunk("strf", PictureFormat(size));
  const QByteArray header =
      Chunk("avih", MainHeader(frames, size, framesPerSecond, largest)) + List("strl", stream);
  const QByteArray content =
      "AVI " + List("hdrl", header) + List("movi", video) + Chunk("idx1", index.Bytes());
  const qsizetype rest = length - chunkHeader - content.size();
  if (rest < chunkHeader || rest % 2 != 0) return {};
  return Chunk("RIFF", content + Chunk("JUNK", QByteArray(rest - chunkHeader, '\0')));
}

}  // namespace qismora::video
