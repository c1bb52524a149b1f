#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ports.h"
#include "casefile/CaseTexts.h"

namespace qismora {

// A case as a text file with one "caption = value" per line, as the guides write cases. Lines may come in any
// order. Blank lines and lines that begin with # are skipped. The first line may be "Qismora case = VERSION".

inline constexpr int CaseFileVersion = 1;
/// A field of the screen holds up to 32,767 characters, so all that it can hold fits.
inline constexpr std::size_t MostBytesOfCaseLine = 200'000;
inline constexpr std::size_t MostBytesOfCaseFile = 4'194'304;

/// A line of a case file: its number, and its text without the blanks around it.
struct CaseLine {
  int Number = 0;
  std::string Text;

  bool operator==(const CaseLine&) const = default;
};

struct CaseFileFault {
  CaseFault Fault = CaseFault::NotUtf8;
  /// The number of the line, from 1, and the text that the fault's sentence quotes, shortened.
  CaseLine Line;
};

struct CaseFileReading {
  CaseTexts Case;
  /// Set if the file is damaged; then there is no case.
  std::optional<CaseFileFault> Fault;
  /// Lines that a newer version has written and this one skips.
  std::vector<CaseLine> Unknown;
};

/// Reads the content of a case file. Fields that it does not name are "0", the name is empty.
CaseFileReading ParseCaseFile(std::string_view content);

/// The content of a file for the case: name, gender, the heirs and class II heirs who are alive, and the
/// estate. An empty field of an heir is not written.
std::string WriteCaseFile(const CaseTexts& texts);

/// Reads an ordinary file, also through a link. Throws Failure(FileNotFound) for a missing file,
/// FileFailure for any other that cannot be read.
CaseFileReading OpenCaseFile(const std::string& path);

/// Saves a case file completely or not at all. It may replace a file, as the user has agreed; a link is
/// followed. A file that cannot be written is a failure.
void SaveCaseFile(StandardFolders& folders, const std::string& path, const CaseTexts& texts);

}  // namespace qismora
