#pragma once

#include <QByteArray>
#include <QImage>
#include <array>

#include "Pattern.h"

namespace qismora::video {

struct Video {
  const char* FileName;
  /// In bytes; the program recognizes the file by it.
  int Length;
  int Frames;
  Stance (*At)(double seconds);
};

inline constexpr int framesPerSecond = 20;

/// The two videos, in the order in which the program plays them.
extern const std::array<Video, 2> videos;

QImage Frame(const Video& video, int number);

/// Returns the content of the video's file. Empty when its frames do not fit into its length.
QByteArray FileOf(const Video& video);

}  // namespace qismora::video
