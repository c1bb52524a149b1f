#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"

namespace qismora::testing {

/// One control of a transcript: its name and what it holds. A long text stands on lines of its own.
struct Shown {
  std::string Name;
  std::string Value;
  bool IsLong = false;
};

/// All controls that a transcript speaks of, in its order.
std::vector<Shown> Snapshot(const CaseStudy& study);

/// Prints what differs from the snapshot before.
void PrintChanges(std::ostream& out, const std::vector<Shown>& before, const std::vector<Shown>& after);

/// Prints the fields of the record that are not 0, empty or False.
void PrintRecord(std::ostream& out, const CaseRecord& c);

/// A text within a line: backslash, tab, carriage return and line feed are escaped.
std::string Escaped(std::string_view text);

/// Prints a text, cut at each CRLF, each piece behind the mark.
void PrintPieces(std::ostream& out, std::string_view mark, std::string_view text);

}  // namespace qismora::testing
