#include "Geometry.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace qismora::film {

namespace {

QPolygonF TileOf(int sides, double edge, double turn) {
  return Regular(sides, edge / 2 / std::sin(M_PI / sides), turn);
}

/// Where the line from p meets the line from q.
QPointF Crossing(QPointF p, QPointF towardsP, QPointF q, QPointF towardsQ) {
  const double determinant = towardsQ.x() * towardsP.y() - towardsP.x() * towardsQ.y();
  const double way = ((q.y() - p.y()) * towardsQ.x() - (q.x() - p.x()) * towardsQ.y()) / determinant;
  return p + way * towardsP;
}

}  // namespace

double Length(QPointF way) { return std::hypot(way.x(), way.y()); }

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
  const auto middle = [&](qsizetype k) { return (tile[k % count] + tile[(k + 1) % count]) / 2; };
  const auto along = [&](qsizetype k) {
    const QPointF way = tile[(k + 1) % count] - tile[k % count];
    return qRadiansToDegrees(std::atan2(way.y(), way.x()));
  };
  QPolygonF corners;
  for (qsizetype k = 0; k < count; ++k) {
    corners << middle(k)
            << Crossing(middle(k), Polar(1, along(k) + lean), middle(k + 1),
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
  const auto add = [&](QPointF middle, const QPolygonF& outline) {
    if (Length(middle) < reach + edge) tiles.push_back({middle, outline});
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

}  // namespace qismora::film
