#pragma once

#include <QPointF>
#include <QPolygonF>
#include <vector>

namespace qismora::film {

// Angles are in degrees, clockwise from the right, since y grows downwards.

double Length(QPointF way);
QPointF Polar(double radius, double angle);

QPolygonF Regular(int sides, double radius, double turn);
/// Two squares, one turned by half a right angle.
QPolygonF EightStar(double radius, double turn);

/// The star in a tile where two straps leave the middle of each edge at the given angle to it: the corners
/// of the star, middles and bends in turn.
QPolygonF ContactStar(const QPolygonF& tile, double lean);

struct Tile {
  QPointF Middle;
  /// About the origin.
  QPolygonF Outline;
};

/// Octagons and the squares between them, about the origin, as far as the given reach.
std::vector<Tile> OctagonsAndSquares(double edge, double reach);

/// The way from 0 to 1 between two moments: it starts and ends without a jerk.
double Eased(double moment, double start, double end);

}  // namespace qismora::film
