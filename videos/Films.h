#pragma once

#include <QByteArray>
#include <QImage>
#include <array>

#include "Pattern.h"

namespace qismora::film {

struct Film {
  const char* FileName;
  /// What the program knows the file by.
  int Length;
  int Frames;
  Stance (*At)(double seconds);
};

inline constexpr int framesPerSecond = 20;

/// The two films in the order in which the program plays them.
extern const std::array<Film, 2> films;

QImage Frame(const Film& film, int number);

/// The file of the film; empty when its frames do not fit into its length.
QByteArray FileOf(const Film& film);

}  // namespace qismora::film
