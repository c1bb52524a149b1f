#include "windows/print/PrintDialogs.h"

#include <QPageSize>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace qismora {

extern "C" Q_DECL_EXPORT void ShowQismoraPrintDialog(QWidget* window, const PrintJob& job, bool preview) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(job.Name);
  printer.setCreator(QStringLiteral("Qismora"));
  printer.setPageSize(job.Paper);
  const double margin = job.MarginInMillimetres;
  printer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
  if (preview) {
    QPrintPreviewDialog dialog(&printer, window);
    if (window != nullptr) dialog.setLayoutDirection(window->layoutDirection());
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&job](QPrinter* pages) { job.Paint(*pages); });
    dialog.exec();
    return;
  }
  QPrintDialog dialog(&printer, window);
  if (window != nullptr) dialog.setLayoutDirection(window->layoutDirection());
  if (dialog.exec() == QDialog::Accepted) job.Paint(printer);
}

}  // namespace qismora
