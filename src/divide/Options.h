#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "faraid/School.h"

namespace qismora::divide {

enum class Format { Table, Csv, Json, JsonLines };
enum class InputKind { Detected, Csv, Case };

/// What the command line asks for.
struct Options {
  std::vector<faraid::School> Schools = {faraid::School::Hanafi};
  Format Output = Format::Table;
  bool Reasons = false;
  /// Adds the answer of the commands of Case Study.
  bool Compare = false;
  bool HeirsConsent = false;
  bool Header = true;
  bool Quiet = false;
  InputKind Input = InputKind::Detected;
  /// The separator of the fields; 0 if the header decides.
  char Separator = 0;
  /// The header row of a table that has none.
  std::string Columns;
  bool IgnoreColumns = false;
  /// The number of the first family.
  std::int64_t First = 1;
  /// The files; "-" is standard input.
  std::vector<std::string> Paths;
};

/// The exit status of the program.
enum ExitStatus : int { AllDivided = 0, SomeNotDivided = 1, NotDone = 2 };

/// Reads the command line. It ends the program after --help, --version or a wrong option.
Options ReadOptions(int count, char** words);

}  // namespace qismora::divide
