#include <charconv>

#include "base/Text.h"
#include "case/Heirs.h"
#include "player/Transcript.h"

namespace qismora::testing {

namespace {

/// Prints the fields of a record, one per line, except those that are 0, empty or False.
class Printer {
 public:
  explicit Printer(std::ostream& out) : out_(out) {}

  void Line(const std::string& name, bool value) {
    if (value) Put(name, "True");
  }
  void Line(const std::string& name, Integer value) {
    if (value != 0) Put(name, Join(value));
  }
  void Line(const std::string& name, Long value) {
    if (value != 0) Put(name, Join(value));
  }
  void Line(const std::string& name, Double value) {
    if (value == 0) return;
    char digits[32];
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), value.Value(), std::chars_format::general, 12)
            .ptr;
    Put(name, std::string_view(digits, static_cast<std::size_t>(end - digits)));
  }
  void Line(const std::string& name, const std::string& value) {
    if (!value.empty()) Put(name, Escaped(value));
  }

  void Put(const std::string& name, std::string_view value) {
    out_ << "  " << name << " = " << value << '\n';
  }

 private:
  std::ostream& out_;
};

void PrintFlags(Printer& print, const CaseRecord& c) {
  std::string set;
  for (int i = 0; i < c.Res.Size; ++i) {
    if (c.Res(i)) set += Join(set.empty() ? "" : " ", i);
  }
  print.Line("Res", set);
}

void PrintFractions(Printer& print, const CaseRecord& c) {
  for (int k = 0; k < HeirCount; ++k) {
    if (c.FractionNum(k) == 0 && c.FractionDen(k) == 0) continue;
    print.Put(Join("Fraction(", k, ")"), Join(c.FractionNum(k), "/", c.FractionDen(k)));
  }
}

}  // namespace

// A field's name is its own text.
#define FIELD(name) print.Line(#name, c.name)

void PrintRecord(std::ostream& out, const CaseRecord& c) {
  Printer print(out);
  FIELD(InputFailed), FIELD(CaseLoaded), FIELD(ReportToFile), FIELD(ExecCount);

  FIELD(Husband), FIELD(Wives), FIELD(Sons), FIELD(Daughters), FIELD(GrandSons), FIELD(GrandDaughters);
  FIELD(GtGrandSons), FIELD(GtGrandDaughters), FIELD(Father), FIELD(GrandFather), FIELD(GtGrandFather);
  FIELD(Mother), FIELD(MothersMother), FIELD(MothersMothersMother), FIELD(FullBrothers), FIELD(FullSisters);
  FIELD(FathersMother), FIELD(GrandFathersMother), FIELD(FathersGrandMother), FIELD(ConsSisters);
  FIELD(ConsBrothers), FIELD(UterineSisters), FIELD(UterineBrothers), FIELD(AsabaGrandSons);
  FIELD(AsabaGtGrandSons);

  FIELD(GrossEstate), FIELD(FuneralExp), FIELD(Debts), FIELD(Wills), FIELD(NetEstate);

  FIELD(WifeShare), FIELD(EachWifeShare), FIELD(HusbandShare), FIELD(FatherShare), FIELD(MotherShare);
  FIELD(GrandMotherShare), FIELD(DaughterShare), FIELD(SonsDaughterShare), FIELD(SonsSonsDaughterShare);
  FIELD(FullBrotherShare), FIELD(FullSisterShare), FIELD(ConsSisterShare), FIELD(ConsBrotherShare);
  FIELD(UterineSisterShare), FIELD(UterineBrotherShare);

  FIELD(UltimateFatherName), FIELD(FatherAmount), FIELD(GrandFatherAmount), FIELD(GtGrandFatherAmount);
  FIELD(SpouseShareWhole), FIELD(GrandMotherGroup), FIELD(GrandMotherCount), FIELD(FathersMotherAmount);
  FIELD(GrandFathersMotherAmount), FIELD(FathersGrandMotherAmount), FIELD(MothersMotherAmount);
  FIELD(MothersMothersMotherAmount);

  PrintFlags(print, c);
  PrintFractions(print, c);

  FIELD(TotalQShares), FIELD(QSharesLessSpouse), FIELD(Residue), FIELD(AulRaddState);

  FIELD(ActiveCount), FIELD(UnitTotal), FIELD(QSharesNum), FIELD(QSharesDen), FIELD(ResidueNum);
  FIELD(ResidueDen), FIELD(RaddUnitTotal), FIELD(RaddNum), FIELD(RaddDen), FIELD(LcmCount), FIELD(LcmResult);

  FIELD(SonAmount), FIELD(DaughterResidue), FIELD(SonsDaughterResidue), FIELD(EqualSonsSonResidue);
  FIELD(LowerSonsSonResidue), FIELD(ResidueUnit), FIELD(FullBrotherResidue), FIELD(FullSisterResidue);
  FIELD(ConsBrotherResidue), FIELD(ConsSisterResidue), FIELD(ClassIIResidue), FIELD(FatherResidue);

  for (int i = 0; i < c.ClassIIAmount.Size; ++i)
    print.Line(Join("ClassIIAmount(", i, ")"), c.ClassIIAmount(i));
  FIELD(ClassIINarrative), FIELD(ClassIIText);

  FIELD(AulFactor), FIELD(RaddFactor), FIELD(AulExcessNum), FIELD(AulExcessDen), FIELD(RaddExcessNum);
  FIELD(RaddExcessDen);
}

#undef FIELD

}  // namespace qismora::testing
