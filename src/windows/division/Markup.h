#pragma once

#include <QString>
#include <QStringList>

// HTML for the paper and the clipboard, in the direction of the current language. Words are given as plain
// text.
namespace qismora::markup {

/// In which order the columns of a table are written. Qt's text documents run them from the left, whatever
/// the direction of the table; letters and spreadsheets turn them around.
enum class Order { FromTheLeft, AsRead };

/// Where the text of a cell begins. Figures stand below each other with their last digits, in Arabic and Urdu
/// too, where numbers run from the left as well.
enum class Side { Start, Figures };

/// The side on which the text of the language begins: "left" or "right".
QString StartSide();

QString Escaped(const QString& words);
QString Tag(const char* tag, const QString& words);
/// Empty where there are no words. A style is a class of the style sheet.
QString Paragraph(const QString& words, const char* style = nullptr);

/// A cell. The percentage is that of the table's width, 0 without one. Figures are not broken over two lines;
/// a line break in the words is one in the cell.
QString Cell(const QString& words, Side side = Side::Start, const char* tag = "td", int percent = 0,
             const QString& attributes = {});
QString Row(QStringList cells, Order order = Order::FromTheLeft);
/// The row that is repeated on every page.
QString Head(const QString& row);
QString Table(const QString& rows, bool ruled, bool onNewPage = false);

}  // namespace qismora::markup
