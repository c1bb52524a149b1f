#include "windows/division/DivisionTable.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <cmath>
#include <utility>

#include "windows/division/DivisionWords.h"
#include "windows/division/Patterns.h"
#include "windows/style/Colours.h"

namespace qismora {

namespace {

using faraid::Kind;
using Place = DivisionTable::Place;

constexpr int swatchSize = 12;
constexpr double quietness = 0.35;
constexpr double tint = 0.16;
const QString dash = QStringLiteral("–");

QString Signed(faraid::Hundredths amount) {
  if (amount == 0) return words::Amount(0);
  const QString sign = amount > 0 ? QStringLiteral("+") : QStringLiteral("−");
  return IsolatedFigure(sign + words::Amount(std::abs(amount)));
}

/// 33.33 or 33.34: the second figure stands below the first. No figure of the three languages has a blank.
QString InTwoLines(QString each) {
  const auto last = each.lastIndexOf(QLatin1Char(' '));
  if (last > 0 && each.count(QLatin1Char(' ')) >= 2) each[last] = QLatin1Char('\n');
  return each;
}

QString WhyOf(const DivisionLine& line) { return words::Why(line.Law.Why); }

/// What the commands show for an heir, as they round it.
QString OwnAmount(const OwnAnswer& own, Kind heir) {
  if (own.Outcome != OwnOutcome::Figures || heir == Kind::Remainder) return dash;
  return words::Number(static_cast<std::int64_t>(std::nearbyint(own.Of(heir).Together)));
}

/// The whole row for a screen reader: figures with their headings, sentences without.
QString SentenceOf(const DivisionTable& table, const DivisionTable::Row& row) {
  QStringList parts;
  for (qsizetype i = 1; i < row.Cells.size(); ++i) {
    if (row.Cells[i].isEmpty() || row.Cells[i] == dash) continue;
    const bool sentence = i >= table.FirstSentence;
    parts.append(sentence ? row.Cells[i] : table.Headings[i] + QLatin1Char(' ') + row.Cells[i]);
  }
  QString words = row.Cells[0] + QStringLiteral(": ") + parts.join(QStringLiteral(", "));
  return words.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

class SchoolTable {
 public:
  SchoolTable(const DivisionView& view, const std::optional<DivisionView>& before,
              const QString& beforeHeading)
      : view_(view), before_(before), showsOwn_(view.Own.has_value() && !view.Differs.None()) {
    using words::Column;
    for (const Column column :
         {Column::Heir, Column::Heads, Column::Share, Column::Parts, Column::Together, Column::Each}) {
      Head(words::Heading(column, view.Division.CorrectedBase), column != Column::Heir);
    }
    if (showsOwn_) table_.Marked = static_cast<int>(table_.Headings.size());
    if (showsOwn_) Head(words::Heading(Column::CaseStudy, 0), true);
    if (before_) {
      Head(beforeHeading, true);
      Head(DivisionTable::tr("Difference"), true);
    }
    table_.FirstSentence = static_cast<int>(table_.Headings.size());
    Head(words::Heading(Column::Why, 0), false);
  }

  DivisionTable Make() {
    for (const DivisionLine& line : view_.Takers) AddHeir(line, Place::Taker);
    if (!view_.Takers.empty()) AddSum();
    for (const DivisionLine& line : view_.Others) AddHeir(line, Place::Other);
    if (before_) AddFormerHeirs();
    return std::move(table_);
  }

 private:
  void Head(const QString& heading, bool figures) {
    table_.Headings.append(heading);
    table_.Figures.append(figures);
  }

  faraid::Hundredths Before(Kind heir) const {
    const DivisionLine* line = before_->Find(heir);
    return line == nullptr ? 0 : line->Amount.Together;
  }

  void AddHeir(const DivisionLine& line, Place place) {
    const faraid::Row& row = line.Law;
    const bool counted = row.Heir != Kind::Remainder;
    const bool takes = line.Takes();
    DivisionTable::Row cells;
    cells.Heir = row.Heir;
    cells.Where = place;
    cells.Cells = {words::Heir(row.Heir, row.Heads),
                   counted ? words::Number(row.Heads) : QString(),
                   takes ? words::Share(row.Share) : dash,
                   takes ? words::Number(line.Parts) : dash,
                   words::Amount(line.Amount.Together),
                   takes && counted ? InTwoLines(words::Each(line.Amount, row.Heads)) : dash};
    cells.Differs = showsOwn_ && view_.Differs.Heirs.Has(row.Heir);
    if (showsOwn_) {
      cells.Cells.append((cells.Differs ? QStringLiteral("≠ ") : QString()) +
                         OwnAmount(*view_.Own, row.Heir));
    }
    if (before_) {
      const bool was = before_->Find(row.Heir) != nullptr;
      cells.Cells.append(was ? words::Amount(Before(row.Heir)) : dash);
      cells.Cells.append(Signed(line.Amount.Together - Before(row.Heir)));
    }
    cells.Cells.append(WhyOf(line));
    Add(std::move(cells));
  }

  void AddSum() {
    DivisionTable::Row sum;
    sum.Where = Place::Sum;
    sum.Cells = {words::Sum(),
                 words::Number(view_.Sum.Heads),
                 words::Number(1),
                 words::Number(view_.Sum.Parts),
                 words::Amount(view_.Sum.Together),
                 QString()};
    if (showsOwn_) sum.Cells.append(QString());
    if (before_) {
      sum.Cells.append(words::Amount(before_->Sum.Together));
      sum.Cells.append(Signed(view_.Sum.Together - before_->Sum.Together));
    }
    sum.Cells.append(words::Bases(view_.Division));
    Add(std::move(sum));
  }

  /// The heirs of the other division who have no line in this one.
  void AddFormerHeirs() {
    for (const HeirChange& change : ChangesBetween(*before_, view_)) {
      if (change.Now) continue;
      const faraid::Row& row = before_->Find(change.Heir)->Law;
      DivisionTable::Row gone;
      gone.Heir = change.Heir;
      gone.Where = Place::Other;
      gone.Cells = {words::Heir(row.Heir, row.Heads), words::Number(0), dash, dash, dash, dash};
      if (showsOwn_) gone.Cells.append(dash);
      gone.Cells.append(words::Amount(*change.Before));
      gone.Cells.append(Signed(change.Difference()));
      gone.Cells.append(row.Heir == Kind::Remainder ? QString()
                                                    : DivisionTable::tr("not alive in this case"));
      Add(std::move(gone));
    }
  }

  void Add(DivisionTable::Row row) {
    row.Sentence = SentenceOf(table_, row);
    if (row.Differs) row.Sentence += QStringLiteral(". ") + words::NoticeHeading();
    table_.Rows.append(std::move(row));
  }

  const DivisionView& view_;
  const std::optional<DivisionView>& before_;
  bool showsOwn_;
  DivisionTable table_;
};

QString InSchool(const DivisionView& view, Kind heir) {
  const DivisionLine* line = view.Find(heir);
  if (line == nullptr) return dash;
  if (!line->Takes()) return dash;
  return words::Share(line->Law.Share) + QLatin1Char('\n') + words::Amount(line->Amount.Together);
}

/// The reason in each school, those with the same reason together.
QString WhySchoolsDiffer(const SchoolViews& views, Kind heir) {
  QList<std::pair<QString, QStringList>> reasons;
  for (const DivisionView& view : views) {
    const DivisionLine* line = view.Find(heir);
    const QString why = line == nullptr ? DivisionTable::tr("has no line") : WhyOf(*line);
    const auto same =
        std::find_if(reasons.begin(), reasons.end(), [&](const auto& r) { return r.first == why; });
    if (same == reasons.end()) {
      reasons.append({why, {words::SchoolName(view.School)}});
    } else {
      same->second.append(words::SchoolName(view.School));
    }
  }
  QStringList lines;
  for (const auto& [why, schools] : std::as_const(reasons)) {
    lines.append(schools.join(QStringLiteral(", ")) + QStringLiteral(": ") + why);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

DivisionTable DivisionTable::OfSchool(const DivisionView& view, const std::optional<DivisionView>& before,
                                      const QString& beforeHeading) {
  return SchoolTable(view, before, beforeHeading).Make();
}

DivisionTable DivisionTable::OfFourSchools(const SchoolViews& views) {
  DivisionTable table;
  table.Headings = {words::Heading(words::Column::Heir, 0)};
  table.Figures = {false};
  for (const DivisionView& view : views) {
    table.Headings.append(words::SchoolName(view.School));
    table.Figures.append(true);
  }
  table.FirstSentence = static_cast<int>(table.Headings.size());
  table.Marked = table.FirstSentence;
  table.Headings.append(tr("Where they differ, and why"));
  table.Figures.append(false);
  for (std::size_t i = 0; i <= faraid::KindCount; ++i) {
    const auto heir = static_cast<Kind>(i);
    const DivisionLine* line = nullptr;
    bool takes = false;
    for (const DivisionView& view : views) {
      const DivisionLine* found = view.Find(heir);
      if (found != nullptr) line = found;
      takes = takes || (found != nullptr && found->Takes());
    }
    if (line == nullptr) continue;
    Row row;
    row.Heir = heir;
    row.Where = takes ? Place::Taker : Place::Other;
    row.Differs = SchoolsDiffer(views, heir);
    row.Cells = {words::Heir(heir, line->Law.Heads)};
    for (const DivisionView& view : views) row.Cells.append(InSchool(view, heir));
    row.Cells.append(row.Differs ? QStringLiteral("≠ ") + WhySchoolsDiffer(views, heir)
                                 : tr("all four alike"));
    row.Sentence = SentenceOf(table, row);
    table.Rows.append(row);
  }
  return table;
}

void DivisionModel::Show(DivisionTable table) {
  const bool sameShape =
      table.Rows.size() == table_.Rows.size() && table.Headings.size() == table_.Headings.size();
  if (!sameShape) {
    beginResetModel();
    table_ = std::move(table);
    return endResetModel();
  }
  const DivisionTable old = std::exchange(table_, std::move(table));
  for (int row = 0; row < rowCount(); ++row) {
    if (old.Rows[row] == table_.Rows[row]) continue;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
  }
}

void DivisionModel::SetHeadings(QStringList headings) {
  if (headings == headings_) return;
  headings_ = std::move(headings);
  emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(headings_.size()) - 1);
}

// Units stand below units in every language.
Qt::Alignment DivisionModel::SideOf(int column) const {
  return table_.Figures[column] ? Qt::AlignRight | Qt::AlignAbsolute : Qt::Alignment(Qt::AlignLeft);
}

int DivisionModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Rows.size());
}

int DivisionModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Headings.size());
}

QVariant DivisionModel::Swatch(Kind heir) const {
  QVariant& swatch = swatches_[static_cast<int>(heir)];
  if (swatch.isNull()) {
    const int lineHeight = QFontMetrics(font_).height();
    swatch = PatternSwatch(heir, QGuiApplication::palette(), swatchSize, (lineHeight - swatchSize) / 2,
                           qApp->devicePixelRatio());
  }
  return swatch;
}

QVariant DivisionModel::data(const QModelIndex& index, int role) const {
  const DivisionTable::Row& row = table_.Rows[index.row()];
  const QPalette palette = QGuiApplication::palette();
  switch (role) {
    case Qt::DisplayRole:
      return row.Cells[index.column()];
    case Qt::AccessibleTextRole:
      return index.column() == 0 ? row.Sentence : QVariant();
    case Qt::ToolTipRole:
      return row.Cells[index.column()];
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(SideOf(index.column()) | Qt::AlignTop);
    case Qt::DecorationRole:
      return index.column() == 0 && row.Where == Place::Taker ? Swatch(row.Heir) : QVariant();
    case Qt::FontRole: {
      if (row.Where != Place::Sum) return {};
      QFont bold = font_;
      bold.setBold(true);
      return bold;
    }
    case Qt::ForegroundRole: {
      if (row.Where != Place::Other) return {};
      const QColor base = palette.color(QPalette::Base);
      return Readable(Between(palette.color(QPalette::Text), base, quietness), base, WantedContrast(palette));
    }
    case Qt::BackgroundRole:
      if (row.Differs && index.column() == table_.Marked && !IsBlackAndWhite(palette))
        return Between(palette.color(QPalette::Base), Amber, tint);
      return {};
    default:
      return {};
  }
}

QVariant DivisionModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || section >= table_.Headings.size()) return {};
  if (role == Qt::DisplayRole)
    return section < headings_.size() ? headings_[section] : table_.Headings[section];
  if (role == Qt::AccessibleTextRole) return table_.Headings[section];
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(SideOf(section) | Qt::AlignVCenter);
  }
  return {};
}

}  // namespace qismora
