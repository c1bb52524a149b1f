#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The All Individual command: the narratives of all fourteen kinds of heir, the last one first, with header,
/// summary and footer. A hard failure of the load stops it and leaves CaseLoaded set; wrappers then do not
/// load the case.
void RunFullReport(CaseRecord& c, CaseScreen& screen);

/// The Execute Selected command: the same for the kinds that are alive. The rules of the others do not run.
void RunSelectedReport(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
