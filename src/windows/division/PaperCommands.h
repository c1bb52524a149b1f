#pragma once

#include "windows/division/DivisionDocument.h"

class QWidget;

namespace qismora {

// The commands of the user for a DivisionDocument, with their dialogs, which appear over the window.

/// Shows the pages as they will be printed, and prints from there.
void PreviewPaper(const DivisionDocument& document, QWidget* window);
/// Lets the user choose a printer, and prints.
void PrintPaper(const DivisionDocument& document, QWidget* window);
/// Asks where to, writes a PDF file and reports what came of it: the sentence is also shown where something
/// went wrong. Nothing if the user has changed his mind.
std::optional<QString> SavePaperAsPdf(const DivisionDocument& document, QWidget* window);
/// Puts the table on the clipboard.
void CopyPaper(const DivisionDocument& document);

}  // namespace qismora
