#pragma once

#include <memory>

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"
#include "support/MemoryOutside.h"

namespace qismora::testing {

/// A Case Study screen without a window, over a world in memory.
struct MemoryCase {
  explicit MemoryCase(int savedLanguage = 0)
      : Study(std::make_unique<CaseStudy>(Record, World.Ports, savedLanguage)) {}

  void Type(int box, const std::string& text) { Study->Text1(box).Text = text; }

  /// An estate with nothing to be paid from it.
  void TypeEstate(const std::string& estate) {
    Type(GrossEstateBox, estate);
    for (const int box : {FuneralBox, DebtsBox, WillsBox}) Type(box, "0");
  }

  MemoryWorld World;
  CaseRecord Record;
  std::unique_ptr<CaseStudy> Study;
};

}  // namespace qismora::testing
