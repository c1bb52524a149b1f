#include "windows/print/PrintDialogs.h"

#include <QAction>
#include <QPageSize>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

namespace qismora {

namespace {

constexpr QSize previewSize{900, 820};
/// Qt's own text of the action, which it also translates.
constexpr const char* fitWidth = "Fit width";

/// A dialog takes neither from its parent.
void TakeDirectionAndFont(QDialog& dialog, const QWidget* window) {
  if (window == nullptr) return;
  dialog.setLayoutDirection(window->layoutDirection());
  dialog.setFont(window->font());
}

}  // namespace

extern "C" Q_DECL_EXPORT void ShowQismoraPrintDialog(QWidget* window, const PrintJob& job, bool preview) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(job.Name);
  printer.setCreator(QStringLiteral("Qismora"));
  printer.setPageSize(job.Paper);
  const double margin = job.MarginInMillimetres;
  printer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
  if (preview) {
    QPrintPreviewDialog dialog(&printer, window);
    TakeDirectionAndFont(dialog, window);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&job](QPrinter* pages) { job.Paint(*pages); });
    // At the width of the page text can be read, unlike that of a page that fits as a whole.
    for (QAction* action : dialog.findChildren<QAction*>()) {
      if (action->text() == QPrintPreviewDialog::tr(fitWidth)) action->trigger();
    }
    dialog.resize(previewSize.boundedTo(dialog.screen()->availableSize()));
    dialog.exec();
    return;
  }
  QPrintDialog dialog(&printer, window);
  TakeDirectionAndFont(dialog, window);
  if (dialog.exec() == QDialog::Accepted) job.Paint(printer);
}

}  // namespace qismora
