#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The All Individual command: the narratives of all fourteen kinds of heir, the last first, with header,
/// summary and footer. A hard failure of the load stops it and leaves CaseLoaded set, so that the next double
/// click on a caption works on the last loaded case.
void RunFullReport(CaseRecord& c, CaseScreen& screen);

/// The Execute Selected command: the same for the kinds that are alive; the rules of the others do not run at
/// all.
void RunSelectedReport(CaseRecord& c, CaseScreen& screen);

}  // namespace qismora
