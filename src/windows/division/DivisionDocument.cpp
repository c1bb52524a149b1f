#include "windows/division/DivisionDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPageSize>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/PaperTree.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

using Order = DivisionDocument::Order;
using words::Column;

/// The context of the translations.
class Paper {
  Q_DECLARE_TR_FUNCTIONS(Paper)
};

constexpr double pointsOfFooter = 8;
constexpr double dotsOfPreview = 150;  // to the inch
constexpr double metresPerInch = 0.0254;
/// Per cent: fonts of Naskh have room between the lines for marks that no sentence of the paper has.
constexpr double lineHeightOfNaskh = 80;

QFont PaperFont(double points) {
  QFont font = FontOfLanguage(QGuiApplication::font());
  font.setPointSizeF(points);
  font.setHintingPreference(QFont::PreferNoHinting);  // as wide in a preview as on paper
  return font;
}

QString Escaped(const QString& words) { return words.toHtmlEscaped(); }

QString Tag(const char* tag, const QString& words) {
  return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), Escaped(words));
}

QString Paragraph(const QString& words) { return words.isEmpty() ? QString() : Tag("p", words); }

enum class Side { Start, Figures };

/// A cell. Figures stand below each other with their last digits, in Arabic and Urdu too, where numbers run
/// from the left as well.
QString Cell(const QString& words, Side side = Side::Start, const char* tag = "td", int percent = 0,
             const QString& attributes = {}) {
  const bool left = side == Side::Start && CurrentDirection() == Qt::LeftToRight;
  const bool isNumber = side == Side::Figures && !words.contains(QLatin1Char(' '));
  // A spreadsheet that reads HTML would read 1/6 as a date, unless it is told that it is a text.
  const bool isFraction = isNumber && words.contains(QLatin1Char('/'));
  return QStringLiteral("<%1 align=\"%2\"%3%4%5>%6</%1>")
      .arg(QLatin1String(tag), left ? QStringLiteral("left") : QStringLiteral("right"),
           percent == 0 ? QString() : QStringLiteral(" width=\"%1%\"").arg(percent),
           isNumber ? QStringLiteral(" style=\"white-space: nowrap%1\"")
                          .arg(isFraction ? QStringLiteral("; mso-number-format:'\\@'") : QString())
                    : QString(),
           isFraction ? QStringLiteral(" sdnum=\"0;0;@\"") : attributes, Escaped(words));
}

QString Row(QStringList cells, Order order = Order::FromTheLeft) {
  if (order == Order::FromTheLeft && CurrentDirection() == Qt::RightToLeft)
    std::reverse(cells.begin(), cells.end());
  return QStringLiteral("<tr>%1</tr>").arg(cells.join(QString()));
}

QString Head(const QString& row) { return QStringLiteral("<thead>%1</thead>").arg(row); }

QString TableOf(const QString& rows, bool ruled) {
  const QString direction =
      CurrentDirection() == Qt::LeftToRight ? QStringLiteral("ltr") : QStringLiteral("rtl");
  return QStringLiteral(
             "<table dir=\"%1\" width=\"100%\" border=\"%2\" cellspacing=\"0\" cellpadding=\"%3\" "
             "style=\"border-collapse: collapse; border-color: black\">%4</table>")
      .arg(direction, ruled ? QStringLiteral("1") : QStringLiteral("0"),
           ruled ? QStringLiteral("3") : QStringLiteral("1"), rows);
}

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
      return words::Each(line.Amount, line.Law.Heads);
    case Column::Why:
      return words::WhyWithoutSource(line.Law.Why);
    case Column::Source:
      return words::SourceOf(line.Law.Why.Ground);
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

/// The number that a figure stands for, with a point and no groups; empty where there is none or more than
/// one.
QString NumberOf(Column column, const DivisionLine& line) {
  const auto hundredths = [](faraid::Hundredths amount) {
    return QStringLiteral("%1.%2").arg(amount / 100).arg(amount % 100, 2, 10, QLatin1Char('0'));
  };
  switch (column) {
    case Column::Heads:
      return line.Heir() == faraid::Kind::Remainder ? QString() : QString::number(line.Law.Heads);
    case Column::Parts:
      return QString::number(line.Parts);
    case Column::Together:
      return hundredths(line.Amount.Together);
    case Column::Each:
      if (line.Amount.HeadsWithOneMore == line.Law.Heads) return hundredths(line.Amount.Each + 1);
      return line.Amount.HeadsWithOneMore == 0 ? hundredths(line.Amount.Each) : QString();
    default:
      return {};
  }
}

/// What a spreadsheet that reads text computes with: a share is a formula, since it would read 1/6 as a date,
/// and amounts have the decimal separator of the desktop, as the spreadsheet has.
QString SpreadsheetText(Column column, const DivisionLine& line) {
  const faraid::Fraction& share = line.Law.Share;
  if (column == Column::Share) {
    return share.Den() == 1 ? QString::number(share.Num())
                            : QStringLiteral("=%1/%2").arg(share.Num()).arg(share.Den());
  }
  QString number = NumberOf(column, line);
  if (QLocale::system().decimalPoint() == QLatin1String(","))
    number.replace(QLatin1Char('.'), QLatin1Char(','));
  return number.isEmpty() ? CellText(column, line) : number;
}

/// What a spreadsheet that reads HTML goes by instead of the words, whatever their digits.
QString ForSpreadsheets(Column column, const DivisionLine& line) {
  const QString number = NumberOf(column, line);
  return number.isEmpty() ? QString() : QStringLiteral(" x:num=\"%1\" sdval=\"%1\"").arg(number);
}

/// Below the text of a page, for a device of so many dots per inch.
double FooterHeight(int dots) { return 2 * pointsOfFooter * dots / 72; }

void DrawPage(QPainter& painter, const QTextDocument& document, int page, const QString& foot) {
  const QSizeF size = document.pageSize();
  painter.save();
  painter.translate(0, -page * size.height());
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(QPointF(0, page * size.height()), size);
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
  painter.setFont(PaperFont(pointsOfFooter));
  painter.setPen(Qt::black);
  painter.setLayoutDirection(CurrentDirection());
  const double height = FooterHeight(painter.device()->logicalDpiY());
  painter.drawText(QRectF(0, size.height(), size.width(), height), Qt::AlignHCenter | Qt::AlignBottom, foot);
}

/// What a device shows within its margins.
QImage PictureOf(const QTextDocument& document, int page, const QString& foot,
                 const QPagedPaintDevice& device) {
  const int dots = device.logicalDpiX();
  const double scale = dotsOfPreview / dots;
  QImage image((QSizeF(device.pageLayout().paintRectPixels(dots).size()) * scale).toSize(),
               QImage::Format_Grayscale8);
  // So that fonts have the sizes that they have on the device.
  image.setDotsPerMeterX(qRound(dots / metresPerInch));
  image.setDotsPerMeterY(qRound(dots / metresPerInch));
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(scale, scale);
  DrawPage(painter, document, page, foot);
  return image;
}

}  // namespace

DivisionDocument::DivisionDocument(DivisionView view, const QDate& date)
    : view_(std::move(view)), date_(date) {}

QString DivisionDocument::FileName() const {
  QString name = ToQt(view_.Name).simplified();
  for (QChar& sign : name) {
    if (!sign.isLetterOrNumber() && !sign.isMark() && sign != QLatin1Char('-')) sign = QLatin1Char(' ');
  }
  name = name.simplified().left(80);
  return name.isEmpty() ? Paper::tr("Division") : Paper::tr("Division - %1", "name of a file").arg(name);
}

QString DivisionDocument::Facts() const {
  const QString name = ToQt(view_.Name).simplified();
  const QString gender = view_.Gender == Male ? Paper::tr("a man") : Paper::tr("a woman");
  const auto fact = [](const QString& caption, const QString& value) {
    return Row({QStringLiteral("<td width=\"30%\"><b>%1</b></td>").arg(Escaped(caption)),
                QStringLiteral("<td width=\"70%\">%1</td>").arg(Escaped(value))});
  };
  return TableOf(
      fact(words::Deceased(),
           name.isEmpty() ? gender : Paper::tr("%1, %2", "a name, a man or a woman").arg(name, gender)) +
          fact(Paper::tr("Date"), CurrentLocale().toString(date_, QLocale::LongFormat)) +
          fact(Paper::tr("School"), words::SchoolLaw(view_.School)),
      false);
}

QString DivisionDocument::Estate() const {
  QString rows;
  for (const words::EstateLine& line : words::EstateLines(view_)) {
    rows += Row({Cell(line.Caption, Side::Start, "td", 50), Cell(line.Amount, Side::Figures, "td", 50)});
  }
  return Tag("h3", Paper::tr("The estate")) + TableOf(rows, true);
}

// Those who sign it must read what they consent to.
QString DivisionDocument::Consent() const {
  return view_.Estate.HeirsConsent && view_.ConsentMatters()
             ? Paper::tr("The heirs consent to bequests of more than a third.")
             : QString();
}

QString DivisionDocument::Notice() const {
  if (view_.Differs.None()) return {};
  QString items;
  for (const DifferenceKind* kind : view_.Differs.Kinds) items += Tag("li", words::DifferenceSentence(*kind));
  const QString frame = QStringLiteral("<td><b>%1</b> %2<ul>%3</ul></td>")
                            .arg(Escaped(words::NoticeHeading()),
                                 Escaped(Paper::tr("The table below is the division by the books.")), items);
  return TableOf(Row({frame}), true);
}

QString DivisionDocument::Table(Order order) const {
  const auto row = [&](auto cellOf) {
    QStringList cells;
    for (const auto& column : columns) cells.append(cellOf(column));
    return Row(cells, order);
  };
  QString rows = Head(row([&](const auto& column) {
    return Cell(words::Heading(column.Which, view_.Division.CorrectedBase), column.Where, "th",
                column.Percent);
  }));
  for (const DivisionLine& line : view_.Takers) {
    rows += row([&](const auto& column) {
      return Cell(CellText(column.Which, line), column.Where, "td", 0, ForSpreadsheets(column.Which, line));
    });
  }
  rows += row([&](const auto& column) { return Cell(SumText(column.Which, view_), column.Where, "th"); });
  return TableOf(rows, true);
}

QString DivisionDocument::OthersTable(Order order) const {
  if (view_.Others.empty()) return {};
  const auto row = [&](auto cellOf) {
    QStringList cells;
    for (const Column column : {Column::Heir, Column::Heads, Column::Why, Column::Source})
      cells.append(cellOf(column));
    return Row(cells, order);
  };
  QString rows = Head(row([](Column column) { return Cell(words::Heading(column, 0), Side::Start, "th"); }));
  for (const DivisionLine& line : view_.Others) {
    rows += row([&](Column column) { return Cell(CellText(column, line)); });
  }
  return Tag("h3", Paper::tr("Alive, and receive nothing")) + TableOf(rows, true);
}

// Who stand for the same reason stand in one row.
QString DivisionDocument::OthersByReason() const {
  struct Group {
    const DivisionLine* First;
    QStringList Names;
  };
  QList<Group> groups;
  for (const DivisionLine& line : view_.Others) {
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
  return groups.isEmpty() ? QString() : TableOf(rows, true);
}

QString DivisionDocument::Signatures() const {
  const QString line =
      QStringLiteral("<td width=\"33%\"><br>..............................................<br>%1</td>");
  QString rows;
  for (int i = 0; i < 2; ++i) {
    rows += Row({line.arg(Escaped(Paper::tr("Name"))), line.arg(Escaped(Paper::tr("Signature"))),
                 line.arg(Escaped(Paper::tr("Place and date")))});
  }
  return TableOf(rows, false);
}

QString DivisionDocument::Html(Break where) const {
  const auto opening = [where](const char* tag, Break here) {
    return QStringLiteral("<%1%2>").arg(
        QLatin1String(tag),
        where == here ? QStringLiteral(" style=\"page-break-before: always\"") : QString());
  };
  const QString estate =
      Row({QStringLiteral("<td width=\"52%\">%1</td>").arg(Facts()), QStringLiteral("<td width=\"4%\"></td>"),
           QStringLiteral("<td width=\"44%\">%1</td>").arg(Estate())});
  QString html = Tag("h2", Paper::tr("Division of an estate")) + TableOf(estate, false) +
                 Paragraph(words::BequestNotice(view_)) + Paragraph(Consent()) +
                 Paragraph(words::ExampleNotice(view_)) + Tag("h3", Paper::tr("The division")) +
                 Tag("p", words::Headline(view_)) + Notice() + Table(Order::FromTheLeft) +
                 Paragraph(words::Bases(view_.Division));
  if (!view_.Others.empty()) {
    html += opening("h3", Break::BeforeOthers) + Escaped(Paper::tr("Alive, and receive nothing")) +
            QStringLiteral("</h3>") + OthersByReason();
  }
  const bool alone = where == Break::BeforeTreeAlone;
  const QString tree = opening("p align=\"center\"", alone ? where : Break::BeforeTree) +
                       QChar(QChar::ObjectReplacementCharacter) + QStringLiteral("</p>");
  const QString end =
      Paragraph(
          Paper::tr("Computed by %1 from the figures above. This paper is no judgment of a court and no "
                    "fatwa: ask a scholar before the estate is divided.")
              .arg(words::SchoolLaw(view_.School))) +
      Signatures();
  return html + (alone ? end + tree : tree + end);
}

std::unique_ptr<QTextDocument> DivisionDocument::SetIn(QPagedPaintDevice& device, double points,
                                                       Break where) const {
  auto document = std::make_unique<QTextDocument>();
  const QFont font = PaperFont(points);
  document->setDefaultFont(font);
  document->setDocumentMargin(0);
  QTextOption direction;
  direction.setTextDirection(CurrentDirection());
  document->setDefaultTextOption(direction);
  document->setDefaultStyleSheet(
      QStringLiteral("h2 { font-size: %1pt; margin: 0 0 4px 0 } h3 { font-size: %2pt; margin: 6px 0 2px 0 } "
                     "p { margin: 3px 0 4px 0 } ul { margin: 2px 0 2px 0 }")
          .arg(points * 1.6)
          .arg(points * 1.15));
  document->documentLayout()->setPaintDevice(&device);
  QSizeF place = device.pageLayout().paintRect(QPageLayout::Point).size();
  place.rheight() -= 3 * pointsOfFooter;
  auto* tree = new PaperTree(view_, Paper::tr("The family"), font, place, document.get());
  document->documentLayout()->registerHandler(PaperTree::Type, tree);
  document->setHtml(Html(where));
  // Else each paragraph would have the direction of its first letter.
  QTextCursor all(document.get());
  all.select(QTextCursor::Document);
  QTextBlockFormat turned;
  turned.setLayoutDirection(CurrentDirection());
  if (CurrentDirection() == Qt::RightToLeft)
    turned.setLineHeight(lineHeightOfNaskh, QTextBlockFormat::ProportionalHeight);
  all.mergeBlockFormat(turned);
  QSizeF page = device.pageLayout().paintRectPixels(device.logicalDpiX()).size();
  page.rheight() -= FooterHeight(device.logicalDpiY());
  document->setPageSize(page);

  QTextCursor cursor = document->find(QString(QChar(QChar::ObjectReplacementCharacter)));
  QTextCharFormat object;
  object.setObjectType(PaperTree::Type);
  cursor.insertText(QString(QChar(QChar::ObjectReplacementCharacter)), object);
  QTextBlockFormat whole;
  whole.setLineHeight(0, QTextBlockFormat::SingleHeight);
  cursor.mergeBlockFormat(whole);
  return document;
}

// Rather one page in smaller text than two, but never too small to be read with ease. Where there are two,
// the first ends between two parts, so that no table is broken and the signatures stand below the tree.
std::unique_ptr<QTextDocument> DivisionDocument::SetIn(QPagedPaintDevice& device) const {
  constexpr double sizesOfOne[] = {10, 9, 8.5, 8};
  constexpr double sizesOfTwo[] = {10, 9, 8, 7};
  for (const double points : sizesOfOne) {
    auto document = SetIn(device, points, Break::None);
    if (document->pageCount() == 1) return document;
  }
  for (const double points : sizesOfTwo) {
    for (const Break where : {Break::BeforeTree, Break::BeforeOthers, Break::BeforeTreeAlone}) {
      auto document = SetIn(device, points, where);
      if (document->pageCount() == 2) return document;
    }
  }
  return SetIn(device, sizesOfTwo[std::size(sizesOfTwo) - 1], Break::BeforeTree);
}

void DivisionDocument::Print(QPagedPaintDevice& device) const {
  const std::unique_ptr<QTextDocument> document = SetIn(device);
  QPainter painter(&device);
  // A preview keeps what is painted as a QPicture, which forgets that a text runs from the right and moves
  // its signs and blanks. It gets the picture of a page instead.
  const bool isPreview = device.paintEngine()->type() == QPaintEngine::Picture;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, isPreview);
  const int pages = document->pageCount();
  for (int page = 0; page < pages; ++page) {
    if (page > 0) device.newPage();
    const QString foot =
        Paper::tr("Qismora - page %1 of %2").arg(words::Number(page + 1), words::Number(pages));
    if (isPreview) {
      const QImage image = PictureOf(*document, page, foot, device);
      painter.drawImage(
          QRectF(QPointF(0, 0), device.pageLayout().paintRectPixels(device.logicalDpiX()).size()), image);
    } else {
      DrawPage(painter, *document, page, foot);
    }
  }
}

std::optional<QString> DivisionDocument::SavePdf(const QString& path) const {
  QByteArray content;
  {
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(FileName());
    writer.setCreator(QStringLiteral("Qismora"));
    writer.setPageSize(UsualPaper());
    writer.setPageMargins(QMarginsF(PaperMargin, PaperMargin, PaperMargin, PaperMargin),
                          QPageLayout::Millimeter);
    Print(writer);
  }
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
    return std::nullopt;
  return Paper::tr("%1 is not saved: %2.").arg(QFileInfo(path).fileName(), file.errorString());
}

QString DivisionDocument::TableAsHtml() const { return Table(Order::AsRead) + OthersTable(Order::AsRead); }

QString DivisionDocument::TableAsText() const {
  QStringList lines;
  const auto add = [&](auto textOf) {
    QStringList cells;
    for (const auto& column : columns) cells.append(textOf(column.Which));
    lines.append(cells.join(QLatin1Char('\t')));
  };
  add([&](Column column) { return words::Heading(column, view_.Division.CorrectedBase); });
  for (const auto* group : {&view_.Takers, &view_.Others}) {
    for (const DivisionLine& line : *group) add([&](Column column) { return SpreadsheetText(column, line); });
  }
  return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

std::unique_ptr<QMimeData> DivisionDocument::ForClipboard() const {
  auto data = std::make_unique<QMimeData>();
  data->setHtml(TableAsHtml());
  data->setText(TableAsText());
  return data;
}

QPageSize UsualPaper() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace qismora
