#include "windows/division/PaperTree.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <algorithm>

#include "windows/language/Languages.h"

namespace qismora {

namespace {

constexpr int pointsPerInch = 72;
/// In points, whatever the resolution of the device. The smaller size is that of a tree that is too large, or
/// whose larger size would not be below that of the text around it.
constexpr int paperTextSizes[] = {8, 7};
/// Of a page.
constexpr double highest = 0.6;
constexpr double paperArrow = 4;
constexpr WrittenTree::Spacing paperSpacing = {
    .AcrossText = 4, .DownText = 2, .LeastWidth = 50, .Gap = 6, .RowGap = 14, .Link = 4};

}  // namespace

PaperTree::PaperTree(const DivisionView& view, const QString& title, const QFont& font, const QSizeF& page,
                     QObject* parent)
    : QObject(parent), tree_(view), title_(title), font_(font), page_(page) {
  for (const int size : paperTextSizes) {
    font_.setPixelSize(size);
    titleHeight_ = 1.3 * QFontMetricsF(font_).lineSpacing();
    tree_.LayOut(TextRuler(font_), paperSpacing, static_cast<int>(page.width()) - 2);
    const bool fits = Size().width() <= page.width() && Size().height() <= highest * page.height();
    if (fits && size < font.pointSizeF()) break;
  }
  tree_.DrawExclusions();
}

/// Of the picture in points, its title included.
QSizeF PaperTree::Size() const {
  return {tree_.Tree().Width + 2.0, tree_.Tree().Height + 2.0 + titleHeight_};
}

double PaperTree::Scale() const {
  return std::min({1.0, page_.width() / Size().width(), page_.height() / Size().height()});
}

double PaperTree::TextSize() const { return font_.pixelSize() * Scale(); }

QSizeF PaperTree::intrinsicSize(QTextDocument* document, int, const QTextFormat&) {
  const QPaintDevice* device = document->documentLayout()->paintDevice();
  const double unit = device == nullptr ? 1 : double(device->logicalDpiX()) / pointsPerInch;
  return Size() * unit * Scale();
}

QRectF PaperTree::PlaceOf(const TreeNode& node) const {
  const bool mirrored = CurrentDirection() == Qt::RightToLeft;
  return QRectF(mirrored ? tree_.Tree().Width - node.X - node.Width : node.X, node.Y, node.Width,
                node.Height);
}

QPointF PaperTree::PlaceOf(const TreePoint& point) const {
  return QPointF(CurrentDirection() == Qt::RightToLeft ? tree_.Tree().Width - point.X : point.X, point.Y);
}

void PaperTree::DrawNode(QPainter& painter, const TreeNode& node) const {
  const QRectF place = PlaceOf(node);
  if (node.What == TreeNode::Role::Link) {
    painter.fillRect(place, Qt::black);
    return;
  }
  const bool deceased = node.What == TreeNode::Role::Deceased;
  const bool takes = deceased || tree_.Of(node).Takes;
  painter.setPen(QPen(Qt::black, takes ? 1 : 0.6, takes ? Qt::SolidLine : Qt::DashLine));
  painter.setBrush(Qt::white);
  const double round = deceased ? place.height() / 2 : 3;
  painter.drawRoundedRect(place, round, round);
  painter.drawText(place, Qt::AlignCenter, tree_.LinesIn(node).join(QLatin1Char('\n')));
}

void PaperTree::DrawLine(QPainter& painter, const TreeLine& line) const {
  QPolygonF points;
  for (const TreePoint& point : line) points.append(PlaceOf(point));
  painter.drawPolyline(points);
}

void PaperTree::DrawExclusions(QPainter& painter) const {
  constexpr QColor grey(80, 80, 80);
  for (const TreeExclusion& exclusion : tree_.Tree().Exclusions) {
    painter.setPen(QPen(grey, 0.5, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    DrawLine(painter, exclusion.Alone);
    painter.setPen(Qt::NoPen);
    painter.setBrush(grey);
    const std::size_t last = exclusion.Line.size() - 1;
    painter.drawPolygon(
        ArrowAt(PlaceOf(exclusion.Line[last]), PlaceOf(exclusion.Line[last - 1]), paperArrow));
  }
}

void PaperTree::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int, const QTextFormat&) {
  painter->save();
  painter->translate(place.topLeft());
  painter->scale(place.width() / Size().width(), place.height() / Size().height());
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setFont(font_);
  painter->setLayoutDirection(CurrentDirection());
  painter->setPen(QPen(Qt::black, 0.6));
  painter->drawText(QRectF(0, 0, Size().width(), titleHeight_), Qt::AlignHCenter | Qt::AlignTop, title_);
  painter->translate(1, titleHeight_ + 1);
  for (const TreeLine& line : tree_.Tree().Lines) DrawLine(*painter, line);
  DrawExclusions(*painter);
  for (const TreeNode& node : tree_.Tree().Nodes) DrawNode(*painter, node);
  painter->restore();
}

}  // namespace qismora
