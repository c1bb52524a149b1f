#include "windows/division/DivisionDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFileInfo>
#include <QMimeData>
#include <QPageSize>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/Markup.h"
#include "windows/division/PaperPage.h"
#include "windows/division/PaperTable.h"
#include "windows/division/PaperTree.h"
#include "windows/division/TranslationContexts.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

using markup::Cell;
using markup::Escaped;
using markup::Order;
using markup::Paragraph;
using markup::Row;
using markup::Side;
using markup::Tag;

/// Per cent: fonts of Naskh have room between the lines for marks that no sentence of the paper has.
constexpr double lineHeightOfNaskh = 80;

}  // namespace

DivisionDocument::DivisionDocument(DivisionView view, const QDate& date)
    : view_(std::move(view)), date_(date) {}

QString DivisionDocument::FileName() const {
  QString name = ToQt(view_.Name).simplified();
  for (QChar& sign : name) {
    if (!sign.isLetterOrNumber() && !sign.isMark() && sign != QLatin1Char('-')) sign = QLatin1Char(' ');
  }
  name = name.simplified().left(80);
  if (!view_.Supposed.empty()) {
    return name.isEmpty() ? Paper::tr("Supposition")
                          : Paper::tr("Supposition - %1", "name of a file").arg(name);
  }
  return name.isEmpty() ? Paper::tr("Division") : Paper::tr("Division - %1", "name of a file").arg(name);
}

QString DivisionDocument::Foot(int page, int pages) const {
  constexpr qsizetype longest = 60;
  QString name = ToQt(view_.Name).simplified();
  if (name.isEmpty()) name = words::Deceased(view_.Gender);
  if (name.size() > longest) name = name.left(longest) + QChar(0x2026);
  const QString whose = view_.Supposed.empty()
                            ? Isolated(name)
                            : Paper::tr("Supposition - %1", "name of a file").arg(Isolated(name));
  return Paper::tr("%1 - %2 - Qismora - page %3 of %4", "the deceased, the date")
      .arg(whose, Date(), words::Number(page), words::Number(pages));
}

QString DivisionDocument::Date() const { return CurrentLocale().toString(date_, QLocale::LongFormat); }

QList<DivisionDocument::Fact> DivisionDocument::Facts() const {
  const QString name = ToQt(view_.Name).simplified();
  const QString gender = view_.Gender == Male ? Paper::tr("a man") : Paper::tr("a woman");
  return {
      {words::Deceased(view_.Gender),
       name.isEmpty() ? gender : Paper::tr("%1, %2", "a name, a man or a woman").arg(Isolated(name), gender)},
      {Paper::tr("Date"), Date()},
      {Paper::tr("School"), words::SchoolLaw(view_.School)}};
}

QString DivisionDocument::FactsTable() const {
  QString rows;
  for (const auto& [caption, value] : Facts()) {
    rows += Row({QStringLiteral("<td width=\"30%\"><b>%1</b></td>").arg(Escaped(caption)),
                 QStringLiteral("<td width=\"70%\">%1</td>").arg(Escaped(value))});
  }
  return markup::Table(rows, false);
}

QString DivisionDocument::Supposition() const {
  const QString words = words::Supposition(view_);
  return words.isEmpty() ? words : markup::Table(Row({Cell(words, Side::Start, "th")}), true);
}

QString DivisionDocument::Estate() const {
  QString rows;
  for (const words::EstateLine& line : words::EstateLines(view_)) {
    rows += Row({Cell(line.Caption, Side::Start, "td", 50), Cell(line.Amount, Side::Figures, "td", 50)});
  }
  return Tag("h3", Paper::tr("The estate")) + markup::Table(rows, true);
}

// Who settles the debts needs to know who is alive, and that they do not owe them.
QString DivisionDocument::NothingLeft() const {
  const QString alive = words::Alive(view_.Family);
  return Paragraph(Paper::tr("Funeral expenses and debts are paid before the heirs (%1). Nobody receives "
                             "anything from this estate, and no heir owes what it lacks.")
                       .arg(words::SourceOf(faraid::Source::Quran4_11))) +
         (alive.isEmpty() ? QString() : Paragraph(Paper::tr("Alive: %1.", "a list of heirs").arg(alive)));
}

// Where the heads of a line cannot all have the same, the law does not say who takes the hundredth.
QString DivisionDocument::Hundredths() const {
  const bool differ = std::ranges::any_of(view_.Takers, [](const DivisionLine& line) {
    return line.Amount.HeadsWithOneMore > 0 && line.Amount.HeadsWithOneMore < line.Law.Heads;
  });
  return differ ? Paper::tr(
                      "Amounts that cannot be divided evenly differ by one hundredth. The heirs agree who "
                      "takes it.")
                : QString();
}

// A reader who has this page alone is told whose other figures may come to him, and that they do not count
// here.
QString DivisionDocument::OtherReport() const {
  if (!view_.Own || view_.Differs.None()) return {};
  const QString other =
      view_.Own->Outcome == OwnOutcome::Figures
          ? Paper::tr(
                "Another report of the program, the full report file of Case Study, gives other amounts for "
                "this family. They are not part of this page. The reason:")
          : Paper::tr(
                "Another report of the program, the full report file of Case Study, gives no amounts for this "
                "family. It is not part of this page. The reason:");
  QStringList sentences = {
      Paper::tr("This page divides by classical %1.", "law of a school").arg(words::SchoolLaw(view_.School)),
      other};
  for (const DifferenceKind* kind : view_.Differs.Kinds) sentences.append(words::DifferenceSentence(*kind));
  return QStringLiteral("<p class=\"note\">%1</p>").arg(Escaped(sentences.join(QLatin1Char(' '))));
}

// Nobody is to sign what is only supposed.
QString DivisionDocument::Signatures() const {
  if (!view_.Supposed.empty()) {
    // Qt 6.4 counts no page for a last paragraph that has no room; it does for a table.
    return markup::Table(
        Row({Cell(
            Paper::tr("This page is a supposition and not the division of the estate. It is not signed."))}),
        true);
  }
  const QString line =
      QStringLiteral("<td width=\"33%\"><br>..............................................<br>%1</td>");
  QString rows;
  for (int i = 0; i < 2; ++i) {
    rows += Row({line.arg(Escaped(Paper::tr("Name"))), line.arg(Escaped(Paper::tr("Signature"))),
                 line.arg(Escaped(Paper::tr("Place and date")))});
  }
  return markup::Table(rows, false);
}

QString DivisionDocument::Html(Break where) const {
  const auto opening = [where](const char* tag, Break here) {
    return QStringLiteral("<%1%2>").arg(
        QLatin1String(tag),
        where == here ? QStringLiteral(" style=\"page-break-before: always\"") : QString());
  };
  const QString estate = Row({QStringLiteral("<td width=\"52%\">%1</td>").arg(FactsTable()),
                              QStringLiteral("<td width=\"4%\"></td>"),
                              QStringLiteral("<td width=\"44%\">%1</td>").arg(Estate())});
  QString html = Supposition() + Tag("h2", Paper::tr("Division of an estate")) +
                 markup::Table(estate, false) + Paragraph(words::BequestNotice(view_)) +
                 Paragraph(words::ExampleNotice(view_)) + Tag("h3", Paper::tr("The division")) +
                 Tag("p", words::Headline(view_));
  const QString end =
      Paragraph(
          Paper::tr("Computed by %1 from the figures above. This paper is no judgment of a court and no "
                    "fatwa: ask a scholar before the estate is divided.")
              .arg(words::SchoolLaw(view_.School))) +
      Signatures();
  if (!view_.IsDivided()) return html + NothingLeft() + end;
  html += TableOfTakers(view_, Order::FromTheLeft) + Paragraph(words::Bases(view_.Division)) +
          Paragraph(Hundredths()) + OtherReport();
  if (!view_.Others.empty()) {
    html += opening("h3", Break::BeforeOthers) + Escaped(HeadingOfOthers()) + QStringLiteral("</h3>") +
            OthersByReason(view_);
  }
  const bool alone = where == Break::BeforeTreeAlone;
  const QString tree = opening("p align=\"center\"", alone ? where : Break::BeforeTree) +
                       QChar(QChar::ObjectReplacementCharacter) + QStringLiteral("</p>");
  return html + (alone ? end + tree : tree + end);
}

std::unique_ptr<QTextDocument> DivisionDocument::LaidOutFor(QPagedPaintDevice& device, double points,
                                                            Break where) const {
  auto document = std::make_unique<QTextDocument>();
  const QFont font = PaperFont(points);
  document->setDefaultFont(font);
  document->setDocumentMargin(0);
  QTextOption option;
  option.setTextDirection(CurrentDirection());
  document->setDefaultTextOption(option);
  document->setDefaultStyleSheet(
      QStringLiteral("h2 { font-size: %1pt; margin: 0 0 4px 0 } h3 { font-size: %2pt; margin: 6px 0 2px 0 } "
                     "p { margin: 3px 0 4px 0 } .note { font-size: %3pt }")
          .arg(points * 1.6)
          .arg(points * 1.15)
          .arg(points * 0.9));
  document->documentLayout()->setPaintDevice(&device);
  QSizeF place = device.pageLayout().paintRect(QPageLayout::Point).size();
  place.rheight() -= 3 * PointsOfFooter;
  auto* tree = new PaperTree(view_, Paper::tr("The family"), font, place, document.get());
  document->documentLayout()->registerHandler(PaperTree::Type, tree);
  document->setHtml(Html(where));
  // Else each paragraph would have the direction of its first letter.
  QTextCursor all(document.get());
  all.select(QTextCursor::Document);
  QTextBlockFormat direction;
  direction.setLayoutDirection(CurrentDirection());
  if (CurrentDirection() == Qt::RightToLeft)
    direction.setLineHeight(lineHeightOfNaskh, QTextBlockFormat::ProportionalHeight);
  all.mergeBlockFormat(direction);
  QSizeF page = device.pageLayout().paintRectPixels(device.logicalDpiX()).size();
  page.rheight() -= FooterHeight(device.logicalDpiY());
  document->setPageSize(page);

  if (!view_.IsDivided()) return document;
  QTextCursor cursor = document->find(QString(QChar(QChar::ObjectReplacementCharacter)));
  QTextCharFormat object;
  object.setObjectType(PaperTree::Type);
  cursor.insertText(QString(QChar(QChar::ObjectReplacementCharacter)), object);
  QTextBlockFormat whole;
  whole.setLineHeight(0, QTextBlockFormat::SingleHeight);
  cursor.mergeBlockFormat(whole);
  return document;
}

// One page in smaller text, down to 8 points, is preferred to two. Where there are two, the first ends
// between two parts, so that no table is broken and the signatures stand below the tree; only all heirs at
// once take the smallest size.
std::unique_ptr<QTextDocument> DivisionDocument::LaidOutFor(QPagedPaintDevice& device) const {
  constexpr double sizesOfOne[] = {10, 9, 8.5, 8};
  constexpr double sizesOfTwo[] = {10, 9, 8, 7};
  for (const double points : sizesOfOne) {
    auto document = LaidOutFor(device, points, Break::None);
    if (document->pageCount() == 1) return document;
  }
  for (const double points : sizesOfTwo) {
    for (const Break where : {Break::BeforeTree, Break::BeforeOthers, Break::BeforeTreeAlone}) {
      auto document = LaidOutFor(device, points, where);
      if (document->pageCount() == 2) return document;
    }
  }
  return LaidOutFor(device, sizesOfTwo[std::size(sizesOfTwo) - 1], Break::BeforeTree);
}

void DivisionDocument::Print(QPagedPaintDevice& device) const {
  const std::unique_ptr<QTextDocument> document = LaidOutFor(device);
  QPainter painter(&device);
  // A preview keeps what is painted as a QPicture, which forgets that a text runs from the right and moves
  // its signs and blanks. It gets the picture of a page instead.
  const bool isPreview = device.paintEngine()->type() == QPaintEngine::Picture;
  painter.setRenderHint(QPainter::SmoothPixmapTransform, isPreview);
  const int pages = document->pageCount();
  for (int page = 0; page < pages; ++page) {
    if (page > 0) device.newPage();
    const QString foot = Foot(page + 1, pages);
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

// A table that is pasted elsewhere says what it is.
std::unique_ptr<QMimeData> DivisionDocument::ForClipboard() const {
  QStringList lines;
  if (!view_.Supposed.empty()) lines.append(words::Supposition(view_));
  for (const auto& [caption, value] : Facts()) lines.append(caption + QStringLiteral(": ") + value);
  lines.append(words::Headline(view_));
  QString html;
  for (const QString& line : std::as_const(lines)) html += Paragraph(line);
  auto data = std::make_unique<QMimeData>();
  if (!view_.IsDivided()) {
    html += NothingLeft();
    data->setHtml(html);
    data->setText(QTextDocumentFragment::fromHtml(html).toPlainText());
    return data;
  }
  data->setHtml(html + TableOfTakers(view_, Order::AsRead) + TableOfOthers(view_, Order::AsRead));
  data->setText(lines.join(QLatin1Char('\n')) + QStringLiteral("\n\n") + TableAsText(view_));
  return data;
}

QPageSize UsualPaper() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace qismora
