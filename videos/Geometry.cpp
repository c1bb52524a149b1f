#include "Geometry.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace qismora::video {

namespace {

QPolygonF TileOf(int sides, double edge, double turn) {
  return Regular(sides, edge / 2 / std::sin(M_PI / sides), turn);
}

/// The intersection of two lines, each given by a point and a direction.
QPointF Intersection(QPointF p, QPointF directionP, QPointF q, QPointF directionQ) {
  const double determinant = directionQ.x() * directionP.y() - directionP.x() * directionQ.y();
  const double distance = ((q.y() - p.y()) * directionQ.x() - (q.x() - p.x()) * directionQ.y()) / determinant;
  return p + distance * directionP;
}

}  // namespace

double Length(QPointF vector) { return std::hypot(vector.x(), vector.y()); }

QPointF Polar(double radius, double angle) {
  const double radians = qDegreesToRadians(angle);
  return {radius * std::cos(radians), radius * std::sin(radians)};
}

QPolygonF Regular(int sides, double radius, double turn) {
  QPolygonF corners;
  for (int k = 0; k < sides; ++k) corners << Polar(radius, turn + 360.0 * k / sides);
  return corners;
}

QPolygonF EightStar(double radius, double turn) {
  const double notch = std::cos(M_PI / 4) / std::cos(M_PI / 8);
  QPolygonF corners;
  for (int k = 0; k < 16; ++k) corners << Polar(k % 2 == 0 ? radius : radius * notch, turn + 22.5 * k);
  return corners;
}

QPolygonF ContactStar(const QPolygonF& tile, double lean) {
  const auto count = tile.size();
  const auto midpoint = [&](qsizetype k) { return (tile[k % count] + tile[(k + 1) % count]) / 2; };
  const auto along = [&](qsizetype k) {
    const QPointF edge = tile[(k + 1) % count] - tile[k % count];
    return qRadiansToDegrees(std::atan2(edge.y(), edge.x()));
  };
  QPolygonF corners;
  for (qsizetype k = 0; k < count; ++k) {
    corners << midpoint(k)
            << Intersection(midpoint(k), Polar(1, along(k) + lean), midpoint(k + 1),
                            Polar(1, along(k + 1) + 180 - lean));
  }
  return corners;
}

std::vector<Tile> OctagonsAndSquares(double edge, double reach) {
  const double step = edge * (1 + M_SQRT2);
  const int count = static_cast<int>(std::ceil(reach / step));
  const QPolygonF octagon = TileOf(8, edge, 22.5);
  const QPolygonF square = TileOf(4, edge, 0);
  std::vector<Tile> tiles;
  const auto add = [&](QPointF centre, const QPolygonF& outline) {
    if (Length(centre) < reach + edge) tiles.push_back({centre, outline});
  };
  for (int i = -count; i <= count; ++i) {
    for (int j = -count; j <= count; ++j) {
      add({i * step, j * step}, octagon);
      add({(i + 0.5) * step, (j + 0.5) * step}, square);
    }
  }
  return tiles;
}

double Eased(double moment, double start, double end) {
  const double x = std::clamp((moment - start) / (end - start), 0.0, 1.0);
  return x * x * x * (x * (6 * x - 15) + 10);
}

}  // namespace qismora::video
