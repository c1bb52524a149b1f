#pragma once

#include <QSize>

class QPainter;

namespace qismora::video {

/// The state of the star pattern at one moment. Angles are in degrees.
struct Stance {
  /// From 0 (only the star in the centre) to 1 (the pattern covers the field).
  double Unfolded = 1;
  /// Rotation of the whole field about its centre. It looks the same after 90 degrees.
  double Turn = 0;
  /// Rotation of the small stars relative to the field. They look the same after 45 degrees.
  double RosetteTurn = 0;
  /// The angle between a strap and the edge of the tile that it leaves.
  double Lean = restingLean;

  static constexpr double restingLean = 67.5;
};

/// The panel of the main menu is 320 by 105 pixels at 100 percent. The frames are larger, so that they are
/// sharp on high-resolution screens; in whole JPEG blocks; and no larger than the fixed file lengths allow.
inline constexpr QSize frameSize{448, 144};

/// Draws a frame.
void Draw(QPainter& painter, const Stance& stance);

}  // namespace qismora::video
