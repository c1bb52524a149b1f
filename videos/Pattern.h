#pragma once

#include <QSize>

class QPainter;

namespace qismora::film {

/// How the star pattern stands at one moment. Angles are in degrees.
struct Stance {
  /// From 0, where only the star in the middle is there, to 1, where the pattern covers the field.
  double Unfolded = 1;
  /// The whole field turns about its middle. A right angle brings it back to itself.
  double Turn = 0;
  /// The small stars turn against the field. Half a right angle brings them back to themselves.
  double RosetteTurn = 0;
  /// The angle between a strap and the edge of a tile that it leaves.
  double Lean = restingLean;

  static constexpr double restingLean = 67.5;
};

/// About the form of the program's panel, which is 320 by 105 at 100 percent: larger, so that it is sharp
/// where the screen is finer, in whole blocks of JPEG, and no larger than the files have room for.
inline constexpr QSize frameSize{448, 144};

/// Draws a frame.
void Draw(QPainter& painter, const Stance& stance);

}  // namespace qismora::film
