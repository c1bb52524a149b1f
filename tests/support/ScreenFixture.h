#pragma once

#include <memory>

#include "case/CaseRecord.h"
#include "screens/CaseStudy.h"
#include "support/FakePorts.h"

namespace qismora::testing {

/// A Case Study screen without a window, on fake ports.
struct ScreenFixture {
  explicit ScreenFixture(int savedLanguage = 0)
      : Study(std::make_unique<CaseStudy>(Record, Fakes.Ports, savedLanguage)) {}

  void Type(int field, const std::string& text) { Study->Text1(field).Text = text; }

  /// Types an estate without funeral expenses, debts and wills.
  void TypeEstate(const std::string& estate) {
    Type(GrossEstateField, estate);
    for (const int field : {FuneralField, DebtsField, WillsField}) Type(field, "0");
  }

  FakePorts Fakes;
  CaseRecord Record;
  std::unique_ptr<CaseStudy> Study;
};

}  // namespace qismora::testing
