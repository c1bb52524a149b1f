#include "windows/division/Markup.h"

#include <algorithm>

#include "windows/language/Languages.h"

namespace qismora::markup {

QString Escaped(const QString& words) { return words.toHtmlEscaped(); }

QString Tag(const char* tag, const QString& words) {
  return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), Escaped(words));
}

QString Paragraph(const QString& words) { return words.isEmpty() ? QString() : Tag("p", words); }

QString Cell(const QString& words, Side side, const char* tag, int percent, const QString& attributes) {
  const bool left = side == Side::Start && CurrentDirection() == Qt::LeftToRight;
  const bool isNumber = side == Side::Figures && !words.contains(QLatin1Char(' '));
  // The format keeps spreadsheets from reading fractions as dates.
  const bool isFraction = isNumber && words.contains(QLatin1Char('/'));
  return QStringLiteral("<%1 align=\"%2\"%3%4%5>%6</%1>")
      .arg(QLatin1String(tag), left ? QStringLiteral("left") : QStringLiteral("right"),
           percent == 0 ? QString() : QStringLiteral(" width=\"%1%\"").arg(percent),
           isNumber ? QStringLiteral(" style=\"white-space: nowrap%1\"")
                          .arg(isFraction ? QStringLiteral("; mso-number-format:'\\@'") : QString())
                    : QString(),
           isFraction ? QStringLiteral(" sdnum=\"0;0;@\"") : attributes, Escaped(words));
}

QString Row(QStringList cells, Order order) {
  if (order == Order::FromTheLeft && CurrentDirection() == Qt::RightToLeft)
    std::reverse(cells.begin(), cells.end());
  return QStringLiteral("<tr>%1</tr>").arg(cells.join(QString()));
}

QString Head(const QString& row) { return QStringLiteral("<thead>%1</thead>").arg(row); }

QString Table(const QString& rows, bool ruled) {
  const QString direction =
      CurrentDirection() == Qt::LeftToRight ? QStringLiteral("ltr") : QStringLiteral("rtl");
  return QStringLiteral(
             "<table dir=\"%1\" width=\"100%\" border=\"%2\" cellspacing=\"0\" cellpadding=\"%3\" "
             "style=\"border-collapse: collapse; border-color: black\">%4</table>")
      .arg(direction, ruled ? QStringLiteral("1") : QStringLiteral("0"),
           ruled ? QStringLiteral("3") : QStringLiteral("1"), rows);
}

}  // namespace qismora::markup
