#include "windows/division/FamilyTreeView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "windows/division/Patterns.h"
#include "windows/style/Colours.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

namespace {

constexpr int linePadding = 5;
/// The strip at the beginning of a node, with the pattern of the heir.
constexpr int keyWidth = 6;
constexpr int treeMargin = 6;
constexpr qreal roundness = 4;
constexpr double faint = 0.45;
constexpr int stacked = 3;
constexpr qreal arrowLength = 6;
/// Sizes of the text, 1 being that of the font. The smallest can still be read well.
constexpr double textSizes[] = {1, 0.92, 0.84};
constexpr int betweenRows[] = {34, 26, 18};
constexpr WrittenTree::Spacing treeSpacing = {.AcrossText = 11,
                                              .DownText = linePadding,
                                              .LeastWidth = 96,
                                              .Gap = 16,
                                              .RowGap = betweenRows[0],
                                              .Link = 8};

QFont Scaled(QFont font, double size) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * size);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * size));
  }
  return font;
}

QString SentenceOf(const TreeText& text) { return text.Name + QStringLiteral(": ") + text.Receives; }

}  // namespace

FamilyTreeView::FamilyTreeView(QWidget* parent) : QWidget(parent) {
  SetAccessibleRole(this, QAccessible::Graphic);
  setObjectName(QStringLiteral("FamilyTree"));
  setAccessibleName(tr("Family tree"));
  setFocusPolicy(Qt::StrongFocus);
}

void FamilyTreeView::Show(const DivisionView& view) {
  written_ = WrittenTree(view);
  LayOut();
}

QSize FamilyTreeView::Place() const {
  return (parentWidget() == nullptr ? size() : parentWidget()->size()) -
         QSize(2 * treeMargin, 2 * treeMargin);
}

void FamilyTreeView::LayOut() {
  laidOutFor_ = Place().width();
  for (Sized& sized : sized_) sized.IsLaidOut = false;
  ChooseSize();
  QStringList sentences;
  for (const TreeNode& node : Tree().Tree().Nodes) {
    if (node.What == TreeNode::Role::Heir) sentences.append(SentenceOf(Tree().Of(node)));
  }
  setAccessibleDescription(tr("%1, and in the picture from the top: %2")
                               .arg(Tree().Deceased(), sentences.join(QStringLiteral("; "))));
  SayChosen();
}

const FamilyTreeView::Sized& FamilyTreeView::InSize(std::size_t size) const {
  Sized& sized = sized_[size];
  if (!std::exchange(sized.IsLaidOut, true)) {
    const QFont font = Scaled(this->font(), textSizes[size]);
    if (sized.Ruler.Font() != font) sized.Ruler = TextRuler(font);
    sized.Tree = written_;
    WrittenTree::Spacing spacing = treeSpacing;
    spacing.RowGap = betweenRows[size];
    sized.Tree.LayOut(sized.Ruler, spacing, laidOutFor_);
  }
  return sized;
}

/// The largest size that fits, else the smallest.
void FamilyTreeView::ChooseSize() {
  const QSize place = Place();
  size_ = 0;
  while (size_ + 1 < Sizes && !FitsIn(size_, place)) ++size_;
  InSize(size_);
  sized_[size_].Tree.DrawExclusions();
  updateGeometry();
  update();
}

bool FamilyTreeView::FitsIn(std::size_t size, const QSize& place) const {
  const FamilyTree& tree = InSize(size).Tree.Tree();
  return tree.Width <= place.width() && tree.Height <= place.height();
}

int FamilyTreeView::HeightIn(std::size_t size) const {
  return InSize(size).Tree.Tree().Height + 2 * treeMargin;
}

int FamilyTreeView::FullHeight() const { return HeightIn(0); }

int FamilyTreeView::LeastHeight() const { return HeightIn(Sizes - 1); }

// While the keys move through the tree, its name ends with the chosen heir, so that a screen reader reads it.
void FamilyTreeView::SayChosen() {
  const bool hasKeys = window()->focusWidget() == this;
  QString name = tr("Family tree");
  for (const TreeNode& node : Tree().Tree().Nodes) {
    if (hasKeys && node.What == TreeNode::Role::Heir && node.Heir == chosen_)
      name += QStringLiteral(": ") + SentenceOf(Tree().Of(node));
  }
  setAccessibleName(name);
}

QSize FamilyTreeView::sizeHint() const {
  return QSize(Tree().Tree().Width, Tree().Tree().Height) + QSize(2 * treeMargin, 2 * treeMargin);
}

QPoint FamilyTreeView::Origin() const {
  return {std::max(treeMargin, (width() - Tree().Tree().Width) / 2), treeMargin};
}

QPointF FamilyTreeView::Mirrored(const TreePoint& point) const {
  const int x = layoutDirection() == Qt::RightToLeft ? Tree().Tree().Width - point.X : point.X;
  return QPointF(Origin() + QPoint(x, point.Y)) + QPointF(0.5, 0.5);
}

QRect FamilyTreeView::RectOf(const TreeNode& node) const {
  const int x = layoutDirection() == Qt::RightToLeft ? Tree().Tree().Width - node.X - node.Width : node.X;
  return {Origin() + QPoint(x, node.Y), QSize(node.Width, node.Height)};
}

QRect FamilyTreeView::PlaceOf(faraid::Kind heir) const {
  for (const TreeNode& node : Tree().Tree().Nodes) {
    if (node.What == TreeNode::Role::Heir && node.Heir == heir) return RectOf(node);
  }
  return {};
}

QRect FamilyTreeView::PlaceOfDeceased() const {
  const auto& nodes = Tree().Tree().Nodes;
  const auto deceased = std::ranges::find(nodes, TreeNode::Role::Deceased, &TreeNode::What);
  return deceased == nodes.end() ? QRect() : RectOf(*deceased);
}

void FamilyTreeView::Choose(faraid::Kind heir) {
  if (std::exchange(chosen_, heir) == heir) return;
  SayChosen();
  update();
}

void FamilyTreeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setLayoutDirection(layoutDirection());  // or it has that of the program
  painter.setFont(InSize(size_).Ruler.Font());
  painter.setRenderHint(QPainter::Antialiasing);
  DrawLines(painter);
  DrawExclusions(painter);
  for (const TreeNode& node : Tree().Tree().Nodes) DrawNode(painter, node);
}

void FamilyTreeView::DrawLines(QPainter& painter) const {
  const QColor text = palette().color(QPalette::WindowText);
  painter.setPen(
      QPen(Between(text, palette().color(QPalette::Window), IsBlackAndWhite(palette()) ? 0 : faint), 1));
  painter.setBrush(Qt::NoBrush);
  // As one path, since lines that are drawn over each other would be bolder.
  QPainterPath path;
  for (const TreeLine& line : Tree().Tree().Lines) {
    path.moveTo(Mirrored(line.front()));
    for (const TreePoint& point : line) path.lineTo(Mirrored(point));
  }
  painter.drawPath(path);
}

// Dashed, since the lines of the family are not. That of the chosen heir is whole and in full strength.
void FamilyTreeView::DrawExclusions(QPainter& painter) const {
  const QColor text = palette().color(QPalette::WindowText);
  const QColor window = palette().color(QPalette::Window);
  const QColor pale = Readable(Between(text, window, IsBlackAndWhite(palette()) ? 0 : faint), window, 3);
  const auto draw = [&](const TreeLine& line, const QPen& pen) {
    QPolygonF points;
    for (const TreePoint& point : line) points.append(Mirrored(point));
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(points);
  };
  for (const TreeExclusion& exclusion : Tree().Tree().Exclusions) {
    draw(exclusion.Alone, QPen(pale, 1, Qt::DashLine));
    DrawArrow(painter, exclusion.Line, pale);
  }
  for (const TreeExclusion& exclusion : Tree().Tree().Exclusions) {
    if (Tree().Tree().Nodes[exclusion.From].Heir != chosen_) continue;
    draw(exclusion.Line, QPen(text, 2, Qt::DashLine));
    DrawArrow(painter, exclusion.Line, text);
  }
}

void FamilyTreeView::DrawArrow(QPainter& painter, const TreeLine& line, const QColor& colour) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(ArrowAt(Mirrored(line.back()), Mirrored(line[line.size() - 2]), arrowLength));
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
    return DrawText(painter, node, rect);
  }

  const TreeText& words = Tree().Of(node);
  const bool emphasised = chosen_ == node.Heir;
  const QColor base = palette().color(words.Takes ? QPalette::Base : QPalette::Window);
  const QColor own = ColourOf(node.Heir, palette());
  const QColor pale = Readable(Between(text, base, faint), base, WantedContrast(palette()));
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
  const int key = words.Takes ? keyWidth : 0;
  const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
  DrawText(painter, node, rect.adjusted(rightToLeft ? 0 : key, 0, rightToLeft ? -key : 0, 0));
  if (emphasised && hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(-3, -3, 3, 3), roundness, roundness);
  }
}

void FamilyTreeView::DrawText(QPainter& painter, const TreeNode& node, const QRectF& place) const {
  painter.drawText(place, Qt::AlignCenter, Tree().LinesIn(node).join(QLatin1Char('\n')));
}

void FamilyTreeView::mousePressEvent(QMouseEvent* event) {
  for (const TreeNode& node : Tree().Tree().Nodes) {
    if (node.What != TreeNode::Role::Heir || !RectOf(node).contains(event->pos())) continue;
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
  for (const TreeNode& node : Tree().Tree().Nodes) {
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
  // The focus is seen on an heir alone.
  if (event->type() == QEvent::FocusIn && PlaceOf(chosen_).isEmpty()) Step(1);
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    SayChosen();
    update();
  }
  if (event->type() == QEvent::ParentChange && parentWidget() != nullptr)
    parentWidget()->installEventFilter(this);
  return QWidget::event(event);
}

// A tree that is wider than its place keeps its own size while the place changes.
bool FamilyTreeView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget() && event->type() == QEvent::Resize) {
    if (laidOutFor_ != Place().width()) {
      LayOut();
    } else {
      ChooseSize();
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace qismora
