#include "windows/division/PaperSignatures.h"

#include <algorithm>
#include <numeric>

#include "windows/division/DivisionWords.h"
#include "windows/division/Markup.h"
#include "windows/division/TranslationContexts.h"

namespace qismora {

namespace {

using markup::Row;

/// The most lines of heirs that a page of A4 or Letter has space for, and the heading and the other
/// signatures with them.
constexpr int mostLines = 24;

/// Per cent of the table's width.
constexpr int widthOfHeir = 24;
constexpr int widthOfName = 30;
constexpr int widthOfSignature = 28;
constexpr int widthOfDate = 18;
/// Pixels above the words of a line, so that a hand has the space to write.
constexpr int spaceToWrite = 10;

struct Signers {
  faraid::Kind Heir;
  int Heads;
  int Lines;
};

QList<Signers> SignersOf(const DivisionView& view) {
  QList<Signers> signers;
  for (const DivisionLine& line : view.Takers) {
    if (line.Heir() != faraid::Kind::Remainder) signers.append({line.Heir(), line.Law.Heads, line.Law.Heads});
  }
  const auto lines = [&] {
    return std::transform_reduce(signers.begin(), signers.end(), 0, std::plus(),
                                 std::mem_fn(&Signers::Lines));
  };
  while (lines() > mostLines) std::ranges::max_element(signers, {}, &Signers::Lines)->Lines = 1;
  return signers;
}

QString CellToFill(const QString& words, int percent, int columns = 1) {
  return QStringLiteral("<td width=\"%1%\" colspan=\"%2\" align=\"%3\" style=\"padding-top: %4px\">%5</td>")
      .arg(percent)
      .arg(columns)
      .arg(markup::StartSide())
      .arg(spaceToWrite)
      .arg(markup::Escaped(words));
}

}  // namespace

QList<SignatureLine> SignatureLines(const DivisionView& view) {
  QList<SignatureLine> lines;
  for (const Signers& signers : SignersOf(view)) {
    if (signers.Lines < signers.Heads || signers.Heads == 1) {
      lines.append({words::CountedHeir(signers.Heir, signers.Heads), signers.Lines < signers.Heads});
      continue;
    }
    for (int i = 1; i <= signers.Lines; ++i) {
      lines.append({Paper::tr("%1 %2", "one of several heirs: daughter 2")
                        .arg(words::Heir(signers.Heir, 1), words::Number(i))});
    }
  }
  return lines;
}

QString TableOfSignatures(const DivisionView& view) {
  const QList<SignatureLine> lines = SignatureLines(view);
  if (lines.isEmpty()) return {};
  const auto heading = [](const QString& words, int percent) {
    return markup::Cell(words, markup::Side::Start, "th", percent);
  };
  QString rows = markup::Head(Row(
      {heading(words::Heading(words::Column::Heir, 0), widthOfHeir), heading(Paper::tr("Name"), widthOfName),
       heading(Paper::tr("Signature"), widthOfSignature), heading(Paper::tr("Date"), widthOfDate)}));
  for (const SignatureLine& line : lines) {
    QStringList cells = {CellToFill(line.Who, widthOfHeir)};
    if (line.OnAList) {
      cells.append(CellToFill(Paper::tr("names and signatures on a list, attached to this paper"),
                              widthOfName + widthOfSignature + widthOfDate, 3));
    } else {
      for (const int width : {widthOfName, widthOfSignature, widthOfDate})
        cells.append(CellToFill({}, width));
    }
    rows += Row(cells);
  }
  return markup::Table(rows, true);
}

QString OtherSignatures() {
  QStringList cells;
  for (const QString& who : {Paper::tr("Prepared by"), Paper::tr("Witness %1").arg(words::Number(1)),
                             Paper::tr("Witness %1").arg(words::Number(2))}) {
    cells.append(QStringLiteral("<td width=\"34%\" align=\"%1\" style=\"padding-bottom: %2px\">%3</td>")
                     .arg(markup::StartSide())
                     .arg(2 * spaceToWrite)
                     .arg(markup::Escaped(who)));
  }
  return markup::Table(Row(cells), true);
}

}  // namespace qismora
