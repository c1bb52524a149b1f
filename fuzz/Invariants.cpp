#include "fuzz/Invariants.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>

#include "screens/Differences.h"

namespace qismora::testing {

namespace {

void CheckFinite(std::initializer_list<Double> amounts) {
  for (const Double& amount : amounts) {
    if (!std::isfinite(amount.Value())) Fault("a number of the record is not finite");
  }
}

template <int Last>
void CheckFinite(const Array<Double, Last>& amounts) {
  for (int i = 0; i <= Last; ++i) CheckFinite({amounts(i)});
}

void CheckNumbers(const CaseRecord& c) {
  CheckFinite({c.GrossEstate,
               c.NetEstate,
               c.WifeShare,
               c.EachWifeShare,
               c.HusbandShare,
               c.FatherShare,
               c.MotherShare,
               c.GrandMotherShare,
               c.DaughterShare,
               c.SonsDaughterShare,
               c.SonsSonsDaughterShare,
               c.FullBrotherShare,
               c.FullSisterShare,
               c.ConsSisterShare,
               c.ConsBrotherShare,
               c.UterineSisterShare,
               c.UterineBrotherShare,
               c.FatherAmount,
               c.GrandFatherAmount,
               c.GtGrandFatherAmount,
               c.FathersMotherAmount,
               c.GrandFathersMotherAmount,
               c.FathersGrandMotherAmount,
               c.MothersMotherAmount,
               c.MothersMothersMotherAmount,
               c.SonAmount,
               c.DaughterResidue,
               c.SonsDaughterResidue,
               c.EqualSonsSonResidue,
               c.LowerSonsSonResidue,
               c.ResidueUnit,
               c.FullBrotherResidue,
               c.FullSisterResidue,
               c.ConsBrotherResidue,
               c.ConsSisterResidue,
               c.ClassIIResidue,
               c.FatherResidue,
               c.TotalQShares,
               c.QSharesLessSpouse,
               c.Residue,
               c.AulFactor,
               c.RaddFactor});
  CheckFinite(c.ClassIIAmount);
  CheckFinite(c.SummaryAmount);
}

/// The longest texts contain every amount, with up to 309 digits each, and the name of the deceased.
void CheckLengths(const CaseStudy& study, const CaseRecord& c) {
  const std::size_t most = 64 * 1024 + 64 * study.Text1(NameBox).Text.Get().size();
  for (const std::string* text : {&study.Text2.Text.Get(),
                                  &study.Text3.Text.Get(),
                                  &study.Label2.Caption.Get(),
                                  &study.Label3.Caption.Get(),
                                  &study.StatusBar1.Caption.Get(),
                                  &c.WifeReport,
                                  &c.HusbandReport,
                                  &c.FatherReport,
                                  &c.MotherReport,
                                  &c.GrandMotherReport,
                                  &c.DaughterReport,
                                  &c.SonsDaughterReport,
                                  &c.SonsSonsDaughterReport,
                                  &c.FullBrotherReport,
                                  &c.FullSisterReport,
                                  &c.ConsSisterReport,
                                  &c.ConsBrotherReport,
                                  &c.UterineSisterReport,
                                  &c.UterineBrotherReport,
                                  &c.ResiduaryReport,
                                  &c.EachWifeText,
                                  &c.WifeWithGtGrandChildrenText,
                                  &c.HusbandWithGtGrandChildrenText,
                                  &c.SharerLines,
                                  &c.SummaryText,
                                  &c.RaddText,
                                  &c.ReportHeader,
                                  &c.SummaryReport,
                                  &c.ClassIINarrative,
                                  &c.ClassIIText}) {
    if (text->size() > most) Fault("a text is too long");
  }
}

/// Whatever is typed, the commands have an answer of their own, and no line differs without a kind.
void CheckComparison(const CaseStudy& study) {
  const CaseTexts texts = ReadScreen(study, false);
  const OwnAnswer own = OwnAnswerOf(texts);
  for (const OwnShare& share : own.Shares) {
    if (!std::isfinite(share.Together) || !std::isfinite(share.Each)) Fault("a share is not finite");
  }
  const DivisionInput input = ReadDivisionInput(texts);
  for (const faraid::School school : {faraid::School::Hanafi, faraid::School::Hanbali}) {
    const Differences differences = Compare(input, own, school);
    if (!differences.Heirs.IsEmpty() && differences.None()) Fault("a line differs without a kind");
  }
}

}  // namespace

void CheckInvariants(const CaseStudy& study, const CaseRecord& c) {
  if (study.Text2.Visible && study.Text3.Visible) Fault("both long texts are visible");
  if (c.ReportToFile) Fault("the full report has ended but still suppresses messages");
  CheckNumbers(c);
  CheckLengths(study, c);
  CheckComparison(study);
}

void Fault(const char* what) {
  std::fprintf(stderr, "fault: %s\n", what);
  std::abort();
}

}  // namespace qismora::testing
