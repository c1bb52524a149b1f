#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "divide/Options.h"
#include "divide/Streams.h"
#include "division/DivisionInput.h"

namespace qismora::divide {

/// One family of the input: a row of a table, or a case file.
struct InputFamily {
  /// The text of the column "id", or the path of the case file; else the number of the family.
  std::string_view Id;
  /// The line in which it begins, from 1.
  std::int64_t Line = 0;
  /// The texts of the fields and what is read from them; valid only without faults.
  const CaseTexts* Texts = nullptr;
  DivisionInput Input;
  /// What is wrong, each in a sentence.
  std::vector<std::string> Faults;
};

/// Thrown if nothing of a source can be read, for example because its header names an unknown column.
struct InputFault {
  /// 0 if it concerns no line.
  std::int64_t Line = 0;
  std::string Sentence;
};

/// Called while a source is read.
struct InputEvents {
  std::function<void(const InputFamily&)> Family;
  /// What was skipped, in a sentence.
  std::function<void(std::int64_t line, const std::string& sentence)> Skipped;
};

/// Reads all families of a source, each as soon as it is available. The memory does not grow with the source.
/// The number is that of the next family; it is increased for each one.
void ReadFamilies(Source& source, const Options& options, std::int64_t& number, const InputEvents& events);

}  // namespace qismora::divide
