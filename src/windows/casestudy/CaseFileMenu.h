#pragma once

#include "screens/CaseDocument.h"

class QMenuBar;
class QWidget;

namespace qismora {

/// Adds the menu of the case files, and takes files that are dropped anywhere on the window.
void AddCaseFileMenu(QMenuBar* bar, CaseDocument& document);
void TakeDroppedCases(QWidget* window, CaseDocument& document);

}  // namespace qismora
