#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ports.h"
#include "screens/CaseTexts.h"

namespace qismora {

// A case as a readable text file, one "caption = value" a line, as the guides write cases. Lines may come in
// any order; blank ones and those that begin with # are skipped. The first may be "Qismora case = VERSION".

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
  /// Where, from 1; the text is what the fault's sentence quotes, shortened.
  CaseLine Line;
};

struct CaseFileReading {
  CaseTexts Case;
  /// A damaged file is no case.
  std::optional<CaseFileFault> Fault;
  /// What a newer version of the program has written and this one skips.
  std::vector<CaseLine> Unknown;
};

/// Reads the content of a case file. Fields that it does not name are "0", the name is empty.
CaseFileReading ParseCaseFile(std::string_view content);

/// The content of a file for the case: name, gender, the heirs and class II heirs that are there, and the
/// estate. A field that is empty counts nobody and is not written.
std::string WriteCaseFile(const CaseTexts& texts);

/// Reads an ordinary file, also through a link. One that cannot be read is a FileFailure, a missing one the
/// failure 53.
CaseFileReading OpenCaseFile(const std::string& path);

/// Saves a file, whole or not at all, in the place of one that the user has agreed to replace. A link is
/// followed. What cannot be written is a failure.
void SaveCaseFile(Folders& places, const std::string& path, const CaseTexts& texts);

}  // namespace qismora
