#pragma once

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

class QMenuBar;

namespace qismora {

/// The entries of the menu bar; each action bears the name of its entry.
void FillCaseMenu(QMenuBar* bar, CaseStudy& form, Binder& binder);

}  // namespace qismora
