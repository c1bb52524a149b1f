#include "fuzz/Invariants.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "division/Differences.h"
#include "player/RecordFields.h"

namespace qismora::testing {

namespace {

/// Checks the value of a field: a number is finite, a text no longer than any case can make it.
class Checks {
 public:
  /// The longest texts contain every amount, with up to 309 digits each, and the name of the deceased.
  explicit Checks(const CaseStudy& study)
      : most_(64 * 1024 + 64 * study.Text1(NameField).Text.Get().size()) {}

  template <class Value>
  void Check(const Value&) const {}
  void Check(const Double& number) const {
    if (!std::isfinite(number.Value())) Fault("a number of the record is not finite");
  }
  void Check(const std::string& text) const {
    if (text.size() > most_) Fault("a text is too long");
  }
  template <class Value, int Last>
  void Check(const Array<Value, Last>& values) const {
    for (int i = 0; i <= Last; ++i) Check(values(i));
  }

 private:
  std::size_t most_;
};

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
  CheckComparison(study);
  const Checks checks(study);
  const auto check = [&](const char*, const auto& value) { checks.Check(value); };
  ForEachField(PrintedFields, c, check);
  ForEachField(OtherFields, c, check);
  for (const std::string* text :
       {&study.Text2.Text.Get(), &study.Text3.Text.Get(), &study.Label2.Caption.Get(),
        &study.Label3.Caption.Get(), &study.StatusBar1.Caption.Get()}) {
    checks.Check(*text);
  }
}

void Fault(const char* what) {
  std::fprintf(stderr, "fault: %s\n", what);
  std::abort();
}

}  // namespace qismora::testing
