#include "windows/division/Markup.h"

#include <algorithm>

#include "windows/language/Languages.h"

namespace qismora::markup {

QString Escaped(const QString& words) { return words.toHtmlEscaped(); }

QString Tag(const char* tag, const QString& words) {
  return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), Escaped(words));
}

QString Paragraph(const QString& words, const char* style) {
  if (words.isEmpty()) return {};
  if (style == nullptr) return Tag("p", words);
  return QStringLiteral("<p class=\"%1\">%2</p>").arg(QLatin1String(style), Escaped(words));
}

QString StartSide() {
  return CurrentDirection() == Qt::LeftToRight ? QStringLiteral("left") : QStringLiteral("right");
}

QString Cell(const QString& words, Side side, const char* tag, int percent, const QString& attributes) {
  const bool isFigure = side == Side::Figures;
  const bool isWhole = isFigure && (!words.contains(QLatin1Char(' ')) || words.contains(QLatin1Char('\n')));
  // The format keeps spreadsheets from reading fractions as dates.
  const bool isFraction = isFigure && words.contains(QLatin1Char('/'));
  return QStringLiteral("<%1 align=\"%2\"%3%4%5>%6</%1>")
      .arg(QLatin1String(tag), isFigure ? QStringLiteral("right") : StartSide(),
           percent == 0 ? QString() : QStringLiteral(" width=\"%1%\"").arg(percent),
           isWhole ? QStringLiteral(" style=\"white-space: nowrap%1\"")
                         .arg(isFraction ? QStringLiteral("; mso-number-format:'\\@'") : QString())
                   : QString(),
           isFraction ? QStringLiteral(" sdnum=\"0;0;@\"") : attributes,
           Escaped(words).replace(QLatin1Char('\n'), QStringLiteral("<br>")));
}

QString Row(QStringList cells, Order order) {
  if (order == Order::FromTheLeft && CurrentDirection() == Qt::RightToLeft)
    std::reverse(cells.begin(), cells.end());
  return QStringLiteral("<tr>%1</tr>").arg(cells.join(QString()));
}

QString Head(const QString& row) { return QStringLiteral("<thead>%1</thead>").arg(row); }

QString Table(const QString& rows, bool ruled, bool onNewPage) {
  const QString direction =
      CurrentDirection() == Qt::LeftToRight ? QStringLiteral("ltr") : QStringLiteral("rtl");
  return QStringLiteral(
             "<table dir=\"%1\" width=\"100%\" %2 cellspacing=\"0\" "
             "style=\"border-collapse: collapse; border-color: black%3\">%4</table>")
      .arg(direction,
           ruled ? QStringLiteral("class=\"ruled\" border=\"1\" cellpadding=\"3\"")
                 : QStringLiteral("border=\"0\" cellpadding=\"1\""),
           onNewPage ? QStringLiteral("; page-break-before: always") : QString(), rows);
}

}  // namespace qismora::markup
