#include "Pattern.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "Geometry.h"

namespace qismora::video {

namespace {

// The colours of the program's pictures.
constexpr QRgb night = 0xff14323d;
constexpr QRgb deep = 0xff1a424d;
constexpr QRgb teal = 0xff1f5c63;
constexpr QRgb sand = 0xffe6d3a7;
constexpr QRgb gold = 0xffc79a3b;
constexpr QRgb amber = 0xffe3bd62;
constexpr QRgb clay = 0xffb4593c;

constexpr double edge = 46;
constexpr double strap = 5.6;
constexpr double gap = 1.7;
constexpr double rosette = 15.5;
constexpr double eye = 5.6;
/// One JPEG block: the line around the field lies within it, which saves bytes.
constexpr double border = 8;
constexpr double borderLine = 2;

const QRectF frame(QPointF(), frameSize);

/// The distance of a corner of the frame from its centre.
const double reach = Length(frame.center());

QPen Pen(QRgb colour, double width) {
  return {QColor(colour), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

/// How far a tile has opened, from 0 to 1. It begins when the wave from the centre reaches it.
double Opened(const Tile& tile, double unfolded) {
  constexpr double opening = 0.42;
  const double start = std::min(1.0, Length(tile.Centre) / reach) * (1 - opening);
  return Eased(unfolded, start, start + opening);
}

/// A bud has the shape of its tile and folds into the star while it grows.
QPolygonF StarIn(const Tile& tile, double opened, double lean) {
  const double bud = 180.0 / static_cast<double>(tile.Outline.size());
  const QPolygonF star = ContactStar(tile.Outline, bud + (lean - bud) * opened);
  return QTransform::fromTranslate(tile.Centre.x(), tile.Centre.y()).scale(opened, opened).map(star);
}

void DrawStar(QPainter& painter, const Tile& tile, double opened, double lean) {
  painter.setBrush(QColor(tile.Outline.size() == 4 ? clay : night));
  painter.setPen(Pen(sand, strap * std::min(1.0, 2 * opened)));
  painter.drawPolygon(StarIn(tile, opened, lean));
}

/// Where two straps cross at the midpoint of an edge, the left one passes over the other. The gap beside it
/// opens when all stars have met.
void Weave(QPainter& painter, const std::vector<Tile>& tiles, const Stance& stance) {
  const double both = strap + 2 * gap * Eased(stance.Unfolded, 0.88, 1);
  if (both <= strap) return;
  const double angle = qDegreesToRadians(2 * stance.Lean);
  const double half = both / 2 * (1 / std::sin(angle) + std::abs(1 / std::tan(angle)));
  QPainterPath over;
  QPainterPath longer;
  const auto line = [](QPainterPath& path, QPointF centre, QPointF arm) {
    path.moveTo(centre - arm);
    path.lineTo(centre + arm);
  };
  for (const Tile& tile : tiles) {
    const QPolygonF star = StarIn(tile, 1, stance.Lean);
    for (qsizetype k = 0; k < star.size(); k += 2) {
      const QPointF direction = (star[k + 1] - star[k]) / Length(star[k + 1] - star[k]);
      line(over, star[k], half * direction);
      line(longer, star[k], (half + 1) * direction);
    }
  }
  painter.strokePath(over, Pen(night, both));
  painter.strokePath(longer, Pen(sand, strap));
}

void DrawRosette(QPainter& painter, QPointF centre, double size, double turn) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(amber));
  painter.drawPolygon(EightStar(rosette * size, turn).translated(centre));
  painter.setBrush(QColor(night));
  painter.drawPolygon(Regular(8, eye * size, turn + 22.5).translated(centre));
}

/// Draws the edges of all tiles; they fade while the stars grow.
void DrawPlan(QPainter& painter, const std::vector<Tile>& tiles, double unfolded) {
  painter.setOpacity(1 - Eased(unfolded, 0.5, 1));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Pen(deep, 1.5));
  for (const Tile& tile : tiles) painter.drawPolygon(tile.Outline.translated(tile.Centre));
  painter.setOpacity(1);
}

void DrawField(QPainter& painter, const Stance& stance) {
  static const std::vector<Tile> tiles = OctagonsAndSquares(edge, reach);
  DrawPlan(painter, tiles, stance.Unfolded);
  for (const Tile& tile : tiles) {
    const double opened = Opened(tile, stance.Unfolded);
    if (opened > 0) DrawStar(painter, tile, opened, stance.Lean);
  }
  Weave(painter, tiles, stance);
  for (const Tile& tile : tiles) {
    if (tile.Outline.size() == 4) continue;
    const double opened = Opened(tile, stance.Unfolded);
    const double size = tile.Centre.isNull() ? 1 : opened;
    DrawRosette(painter, tile.Centre, size, stance.RosetteTurn - 90 * (1 - opened));
  }
}

void DrawBorder(QPainter& painter) {
  const QRectF field = frame.adjusted(border, border, -border, -border);
  QPainterPath outside;
  outside.addRect(frame);
  outside.addRect(field);
  painter.fillPath(outside, QColor(night));
  constexpr double half = borderLine / 2;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Pen(gold, borderLine));
  painter.drawRect(field.adjusted(-half, -half, half, half));
}

/// Darkens the field towards its sides, which draws the eye to the centre and saves bytes.
void DrawShade(QPainter& painter) {
  constexpr int stops = 10;
  QRadialGradient shade(frame.center(), reach);
  for (int k = 0; k <= stops; ++k) {
    const double place = static_cast<double>(k) / stops;
    QColor colour(night);
    colour.setAlpha(static_cast<int>(235 * Eased(place, 0, 1)));
    shade.setColorAt(place, colour);
  }
  painter.fillRect(frame, shade);
}

}  // namespace

void Draw(QPainter& painter, const Stance& stance) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(frame, QColor(teal));
  painter.save();
  painter.translate(frame.center());
  painter.rotate(stance.Turn);
  DrawField(painter, stance);
  painter.restore();
  DrawBorder(painter);
  DrawShade(painter);
}

}  // namespace qismora::video
