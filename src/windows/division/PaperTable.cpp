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

// Without widths, each column takes what its words need, and the reasons the rest.
constexpr struct {
  Column Which;
  Side Where;
} columns[] = {
    {Column::Heir, Side::Start},    {Column::Heads, Side::Figures},    {Column::Share, Side::Figures},
    {Column::Parts, Side::Figures}, {Column::Together, Side::Figures}, {Column::Each, Side::Figures},
    {Column::Why, Side::Start},     {Column::Source, Side::Start},
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
    case Column::Why:
      return words::Bases(view.Division);
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

/// A cell of the plain text. Amounts have the decimal separator of the desktop and no groups, which a
/// spreadsheet may not know. A share reads as in a letter, 1/9: a spreadsheet, which would take it for a
/// date, pastes the HTML, where the share is marked as text.
QString PlainText(Column column, const DivisionLine& line) {
  const faraid::Fraction& share = line.Law.Share;
  if (column == Column::Share) {
    return share.Den() == 1 ? QString::number(share.Num())
                            : QStringLiteral("%1/%2").arg(share.Num()).arg(share.Den());
  }
  const QString number = NumberOf(column, line);
  return number.isEmpty() ? CellText(column, line) : WithDecimalSeparator(number);
}

/// As NumberOf, for the row of the sum.
QString NumberOfSum(Column column, const DivisionView& view) {
  switch (column) {
    case Column::Heads:
      return QString::number(view.Sum.Heads);
    case Column::Share:
      return QStringLiteral("1");
    case Column::Parts:
      return QString::number(view.Sum.Parts);
    case Column::Together:
      return PlainAmount(view.Sum.Together);
    default:
      return {};
  }
}

QString PlainSum(Column column, const DivisionView& view) {
  const QString number = NumberOfSum(column, view);
  return number.isEmpty() ? SumText(column, view) : WithDecimalSeparator(number);
}

/// The attributes from which a spreadsheet that reads HTML takes the number, whatever digits the words have.
QString ForSpreadsheets(const QString& number) {
  return number.isEmpty() ? QString() : QStringLiteral(" x:num=\"%1\" sdval=\"%1\"").arg(number);
}

/// 33.33; one of them 33.34: on paper, the words stand between the figures, and the figures below each other.
/// No figure of the three languages has a blank. A spreadsheet would make three cells of the lines.
QString InLines(QString each) {
  for (const auto blank : {each.indexOf(QLatin1Char(' ')), each.lastIndexOf(QLatin1Char(' '))}) {
    if (blank > 0) each[blank] = QLatin1Char('\n');
  }
  return each;
}

}  // namespace

QString TableOfEstate(const DivisionView& view, Order order) {
  QString rows;
  for (const words::EstateLine& line : words::EstateLines(view)) {
    rows += Row({Cell(line.Caption), Cell(words::Amount(line.Amount), Side::Figures, "td", 0,
                                          ForSpreadsheets(PlainAmount(line.Amount)))},
                order);
  }
  return markup::Table(rows, true);
}

QString TableOfTakers(const DivisionView& view, Order order) {
  const auto row = [&](auto cellOf) {
    QStringList cells;
    for (const auto& column : columns) cells.append(cellOf(column));
    return Row(cells, order);
  };
  QString rows = Head(row([&](const auto& column) {
    return Cell(words::Heading(column.Which, view.Division.CorrectedBase), column.Where, "th");
  }));
  for (const DivisionLine& line : view.Takers) {
    rows += row([&](const auto& column) {
      const QString words = CellText(column.Which, line);
      const bool inLines = column.Which == Column::Each && order == Order::FromTheLeft;
      return Cell(inLines ? InLines(words) : words, column.Where, "td", 0,
                  ForSpreadsheets(NumberOf(column.Which, line)));
    });
  }
  QStringList sum;
  for (const auto& column : columns) {
    if (column.Which != Column::Why && column.Which != Column::Source) {
      sum.append(Cell(SumText(column.Which, view), column.Where, "th", 0,
                      ForSpreadsheets(NumberOfSum(column.Which, view))));
    }
  }
  sum.append(Cell(SumText(Column::Why, view), Side::Start, "td", 0, QStringLiteral(" colspan=\"2\"")));
  return markup::Table(rows + Row(sum, order), true);
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
    rows += row([&](Column column) {
      const QString number = column == Column::Heads ? NumberOf(column, line) : QString();
      return Cell(CellText(column, line), side(column), "td", 0, ForSpreadsheets(number));
    });
  }
  return markup::Tag("h3", HeadingOfOthers()) + markup::Table(rows, true);
}

// Heirs who receive nothing for the same reason share a row.
QString OthersByReason(const DivisionView& view, bool onNewPage) {
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
  QString rows = Head(Row({Cell(HeadingOfOthers(), Side::Start, "th"),
                           Cell(words::Heading(Column::Why, 0), Side::Start, "th"),
                           Cell(words::Heading(Column::Source, 0), Side::Start, "th")}));
  for (const Group& group : std::as_const(groups)) {
    rows += Row({Cell(group.Names.join(words::ListSeparator())), Cell(CellText(Column::Why, *group.First)),
                 Cell(CellText(Column::Source, *group.First))});
  }
  return markup::Table(rows, true, onNewPage);
}

QString EstateAsText(const DivisionView& view) {
  QString text;
  for (const words::EstateLine& line : words::EstateLines(view)) {
    text +=
        line.Caption + QLatin1Char('\t') + WithDecimalSeparator(PlainAmount(line.Amount)) + QLatin1Char('\n');
  }
  return text;
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
    for (const DivisionLine& line : *group) add([&](Column column) { return PlainText(column, line); });
  }
  add([&](Column column) { return PlainSum(column, view); });
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString HeadingOfOthers() { return Paper::tr("Alive, and receive nothing"); }

}  // namespace qismora
