#include "windows/division/FamilyTreeView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/Patterns.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Colours.h"

namespace qismora {

namespace {

constexpr int padding = 8;
constexpr int linePadding = 5;
constexpr int keyWidth = 6;
constexpr int leastWidth = 96;
constexpr int margin = 6;
constexpr qreal roundness = 4;
constexpr double faint = 0.45;
constexpr double veryFaint = 0.62;
constexpr int stacked = 3;
constexpr qreal leastScale = 0.7;

}  // namespace

FamilyTreeView::FamilyTreeView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("FamilyTree"));
  setAccessibleName(tr("Family tree"));
  setFocusPolicy(Qt::StrongFocus);
}

void FamilyTreeView::Show(const DivisionView& view) {
  view_ = view;
  words_.clear();
  deceased_ = ToQt(view.Name).trimmed();
  if (deceased_.isEmpty()) deceased_ = tr("Deceased");
  for (const auto* lines : {&view_.Takers, &view_.Others}) {
    for (const DivisionLine& line : *lines) {
      const faraid::Row& row = line.Law;
      QString name = words::Heir(row.Heir, row.Heads);
      if (row.Heads > 1) name = tr("%1 %2").arg(words::Number(row.Heads), name);
      QString receives =
          row.As == faraid::Standing::Excluded ? words::YieldsTo(row) : words::StandingOf(row.As);
      if (line.Takes()) {
        receives = words::Share(row.Share) + QStringLiteral(" · ") + words::Amount(line.Amount.Together);
      }
      words_.insert(static_cast<int>(row.Heir), {name, receives, line.Takes(), row.Heads});
    }
  }
  LayOut();
}

void FamilyTreeView::LayOut() {
  int width = leastWidth;
  for (const Words& words : std::as_const(words_)) {
    for (const QString& text : {words.Name, words.Receives}) {
      width = std::max(width, fontMetrics().horizontalAdvance(text) + 2 * padding + keyWidth);
    }
  }
  TreeMetrics metrics;
  metrics.NodeWidth = width;
  metrics.NodeHeight = 2 * fontMetrics().height() + 2 * linePadding;
  metrics.DeceasedWidth = std::max(leastWidth, fontMetrics().horizontalAdvance(deceased_) + 4 * padding);
  tree_ = LayOutFamily(view_, metrics);

  QStringList sentences;
  for (const TreeNode& node : tree_.Nodes) {
    if (node.What != TreeNode::Role::Heir) continue;
    const Words& words = words_[static_cast<int>(node.Heir)];
    sentences.append(words.Name + QStringLiteral(": ") + words.Receives);
  }
  setAccessibleDescription(
      tr("%1, and in the picture from the top: %2").arg(deceased_, sentences.join(QStringLiteral("; "))));
  updateGeometry();
  update();
}

void FamilyTreeView::FitPlace() {
  if (parentWidget() == nullptr) return;
  const QSizeF place = parentWidget()->size();
  const qreal across = place.width() / (tree_.Width + 2 * margin);
  const qreal down = place.height() / (tree_.Height + 2 * margin);
  // What has to be scrolled down in any case need not be small.
  const qreal fitting = down < leastScale ? across : std::min(across, down);
  if (const qreal scale = std::clamp(fitting, leastScale, 1.0); !qFuzzyCompare(scale, scale_)) {
    scale_ = scale;
    updateGeometry();
  }
}

void FamilyTreeView::resizeEvent(QResizeEvent*) { FitPlace(); }

QSize FamilyTreeView::sizeHint() const {
  return QSize(tree_.Width + 2 * margin, tree_.Height + 2 * margin) * scale_;
}

// In the measure of the tree, before it is scaled.
QPoint FamilyTreeView::Origin() const {
  const int place = static_cast<int>(width() / scale_);
  return {std::max(margin, (place - tree_.Width) / 2), margin};
}

QRect FamilyTreeView::InWidget(const QRect& place) const {
  return QRectF(QPointF(place.topLeft()) * scale_, QSizeF(place.size()) * scale_).toAlignedRect();
}

QPointF FamilyTreeView::Mirrored(const TreePoint& point) const {
  const int x = layoutDirection() == Qt::RightToLeft ? tree_.Width - point.X : point.X;
  return QPointF(Origin() + QPoint(x, point.Y)) + QPointF(0.5, 0.5);
}

QRect FamilyTreeView::RectOf(const TreeNode& node) const {
  const int x = layoutDirection() == Qt::RightToLeft ? tree_.Width - node.X - node.Width : node.X;
  return {Origin() + QPoint(x, node.Y), QSize(node.Width, node.Height)};
}

QRect FamilyTreeView::PlaceOf(faraid::Kind heir) const {
  for (const TreeNode& node : tree_.Nodes) {
    if (node.What == TreeNode::Role::Heir && node.Heir == heir) return InWidget(RectOf(node));
  }
  return {};
}

void FamilyTreeView::Choose(faraid::Kind heir) {
  if (std::exchange(chosen_, heir) != heir) update();
}

void FamilyTreeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale_, scale_);
  DrawYields(painter);
  DrawLines(painter);
  for (const TreeNode& node : tree_.Nodes) DrawNode(painter, node);
}

void FamilyTreeView::DrawLines(QPainter& painter) const {
  const QColor text = palette().color(QPalette::WindowText);
  painter.setPen(
      QPen(Between(text, palette().color(QPalette::Window), IsBlackAndWhite(palette()) ? 0 : faint), 1.2));
  painter.setBrush(Qt::NoBrush);
  for (const TreeLine& line : tree_.Lines) {
    QPolygonF points;
    for (const TreePoint& point : line) points.append(Mirrored(point));
    painter.drawPolyline(points);
  }
}

// Curves, since the lines of the family run straight.
void FamilyTreeView::DrawYields(QPainter& painter) const {
  const QColor text = palette().color(QPalette::WindowText);
  const QColor window = palette().color(QPalette::Window);
  for (const TreeYield& yield : tree_.Yields) {
    const TreeNode& from = tree_.Nodes[yield.From];
    const TreeNode& to = tree_.Nodes[yield.To];
    const bool emphasised = chosen_ == from.Heir;
    const double pale = emphasised || IsBlackAndWhite(palette()) ? 0 : veryFaint;
    painter.setPen(QPen(Between(text, window, pale), emphasised ? 2 : 1.2, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    const QPointF start = Mirrored(from.Centre());
    const QPointF end = Mirrored(to.Centre());
    const QPointF bend(0, (end.y() - start.y()) / 2);
    QPainterPath path(start);
    path.cubicTo(start + bend, end - bend, end);
    painter.drawPath(path);
  }
}

void FamilyTreeView::DrawNode(QPainter& painter, const TreeNode& node) const {
  const QRectF rect = QRectF(RectOf(node)).adjusted(0.5, 0.5, -0.5, -0.5);
  const QColor text = palette().color(QPalette::WindowText);
  if (node.What == TreeNode::Role::Link) {
    painter.setPen(text);
    painter.setBrush(palette().window());
    return painter.drawEllipse(rect);
  }
  if (node.What == TreeNode::Role::Deceased) {
    painter.setPen(QPen(text, 1.5));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(rect, rect.height() / 2, rect.height() / 2);
    painter.setPen(palette().color(QPalette::Text));
    return painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, deceased_);
  }

  const Words& words = words_[static_cast<int>(node.Heir)];
  const bool emphasised = chosen_ == node.Heir;
  const QColor base = palette().color(words.Takes ? QPalette::Base : QPalette::Window);
  const QColor own = ColourOf(node.Heir, palette());
  const QColor pale = Readable(Between(text, base, faint), base, LeastContrast);
  if (words.Takes) {
    painter.setPen(QPen(own, emphasised ? 3 : 1.5));
    painter.setBrush(base);
    // Several heads look like several cards.
    if (words.Heads > 1) painter.drawRoundedRect(rect.translated(stacked, stacked), roundness, roundness);
    painter.drawRoundedRect(rect, roundness, roundness);
    QRectF key = rect.adjusted(2, 2, -2, -2);
    if (layoutDirection() == Qt::RightToLeft) {
      key.setLeft(key.right() - keyWidth);
    } else {
      key.setRight(key.left() + keyWidth);
    }
    FillPattern(painter, key, node.Heir, palette());
  } else {
    painter.setPen(QPen(pale, emphasised ? 2 : 1, Qt::DashLine));
    painter.setBrush(base);
    painter.drawRoundedRect(rect, roundness, roundness);
  }
  painter.setPen(words.Takes ? palette().color(QPalette::Text) : pale);
  const qreal half = rect.height() / 2;
  const QRectF upper = rect.adjusted(keyWidth + 2, linePadding, -2, -half);
  const QRectF lower = rect.adjusted(keyWidth + 2, half, -2, -linePadding);
  painter.drawText(upper, Qt::AlignCenter | Qt::TextSingleLine, words.Name);
  painter.drawText(lower, Qt::AlignCenter | Qt::TextSingleLine, words.Receives);
  if (emphasised && hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(-3, -3, 3, 3), roundness, roundness);
  }
}

void FamilyTreeView::mousePressEvent(QMouseEvent* event) {
  for (const TreeNode& node : tree_.Nodes) {
    if (node.What != TreeNode::Role::Heir || !InWidget(RectOf(node)).contains(event->pos())) continue;
    Choose(node.Heir);
    if (Chosen) Chosen(node.Heir);
  }
}

void FamilyTreeView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return Step(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
      return Step(-1);
    default:
      QWidget::keyPressEvent(event);
  }
}

void FamilyTreeView::Step(int by) {
  QList<faraid::Kind> heirs;
  for (const TreeNode& node : tree_.Nodes) {
    if (node.What == TreeNode::Role::Heir) heirs.append(node.Heir);
  }
  if (heirs.isEmpty()) return;
  const auto present = heirs.indexOf(chosen_);
  const auto next = present < 0 ? 0 : std::clamp<qsizetype>(present + by, 0, heirs.size() - 1);
  Choose(heirs[next]);
  if (Chosen) Chosen(chosen_);
}

bool FamilyTreeView::event(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) LayOut();
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  return QWidget::event(event);
}

}  // namespace qismora
