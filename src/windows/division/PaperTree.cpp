#include "windows/division/PaperTree.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

/// The tree is laid out in points and its text is so high, however the paper is divided.
constexpr int pointsOfText = 8;
constexpr int pointsPerInch = 72;

QStringList LinesOf(const DivisionView& view, const TreeNode& node) {
  if (node.What == TreeNode::Role::Deceased) {
    const QString name = ToQt(view.Name).trimmed();
    return {name.isEmpty() ? words::Deceased() : name};
  }
  const DivisionLine* line = view.Find(node.Heir);
  if (line == nullptr) return {};
  const bool counted = faraid::MostOf(node.Heir) > 1;
  const QString name = words::Heir(node.Heir, line->Law.Heads);
  const QString heads = counted ? name + QLatin1Char(' ') + words::Number(line->Law.Heads) : name;
  if (line->Takes()) {
    return {heads,
            words::Share(line->Law.Share) + QStringLiteral(" · ") + words::Amount(line->Amount.Together)};
  }
  const QString yields = words::YieldsTo(line->Law);
  return {heads, yields.isEmpty() ? words::StandingOf(line->Law.As) : yields};
}

bool Takes(const DivisionView& view, const TreeNode& node) {
  const DivisionLine* line = view.Find(node.Heir);
  return line == nullptr || line->Takes();
}

/// The nodes are as large as the longest text in them.
TreeMetrics MetricsFor(const DivisionView& view, const QFont& font) {
  const QFontMetricsF metrics(font);
  TreeMetrics sizes;
  double widest = 0;
  for (const faraid::Row& row : view.Division.Rows) {
    for (const QString& text : LinesOf(view, {.What = TreeNode::Role::Heir, .Heir = row.Heir})) {
      widest = std::max(widest, metrics.horizontalAdvance(text));
    }
  }
  const double deceased =
      metrics.horizontalAdvance(LinesOf(view, {.What = TreeNode::Role::Deceased}).front());
  sizes.NodeWidth = static_cast<int>(widest) + 10;
  sizes.DeceasedWidth = std::clamp(static_cast<int>(deceased) + 16, 50, 140);
  sizes.NodeHeight = static_cast<int>(2 * metrics.lineSpacing()) + 6;
  sizes.Gap = 8;
  sizes.RowGap = 18;
  sizes.Link = 4;
  return sizes;
}

}  // namespace

PaperTree::PaperTree(const DivisionView& view, const QString& title, const QFont& font, QObject* parent)
    : QObject(parent), view_(view), title_(title), font_(font) {
  font_.setPixelSize(pointsOfText);
  tree_ = LayOutFamily(view, MetricsFor(view, font_));
  titleHeight_ = 2 * QFontMetricsF(font_).lineSpacing();
}

/// Of the picture in points, its title included.
QSizeF PaperTree::Size() const { return {tree_.Width + 2.0, tree_.Height + 2.0 + titleHeight_}; }

QSizeF PaperTree::intrinsicSize(QTextDocument* document, int, const QTextFormat&) {
  const QPaintDevice* device = document->documentLayout()->paintDevice();
  const double unit = device == nullptr ? 1 : double(device->logicalDpiX()) / pointsPerInch;
  const QSizeF size = Size() * unit;
  return widest_ > 0 && size.width() > widest_ ? size * (widest_ / size.width()) : size;
}

QRectF PaperTree::PlaceOf(const TreeNode& node) const {
  const bool mirrored = CurrentDirection() == Qt::RightToLeft;
  return QRectF(mirrored ? tree_.Width - node.X - node.Width : node.X, node.Y, node.Width, node.Height);
}

QPointF PaperTree::PlaceOf(const TreePoint& point) const {
  return QPointF(CurrentDirection() == Qt::RightToLeft ? tree_.Width - point.X : point.X, point.Y);
}

void PaperTree::DrawNode(QPainter& painter, const TreeNode& node) const {
  const QRectF place = PlaceOf(node);
  const bool takes = Takes(view_, node);
  if (node.What == TreeNode::Role::Link) {
    painter.fillRect(place, Qt::black);
    return;
  }
  painter.setPen(QPen(Qt::black, takes ? 1 : 0.6, takes ? Qt::SolidLine : Qt::DashLine));
  painter.setBrush(Qt::white);
  const double round = node.What == TreeNode::Role::Deceased ? place.height() / 2 : 3;
  painter.drawRoundedRect(place, round, round);
  const QStringList lines = LinesOf(view_, node);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const double height = place.height() / static_cast<double>(lines.size());
    const QRectF row(place.left() + 2, place.top() + static_cast<double>(i) * height, place.width() - 4,
                     height);
    const QString fitting = QFontMetricsF(font_).elidedText(lines[i], Qt::ElideRight, row.width());
    painter.drawText(row, Qt::AlignCenter, fitting);
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
  for (const TreeLine& line : tree_.Lines) {
    QPolygonF points;
    for (const TreePoint& point : line) points.append(PlaceOf(point));
    painter->drawPolyline(points);
  }
  for (const TreeNode& node : tree_.Nodes) DrawNode(*painter, node);
  painter->restore();
}

}  // namespace qismora
