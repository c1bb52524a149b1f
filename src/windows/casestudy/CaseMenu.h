#pragma once

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

class QMenuBar;

namespace qismora {

/// Adds the entries of the menu bar. Each action has its entry's name as object name.
void FillCaseMenu(QMenuBar* bar, CaseStudy& form, Binder& binder);

}  // namespace qismora
