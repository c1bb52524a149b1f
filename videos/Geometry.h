#pragma once

#include <QPointF>
#include <QPolygonF>
#include <vector>

namespace qismora::video {

// Angles are in degrees, clockwise from the right, since y grows downwards.

double Length(QPointF vector);
QPointF Polar(double radius, double angle);

QPolygonF Regular(int sides, double radius, double turn);
/// The outline of two squares, one rotated by 45 degrees.
QPolygonF EightStar(double radius, double turn);

/// The star in a tile where two straps leave the midpoint of each edge at the given angle. Returns its
/// corners: midpoints and bends alternate.
QPolygonF ContactStar(const QPolygonF& tile, double lean);

struct Tile {
  QPointF Centre;
  /// Relative to the centre.
  QPolygonF Outline;
};

/// Octagons and the squares between them, around the origin, as far as `reach`.
std::vector<Tile> OctagonsAndSquares(double edge, double reach);

/// Moves smoothly from 0 at `start` to 1 at `end`, with zero speed at both.
double Eased(double moment, double start, double end);

}  // namespace qismora::video
