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
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/Markup.h"
#include "windows/division/PaperPage.h"
#include "windows/division/PaperSignatures.h"
#include "windows/division/PaperTable.h"
#include "windows/division/PaperTree.h"
#include "windows/division/PaperWords.h"
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

/// Whether it has at most this many pages, and no table is wider than they are, but for rounding.
bool IsWithin(const QTextDocument& document, int pages) {
  return document.pageCount() <= pages && document.size().width() < 1.01 * document.pageSize().width();
}

/// Those sentences that are not empty.
QString Paragraphs(const QStringList& sentences) {
  QString html;
  for (const QString& sentence : sentences) html += Paragraph(sentence);
  return html;
}

QString Lines(const QStringList& sentences) {
  QString text;
  for (const QString& sentence : sentences)
    text += sentence.isEmpty() ? sentence : sentence + QLatin1Char('\n');
  return text;
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
      .arg(whose, DateOnPaper(date_), words::Number(page), words::Number(pages));
}

QString DivisionDocument::FactsTable() const {
  QString rows;
  for (const auto& [caption, value] : FactsOnPaper(view_, date_)) {
    rows += Row({QStringLiteral("<td width=\"30%\"><b>%1</b></td>").arg(Escaped(caption)),
                 QStringLiteral("<td width=\"70%\">%1</td>").arg(Escaped(value))});
  }
  return markup::Table(rows, false);
}

QString DivisionDocument::Supposition() const {
  const QString words = words::Supposition(view_);
  return words.isEmpty() ? words : markup::Table(Row({Cell(words, Side::Start, "th")}), true);
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
  return TableOfSignatures(view_) + OtherSignatures();
}

QString DivisionDocument::Html(Break where) const {
  const auto opening = [](const char* tag, bool onNewPage) {
    return QStringLiteral("<%1%2>").arg(
        QLatin1String(tag), onNewPage ? QStringLiteral(" style=\"page-break-before: always\"") : QString());
  };
  const QString estate =
      Row({QStringLiteral("<td width=\"52%\">%1</td>").arg(FactsTable()),
           QStringLiteral("<td width=\"4%\"></td>"),
           QStringLiteral("<td width=\"44%\">%1</td>").arg(TableOfEstate(view_, Order::FromTheLeft))});
  QString html = Supposition() + Tag("h2", Paper::tr("Division of an estate")) +
                 markup::Table(estate, false) + Paragraph(words::BequestNotice(view_)) +
                 Paragraph(words::ExampleNotice(view_)) + Paragraph(words::Headline(view_));
  const QString end =
      opening("p", where == Break::BeforeSignatures) +
      Escaped(Paper::tr("Computed by %1 from the figures above. This paper is no judgment of a court and no "
                        "fatwa: ask a scholar before the estate is divided.")
                  .arg(words::SchoolLaw(view_.School))) +
      QStringLiteral("</p>") + Signatures();
  if (!view_.IsDivided()) return html + Paragraphs(NothingLeft(view_)) + end;
  html += TableOfTakers(view_, Order::FromTheLeft) + Paragraph(NoteOnHundredths(view_)) +
          Paragraph(NoteOnOtherReport(view_), "note");
  if (!view_.Others.empty()) html += OthersByReason(view_, where == Break::BeforeOthers);
  const bool alone = where == Break::BeforeTreeAlone;
  const QString tree = opening("p align=\"center\"", alone || where == Break::BeforeTree) +
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
      QStringLiteral(
          "h2 { font-size: %1pt; margin: 0 0 4px 0 } p { margin: 3px 0 4px 0 } .note { font-size: %2pt } "
          ".ruled { margin-top: 3px; border-width: 0px } .ruled td, .ruled th { border: 1px solid black; "
          "padding-left: 5px; padding-right: 5px }")
          .arg(points * 1.6)
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
// between two parts, so that no table is broken and the signatures stand below the tree, or else on a page of
// their own; only all heirs at once take the smallest size.
std::unique_ptr<QTextDocument> DivisionDocument::LaidOutFor(QPagedPaintDevice& device) const {
  constexpr double sizesOfOne[] = {10, 9, 8.5, 8};
  constexpr double sizesOfTwo[] = {10, 9, 8, 7};
  for (const double points : sizesOfOne) {
    auto document = LaidOutFor(device, points, Break::None);
    if (IsWithin(*document, 1)) return document;
  }
  for (const double points : sizesOfTwo) {
    for (const Break where :
         {Break::BeforeTree, Break::BeforeSignatures, Break::BeforeOthers, Break::BeforeTreeAlone}) {
      if (where == Break::BeforeOthers && view_.Others.empty()) continue;
      auto document = LaidOutFor(device, points, where);
      if (IsWithin(*document, 2)) return document;
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

// What is pasted elsewhere says as much as the paper, but for the family tree and the signatures.
std::unique_ptr<QMimeData> DivisionDocument::ForClipboard() const {
  QStringList head;
  if (!view_.Supposed.empty()) head.append(words::Supposition(view_));
  for (const auto& [caption, value] : FactsOnPaper(view_, date_))
    head.append(caption + QStringLiteral(": ") + value);
  const QStringList notices = {words::BequestNotice(view_), words::ExampleNotice(view_),
                               words::Headline(view_)};
  const QStringList notes =
      view_.IsDivided() ? QStringList{NoteOnHundredths(view_), NoteOnOtherReport(view_)} : NothingLeft(view_);
  QString html = Paragraphs(head) + TableOfEstate(view_, Order::AsRead) + Paragraphs(notices);
  QString text = Lines(head) + QLatin1Char('\n') + EstateAsText(view_) + QLatin1Char('\n') + Lines(notices);
  if (view_.IsDivided()) {
    html += TableOfTakers(view_, Order::AsRead) + TableOfOthers(view_, Order::AsRead);
    text += QLatin1Char('\n') + TableAsText(view_) + QLatin1Char('\n');
  }
  auto data = std::make_unique<QMimeData>();
  data->setHtml(html + Paragraphs(notes));
  data->setText((text + Lines(notes)).trimmed() + QLatin1Char('\n'));
  return data;
}

QPageSize UsualPaper() {
  const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace qismora
