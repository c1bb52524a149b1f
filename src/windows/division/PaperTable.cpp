#include "windows/division/PaperTable.h"

#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/TranslationContexts.h"

namespace qismora {

namespace {

using markup::Cell;
using markup::Head;
using markup::Order;
using markup::Row;
using markup::Side;
using words::Column;

constexpr struct {
  Column Which;
  Side Where;
  int Percent;
} columns[] = {
    {Column::Heir, Side::Start, 13},       {Column::Heads, Side::Figures, 6},
    {Column::Share, Side::Figures, 7},     {Column::Parts, Side::Figures, 8},
    {Column::Together, Side::Figures, 12}, {Column::Each, Side::Figures, 15},
    {Column::Why, Side::Start, 27},        {Column::Source, Side::Start, 12},
};

QString CellText(Column column, const DivisionLine& line) {
  switch (column) {
    case Column::Heir:
      return words::Heir(line.Heir(), line.Law.Heads);
    case Column::Heads:
      return line.Heir() == faraid::Kind::Remainder ? QString() : words::Number(line.Law.Heads);
    case Column::Share:
      return words::Share(line.Law.Share);
    case Column::Parts:
      return words::Number(line.Parts);
    case Column::Together:
      return words::Amount(line.Amount.Together);
    case Column::Each:
      if (line.Heir() == faraid::Kind::Remainder) return QStringLiteral("–");
      return words::EachOfThem(line.Amount, line.Law.Heads);
    case Column::Why:
      return words::WhyWithoutSource(line.Law.Why);
    case Column::Source:
      return words::SourceOf(line.Law.Why.Basis);
    case Column::CaseStudy:
      break;
  }
  return {};
}

QString SumText(Column column, const DivisionView& view) {
  switch (column) {
    case Column::Heir:
      return words::Sum();
    case Column::Heads:
      return words::Number(view.Sum.Heads);
    case Column::Share:
      return words::Share(1);
    case Column::Parts:
      return words::Number(view.Sum.Parts);
    case Column::Together:
      return words::Amount(view.Sum.Together);
    default:
      return {};
  }
}

/// With a point and no groups.
QString PlainAmount(faraid::Hundredths amount) {
  return QStringLiteral("%1.%2").arg(amount / 100).arg(amount % 100, 2, 10, QLatin1Char('0'));
}

/// The number that a figure stands for, with a point and no groups; empty where there is none or more than
/// one.
QString NumberOf(Column column, const DivisionLine& line) {
  switch (column) {
    case Column::Heads:
      return line.Heir() == faraid::Kind::Remainder ? QString() : QString::number(line.Law.Heads);
    case Column::Parts:
      return QString::number(line.Parts);
    case Column::Together:
      return PlainAmount(line.Amount.Together);
    case Column::Each:
      if (line.Heir() == faraid::Kind::Remainder) return {};
      if (line.Amount.HeadsWithOneMore == line.Law.Heads) return PlainAmount(line.Amount.Each + 1);
      return line.Amount.HeadsWithOneMore == 0 ? PlainAmount(line.Amount.Each) : QString();
    default:
      return {};
  }
}

QString WithDecimalSeparator(QString number) {
  if (QLocale::system().decimalPoint() == QLatin1String(","))
    number.replace(QLatin1Char('.'), QLatin1Char(','));
  return number;
}

/// What a spreadsheet that reads text computes with: a share is a formula, since it would read 1/6 as a date,
/// and amounts have the decimal separator of the desktop, as the spreadsheet has.
QString SpreadsheetText(Column column, const DivisionLine& line) {
  const faraid::Fraction& share = line.Law.Share;
  if (column == Column::Share) {
    return share.Den() == 1 ? QString::number(share.Num())
                            : QStringLiteral("=%1/%2").arg(share.Num()).arg(share.Den());
  }
  const QString number = NumberOf(column, line);
  return number.isEmpty() ? CellText(column, line) : WithDecimalSeparator(number);
}

QString SpreadsheetSum(Column column, const DivisionView& view) {
  switch (column) {
    case Column::Heads:
      return QString::number(view.Sum.Heads);
    case Column::Share:
      return QStringLiteral("1");
    case Column::Parts:
      return QString::number(view.Sum.Parts);
    case Column::Together:
      return WithDecimalSeparator(PlainAmount(view.Sum.Together));
    default:
      return SumText(column, view);
  }
}

/// What a spreadsheet that reads HTML goes by instead of the words, whatever their digits.
QString ForSpreadsheets(Column column, const DivisionLine& line) {
  const QString number = NumberOf(column, line);
  return number.isEmpty() ? QString() : QStringLiteral(" x:num=\"%1\" sdval=\"%1\"").arg(number);
}

}  // namespace

QString TableOfTakers(const DivisionView& view, Order order) {
  const auto row = [&](auto cellOf) {
    QStringList cells;
    for (const auto& column : columns) cells.append(cellOf(column));
    return Row(cells, order);
  };
  QString rows = Head(row([&](const auto& column) {
    return Cell(words::Heading(column.Which, view.Division.CorrectedBase), column.Where, "th",
                column.Percent);
  }));
  for (const DivisionLine& line : view.Takers) {
    rows += row([&](const auto& column) {
      return Cell(CellText(column.Which, line), column.Where, "td", 0, ForSpreadsheets(column.Which, line));
    });
  }
  rows += row([&](const auto& column) { return Cell(SumText(column.Which, view), column.Where, "th"); });
  return markup::Table(rows, true);
}

QString TableOfOthers(const DivisionView& view, Order order) {
  if (view.Others.empty()) return {};
  const auto row = [&](auto cellOf) {
    QStringList cells;
    for (const Column column : {Column::Heir, Column::Heads, Column::Why, Column::Source})
      cells.append(cellOf(column));
    return Row(cells, order);
  };
  const auto side = [](Column column) { return column == Column::Heads ? Side::Figures : Side::Start; };
  QString rows =
      Head(row([&](Column column) { return Cell(words::Heading(column, 0), side(column), "th"); }));
  for (const DivisionLine& line : view.Others) {
    rows += row([&](Column column) { return Cell(CellText(column, line), side(column)); });
  }
  return markup::Tag("h3", HeadingOfOthers()) + markup::Table(rows, true);
}

// Who stand for the same reason stand in one row.
QString OthersByReason(const DivisionView& view) {
  struct Group {
    const DivisionLine* First;
    QStringList Names;
  };
  QList<Group> groups;
  for (const DivisionLine& line : view.Others) {
    const QString heads = words::CountedHeir(line.Heir(), line.Law.Heads);
    const auto same = std::ranges::find_if(groups, [&](const Group& group) {
      return CellText(Column::Why, *group.First) == CellText(Column::Why, line) &&
             CellText(Column::Source, *group.First) == CellText(Column::Source, line);
    });
    if (same == groups.end()) {
      groups.append({&line, {heads}});
    } else {
      same->Names.append(heads);
    }
  }
  QString rows = Head(Row({Cell(words::Heading(Column::Heir, 0), Side::Start, "th", 50),
                           Cell(words::Heading(Column::Why, 0), Side::Start, "th", 30),
                           Cell(words::Heading(Column::Source, 0), Side::Start, "th", 20)}));
  for (const Group& group : std::as_const(groups)) {
    rows += Row({Cell(group.Names.join(words::ListSeparator())), Cell(CellText(Column::Why, *group.First)),
                 Cell(CellText(Column::Source, *group.First))});
  }
  return groups.isEmpty() ? QString() : markup::Table(rows, true);
}

QString TableAsText(const DivisionView& view) {
  QStringList lines;
  const auto add = [&](auto textOf) {
    QStringList cells;
    for (const auto& column : columns) cells.append(textOf(column.Which));
    lines.append(cells.join(QLatin1Char('\t')));
  };
  add([&](Column column) { return words::Heading(column, view.Division.CorrectedBase); });
  for (const auto* group : {&view.Takers, &view.Others}) {
    for (const DivisionLine& line : *group) add([&](Column column) { return SpreadsheetText(column, line); });
  }
  add([&](Column column) { return SpreadsheetSum(column, view); });
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString HeadingOfOthers() { return Paper::tr("Alive, and receive nothing"); }

}  // namespace qismora
