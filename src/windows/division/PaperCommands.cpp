#include "windows/division/PaperCommands.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QPageSize>
#include <QStandardPaths>

#include "windows/division/TranslationContexts.h"
#include "windows/language/Languages.h"
#include "windows/platform/BuiltFiles.h"
#include "windows/platform/QtShellPorts.h"
#include "windows/print/PrintDialogs.h"

namespace qismora {

namespace {

void Warn(QWidget* window, const QString& words) {
  const DialogsInLanguage ours;
  QMessageBox box(QMessageBox::Warning, Paper::tr("Division"), words, QMessageBox::Ok, window);
  box.setTextFormat(Qt::PlainText);
  box.setLayoutDirection(CurrentDirection());
  box.setFont(FontOfLanguage(box.font()));
  box.exec();
}

/// Printing is loaded when it is first used. Null where the plugin is missing or damaged.
ShowPrintDialog LoadPrinting() {
  static ShowPrintDialog show = nullptr;
  if (show == nullptr) {
    const QStringList directories = ProgramFolders(QCoreApplication::applicationDirPath()).Plugins();
    show = reinterpret_cast<ShowPrintDialog>(LoadPlugin(directories, PrintPluginName, ShowPrintDialogName));
  }
  return show;
}

void ShowDialog(const DivisionDocument& document, QWidget* window, bool preview) {
  const ShowPrintDialog show = LoadPrinting();
  if (show == nullptr) {
    return Warn(window, Paper::tr("Printing is not installed with this program. A PDF file can be saved and "
                                  "printed elsewhere."));
  }
  const DialogsInLanguage ours;
  const auto paint = [&document](QPagedPaintDevice& device) { document.Print(device); };
  show(window, {document.FileName(), UsualPaper(), PaperMargin, paint}, preview);
}

}  // namespace

void PreviewPaper(const DivisionDocument& document, QWidget* window) { ShowDialog(document, window, true); }

void PrintPaper(const DivisionDocument& document, QWidget* window) { ShowDialog(document, window, false); }

std::optional<QString> SavePaperAsPdf(const DivisionDocument& document, QWidget* window) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const DialogsInLanguage ours;
  QFileDialog dialog(window, Paper::tr("Save as PDF"), folder, Paper::tr("PDF files (*.pdf)"));
  dialog.setObjectName(QStringLiteral("SavePdf"));
  dialog.setFont(FontOfLanguage(dialog.font()));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(document.FileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString path = dialog.selectedFiles().constFirst();
  const std::optional<QString> fault = document.SavePdf(path);
  if (fault) Warn(window, *fault);
  return fault.value_or(Paper::tr("Saved: %1").arg(path));
}

void CopyPaper(const DivisionDocument& document) {
  QGuiApplication::clipboard()->setMimeData(document.ForClipboard().release());
}

}  // namespace qismora
