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
  Format Answer = Format::Table;
  bool Reasons = false;
  /// With the answer of the commands of Case Study.
  bool Compare = false;
  bool HeirsConsent = false;
  bool Header = true;
  bool Quiet = false;
  InputKind Input = InputKind::Detected;
  /// Of the fields of a table; 0 where the header decides.
  char Separator = 0;
  /// The columns of a table that has no header row, as a row of captions.
  std::string Columns;
  bool IgnoreColumns = false;
  /// The number of the first family.
  std::int64_t First = 1;
  /// "-" is standard input.
  std::vector<std::string> Paths;
};

/// How the program ends.
enum ExitStatus : int { AllDivided = 0, SomeNotDivided = 1, NotDone = 2 };

/// The command line as options. Where nothing is left to do, for --help or a wrong option, ends the program.
Options ReadOptions(int count, char** words);

}  // namespace qismora::divide
