#include "windows/division/WrittenTree.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "division/ExclusionLines.h"
#include "windows/division/DivisionWords.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

constexpr double deceasedInNodes = 1.2;
constexpr int mostLinesOfDeceased = 3;
const QString between = QStringLiteral(" · ");

/// The text in two: share and amount, or else at the blank nearest to the middle. Without a blank it stays
/// whole.
QStringList Halves(const QString& text) {
  if (text.contains(between)) return text.split(between);
  qsizetype best = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] != QLatin1Char(' ')) continue;
    if (best < 0 || std::abs(2 * i - text.size()) < std::abs(2 * best - text.size())) best = i;
  }
  if (best < 0) return {text};
  return {text.left(best), text.mid(best + 1)};
}

/// As many words in each line as fit; what does not fit into the last line is left out.
QStringList LinesOf(const QString& text, const TextRuler& ruler, int width, int most) {
  QStringList lines;
  for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QString longer = lines.isEmpty() ? word : lines.back() + QLatin1Char(' ') + word;
    if (!lines.isEmpty() && (ruler.Width(longer) <= width || lines.size() == most)) {
      lines.back() = longer;
    } else {
      lines.append(word);
    }
  }
  for (QString& line : lines) line = ruler.Metrics().elidedText(line, Qt::ElideRight, width);
  return lines;
}

}  // namespace

WrittenTree::WrittenTree(const DivisionView& view) : view_(view) {
  deceased_ = ToQt(view.Name).simplified();
  if (deceased_.isEmpty()) deceased_ = words::Deceased(view.Gender);
  for (const auto* lines : {&view.Takers, &view.Others}) {
    for (const DivisionLine& line : *lines) {
      const faraid::Row& row = line.Law;
      const QString name = words::CountedHeir(row.Heir, row.Heads);
      QString receives = words::YieldsTo(row);
      if (line.Takes()) {
        receives = words::Share(row.Share) + between + words::Amount(line.Amount.Together);
      } else if (receives.isEmpty()) {
        receives = words::StandingOf(row.As);
      }
      texts_.insert(static_cast<int>(row.Heir), {name, receives, line.Takes(), row.Heads});
    }
  }
}

void WrittenTree::LayOut(const TextRuler& ruler, const Spacing& spacing, int widest) {
  constexpr Broken choices[] = {Broken::None, Broken::NotReasons, Broken::All};
  TreeMetrics sizes[std::size(choices)];
  Lines lines[std::size(choices)];
  for (std::size_t i = 0; i < std::size(choices); ++i) lines[i] = Write(ruler, spacing, choices[i], sizes[i]);
  tree_ = LayOutFamily(view_, sizes, widest);
  lines_ = lines[tree_.Sizes];
  metrics_ = sizes[tree_.Sizes];
  hasExclusions_ = false;
}

void WrittenTree::DrawExclusions() {
  if (!std::exchange(hasExclusions_, true)) DrawExclusionLines(tree_, metrics_);
}

WrittenTree::Lines WrittenTree::Write(const TextRuler& ruler, const Spacing& spacing, Broken broken,
                                      TreeMetrics& metrics) const {
  Lines written;
  const auto mayBreak = [broken](const TreeText& text, const QString& whole) {
    return broken == Broken::All || (broken == Broken::NotReasons && (text.Takes || whole == text.Name));
  };
  int width = spacing.LeastWidth - 2 * spacing.AcrossText;
  for (const TreeText& text : std::as_const(texts_)) {
    for (const QString& whole : {text.Name, text.Receives}) {
      for (const QString& part : mayBreak(text, whole) ? Halves(whole) : QStringList{whole}) {
        width = std::max(width, ruler.Width(part));
      }
    }
  }
  qsizetype mostOfTakers = 2;
  qsizetype mostOfOthers = 2;
  for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
    QStringList lines;
    for (const QString& whole : {text->Name, text->Receives}) {
      lines += mayBreak(*text, whole) && ruler.Width(whole) > width ? Halves(whole) : QStringList{whole};
    }
    qsizetype& most = text->Takes ? mostOfTakers : mostOfOthers;
    most = std::max(most, lines.size());
    written.Heirs.insert(text.key(), lines);
  }
  const int widestDeceased = static_cast<int>(deceasedInNodes * width);
  written.Deceased = LinesOf(deceased_, ruler, widestDeceased, mostLinesOfDeceased);
  int deceased = spacing.LeastWidth / 2;
  for (const QString& line : std::as_const(written.Deceased))
    deceased = std::max(deceased, ruler.Width(line));

  metrics.NodeWidth = width + 2 * spacing.AcrossText;
  metrics.NodeHeight = ruler.Height(mostOfTakers) + 2 * spacing.DownText;
  metrics.OtherHeight = ruler.Height(mostOfOthers) + spacing.DownText;
  metrics.DeceasedWidth = deceased + 4 * spacing.AcrossText;
  metrics.DeceasedHeight =
      ruler.Height(std::max<qsizetype>(2, written.Deceased.size())) + 2 * spacing.DownText;
  metrics.Gap = spacing.Gap;
  metrics.RowGap = spacing.RowGap;
  metrics.Link = spacing.Link;
  return written;
}

QStringList WrittenTree::LinesIn(const TreeNode& node) const {
  if (node.What == TreeNode::Role::Link) return {};
  return node.What == TreeNode::Role::Deceased ? lines_.Deceased
                                               : lines_.Heirs.value(static_cast<int>(node.Heir));
}

QPolygonF ArrowAt(const QPointF& end, const QPointF& from, qreal size) {
  const QPointF way = end - from;
  const qreal length = std::max(1.0, std::hypot(way.x(), way.y()));
  const QPointF back = -way / length * size;
  const QPointF aside = QPointF(back.y(), -back.x()) / 2;
  return QPolygonF({end, end + back + aside, end + back - aside});
}

}  // namespace qismora
