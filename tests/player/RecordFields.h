#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>

#include "case/CaseRecord.h"

namespace qismora::testing {

/// A field of the record and its name.
template <class Value, class State>
struct Field {
  constexpr Field(const char* name, Value State::*place) : Name(name), Place(place) {}
  const char* Name;
  Value State::*Place;
};

#define FIELD(name) Field(#name, &CaseRecord::name)

/// The fields that a transcript prints, in its order.
inline constexpr std::tuple PrintedFields(
    FIELD(InputFailed), FIELD(CaseLoaded), FIELD(ReportToFile), FIELD(ExecCount), FIELD(Husband),
    FIELD(Wives), FIELD(Sons), FIELD(Daughters), FIELD(GrandSons), FIELD(GrandDaughters), FIELD(GtGrandSons),
    FIELD(GtGrandDaughters), FIELD(Father), FIELD(GrandFather), FIELD(GtGrandFather), FIELD(Mother),
    FIELD(MothersMother), FIELD(MothersMothersMother), FIELD(FullBrothers), FIELD(FullSisters),
    FIELD(FathersMother), FIELD(GrandFathersMother), FIELD(FathersGrandMother), FIELD(ConsSisters),
    FIELD(ConsBrothers), FIELD(UterineSisters), FIELD(UterineBrothers), FIELD(AsabaGrandSons),
    FIELD(AsabaGtGrandSons), FIELD(GrossEstate), FIELD(FuneralExp), FIELD(Debts), FIELD(Wills),
    FIELD(NetEstate), FIELD(WifeShare), FIELD(EachWifeShare), FIELD(HusbandShare), FIELD(FatherShare),
    FIELD(MotherShare), FIELD(GrandMotherShare), FIELD(DaughterShare), FIELD(SonsDaughterShare),
    FIELD(SonsSonsDaughterShare), FIELD(FullBrotherShare), FIELD(FullSisterShare), FIELD(ConsSisterShare),
    FIELD(ConsBrotherShare), FIELD(UterineSisterShare), FIELD(UterineBrotherShare), FIELD(UltimateFatherName),
    FIELD(FatherAmount), FIELD(GrandFatherAmount), FIELD(GtGrandFatherAmount), FIELD(SpouseShareWhole),
    FIELD(GrandMotherGroup), FIELD(GrandMotherCount), FIELD(FathersMotherAmount),
    FIELD(GrandFathersMotherAmount), FIELD(FathersGrandMotherAmount), FIELD(MothersMotherAmount),
    FIELD(MothersMothersMotherAmount), FIELD(Res), FIELD(FractionNum), FIELD(TotalQShares),
    FIELD(QSharesLessSpouse), FIELD(Residue), FIELD(AulRaddState), FIELD(ActiveCount), FIELD(UnitTotal),
    FIELD(QSharesNum), FIELD(QSharesDen), FIELD(ResidueNum), FIELD(ResidueDen), FIELD(RaddUnitTotal),
    FIELD(RaddNum), FIELD(RaddDen), FIELD(LcmCount), FIELD(LcmResult), FIELD(SonAmount),
    FIELD(DaughterResidue), FIELD(SonsDaughterResidue), FIELD(EqualSonsSonResidue),
    FIELD(LowerSonsSonResidue), FIELD(ResidueUnit), FIELD(FullBrotherResidue), FIELD(FullSisterResidue),
    FIELD(ConsBrotherResidue), FIELD(ConsSisterResidue), FIELD(ClassIIResidue), FIELD(FatherResidue),
    FIELD(ClassIIAmount), FIELD(ClassIINarrative), FIELD(ClassIIText), FIELD(AulFactor), FIELD(RaddFactor),
    FIELD(AulExcessNum), FIELD(AulExcessDen), FIELD(RaddExcessNum), FIELD(RaddExcessDen));

/// The fields that no transcript prints: texts that the screen shows, work entries and tables of the reports.
/// The denominators are printed with their numerators.
inline constexpr std::tuple OtherFields(
    FIELD(FractionDen), FIELD(WifeReport), FIELD(HusbandReport), FIELD(FatherReport), FIELD(MotherReport),
    FIELD(GrandMotherReport), FIELD(DaughterReport), FIELD(SonsDaughterReport), FIELD(SonsSonsDaughterReport),
    FIELD(FullBrotherReport), FIELD(FullSisterReport), FIELD(ConsSisterReport), FIELD(ConsBrotherReport),
    FIELD(UterineSisterReport), FIELD(UterineBrotherReport), FIELD(ResiduaryReport), FIELD(EachWifeText),
    FIELD(WifeWithGtGrandChildrenText), FIELD(HusbandWithGtGrandChildrenText), FIELD(LcmNum), FIELD(LcmDen),
    FIELD(ClassIIFlag), FIELD(ActiveHeir), FIELD(ActiveNum), FIELD(ActiveDen), FIELD(UnitShare),
    FIELD(RaddUnit), FIELD(SharerLines), FIELD(SummaryText), FIELD(RaddText), FIELD(ReportHeader),
    FIELD(SummaryAmount), FIELD(SummaryKind), FIELD(SummaryFraction), FIELD(SummaryReport));

#undef FIELD

/// Calls visit(name, value) for each of the fields.
template <class... Fields, class Visit>
void ForEachField(const std::tuple<Fields...>& fields, const CaseRecord& c, Visit visit) {
  std::apply([&](const auto&... field) { (visit(field.Name, c.*field.Place), ...); }, fields);
}

struct AnyValue {
  template <class Value>
  operator Value() const;  // NOLINT(google-explicit-constructor): it stands for a field of any type
};

/// How many fields an aggregate has.
template <class State, class... Values>
constexpr std::size_t FieldCount(Values... values) {
  if constexpr (requires { State{values..., AnyValue()}; }) {
    return FieldCount<State>(values..., AnyValue());
  } else {
    return sizeof...(values);
  }
}

/// Whether one field is in the lists twice. It would hide another that is missing.
constexpr bool HasDoubledField() {
  return std::apply(
      [](const auto&... field) {
        std::array names = {std::string_view(field.Name)...};
        std::ranges::sort(names);
        return std::ranges::adjacent_find(names) != names.end();
      },
      std::tuple_cat(PrintedFields, OtherFields));
}
static_assert(!HasDoubledField(), "a field of the record is in the lists twice");

static_assert(std::tuple_size_v<decltype(PrintedFields)> + std::tuple_size_v<decltype(OtherFields)> ==
                  FieldCount<ApplicationState>() + FieldCount<ScreenState>(),
              "a field of the record is in neither list");

}  // namespace qismora::testing
