#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "divide/Options.h"
#include "divide/Streams.h"
#include "screens/DivisionInput.h"

namespace qismora::divide {

/// One family of the input: a row of a table, or a case file.
struct InputFamily {
  /// From the column id, or the name of the case file; else the number of the family.
  std::string_view Id;
  /// The line that it begins in, from 1.
  std::int64_t Line = 0;
  /// What stands in the fields, and what is read from it; only where there are no faults.
  const CaseTexts* Texts = nullptr;
  DivisionInput Input;
  /// Each is a sentence.
  std::vector<std::string> Faults;
};

/// Raised where nothing of a source can be read: a header that names an unknown column, a broken case file.
struct InputFault {
  /// 0 where it is no line's.
  std::int64_t Line = 0;
  std::string Sentence;
};

/// What happens to what is read.
struct InputEvents {
  std::function<void(const InputFamily&)> Family;
  /// What is passed over, in a sentence.
  std::function<void(std::int64_t line, const std::string& sentence)> PassedOver;
};

/// Reads all families of a source, each as soon as it is there, with memory that does not grow. The number is
/// that of the next family and is carried on.
void ReadFamilies(Source& source, const Options& options, std::int64_t& number, const InputEvents& events);

}  // namespace qismora::divide
