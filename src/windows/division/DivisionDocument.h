#pragma once

#include <QDate>
#include <QString>
#include <memory>
#include <optional>

#include "division/DivisionView.h"

class QMimeData;
class QPageSize;
class QPagedPaintDevice;
class QTextDocument;

namespace qismora {

/// The contents of a division on paper, in the current language: one or two pages in black and white.
class DivisionDocument {
 public:
  /// A division whose fields can be read (DivisionView::IsReadable).
  DivisionDocument(DivisionView view, const QDate& date);

  /// The suggested name of a file, without an ending: the name of the deceased as far as a file can have it,
  /// or that it is a supposition.
  QString FileName() const;

  /// The part with which a second page begins. A tree that needs a page stands after the signatures.
  enum class Break { None, BeforeOthers, BeforeTree, BeforeSignatures, BeforeTreeAlone };
  /// The contents of the pages. The family tree is an object in it.
  QString Html(Break where = Break::None) const;
  /// The last line of a page: a page that is found alone says whose it is. Pages are counted from 1.
  QString Foot(int page, int pages) const;

  /// The text laid out for the device, in one or two pages.
  std::unique_ptr<QTextDocument> LaidOutFor(QPagedPaintDevice& device) const;
  /// Fills the pages of a printer, a preview or a file. Margins are those of the device's layout.
  void Print(QPagedPaintDevice& device) const;
  /// Writes a PDF file, whole or not at all. What went wrong, in words; nothing if all went well.
  std::optional<QString> SavePdf(const QString& path) const;

  /// The same as HTML and as tab-separated text, for letters and spreadsheets, but for the tree and the
  /// signatures.
  std::unique_ptr<QMimeData> ForClipboard() const;

 private:
  std::unique_ptr<QTextDocument> LaidOutFor(QPagedPaintDevice& device, double points, Break where) const;
  QString Supposition() const;
  QString FactsTable() const;
  QString Signatures() const;

  DivisionView view_;
  QDate date_;
};

/// On every side of a page.
inline constexpr double PaperMargin = 16;  // millimetres

/// The paper of the user's region: A4, or Letter where that is usual.
QPageSize UsualPaper();

}  // namespace qismora
