#include "PdfFile.h"

#include <QBuffer>
#include <QRegularExpression>
#include <stdexcept>

namespace qismora::documents {

namespace {

/// Puts a fixed date in the place of the date of writing. The lengths stay as they are, since the file
/// tells its parts by their offsets.
void FixDate(QByteArray& pdf) {
  const QByteArray mark = "/CreationDate (D:";
  const QByteArray date = "20240101000000Z)";
  const qsizetype at = pdf.indexOf(mark);
  const qsizetype end = pdf.indexOf('\n', at);
  if (at < 0 || end - at - mark.size() != date.size()) {
    throw std::runtime_error(
        "the date in the PDF has another form than it had: write it anew in PdfFile.cpp");
  }
  pdf.replace(at + mark.size(), date.size(), date);
}

}  // namespace

QByteArray WritePdf(const Source& source, const Pages& pages) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(Resolution);
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  writer.setTitle(QString::fromStdString(source.Title));
  writer.setCreator("Qismora");
  pages.Draw(writer);
  buffer.close();
  FixDate(pdf);
  return pdf;
}

}  // namespace qismora::documents
