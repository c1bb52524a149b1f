#pragma once

#include "windows/division/DivisionDocument.h"

class QWidget;

namespace qismora {

// The commands of the user for a DivisionDocument, with their dialogs, which appear over the window.

/// Shows the pages as they will be printed, and prints from there.
void PreviewPaper(const DivisionDocument& document, QWidget* window);
/// Lets the user choose a printer, and prints.
void PrintPaper(const DivisionDocument& document, QWidget* window);
/// Asks for a path and writes a PDF file. Returns the outcome as a sentence; a failure is also shown in a
/// message box. Nothing if the user cancels.
std::optional<QString> SavePaperAsPdf(const DivisionDocument& document, QWidget* window);
/// Puts the table on the clipboard.
void CopyPaper(const DivisionDocument& document);

}  // namespace qismora
