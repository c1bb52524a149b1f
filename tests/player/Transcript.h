#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"

namespace qismora::testing {

/// One control of a transcript: its name and value. A long text is printed on lines of its own.
struct ControlValue {
  std::string Name;
  std::string Value;
  bool IsLong = false;
};

/// All controls that a transcript shows, in its order.
std::vector<ControlValue> Snapshot(const CaseStudy& study);

/// Prints the controls that differ between two snapshots.
void PrintChanges(std::ostream& out, const std::vector<ControlValue>& before,
                  const std::vector<ControlValue>& after);

/// Prints the fields of the record that are not 0, empty or False.
void PrintRecord(std::ostream& out, const CaseRecord& c);

/// The text with backslash, tab, carriage return and line feed escaped, for use within a line.
std::string Escaped(std::string_view text);

/// Prints a text in pieces, split at each CRLF. The mark comes before each piece.
void PrintPieces(std::ostream& out, std::string_view mark, std::string_view text);

}  // namespace qismora::testing
