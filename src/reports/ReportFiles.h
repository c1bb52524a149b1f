#pragma once

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The Full Report command: runs the case in three steps, writes them to the working file "FullReport", shows
/// the file, and saves it under the name of the deceased. Any failure ends it without a message box; the
/// working file then has what was printed before. The port SaveEnded reports the outcome.
void CreateSaveFullReport(CaseRecord& c, CaseScreen& screen);

/// Saves a full report under the name of the deceased in lower case. If the name exists, even as a directory,
/// the user is asked. An earlier file is unchanged until the new one is complete. A name that cannot be a
/// file name, or any failure, ends it without a message box.
void SaveFullReportFile(CaseScreen& screen, const std::string& report);

/// The Save Results command: saves the heading of the result panel and the shown text in a file of the user's
/// choice. A failure ends it without a message box and does not change an earlier file.
void SaveResults(CaseScreen& screen);

}  // namespace qismora
