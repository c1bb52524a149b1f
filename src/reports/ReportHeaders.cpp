#include "reports/ReportHeaders.h"

#include "base/NumberText.h"
#include "base/Text.h"

namespace qismora {

namespace {

/// An heir counts as entered when the reading of its field fails.
template <class Reading>
bool IsAboveZero(const CaseScreen& screen, int box, Reading read) {
  try {
    return read(screen.Text1(box).Text.Get()) > 0;
  } catch (const Failure&) {
    return true;
  }
}

std::string BoxLine(const CaseScreen& screen, int box) {
  return Join(screen.Label1(box).Caption, " = ", screen.Text1(box).Text, CRLF);
}

std::string Inputs(const CaseScreen& screen) {
  std::string text = Join("DISTRIBUTION OF PROPERTY LEFT BY DECEASED ",
                          UpperCase(screen.Text1(NameBox).Text.Get()), CRLF, CRLF, "INPUTS:", CRLF);
  for (int box = GrossEstateBox; box <= NetEstateBox; ++box) text += BoxLine(screen, box);
  return Join(text, CRLF, "SHARE CLAIMANTS:", CRLF);
}

constexpr std::string_view distribution = "\r\n\r\nDISTRIBUTION FOLLOWS LIKE THIS:";

}  // namespace

bool IsEnteredLeniently(const CaseScreen& screen, int box) { return IsAboveZero(screen, box, ParsePrefix); }

bool IsEnteredStrictly(const CaseScreen& screen, int box) { return IsAboveZero(screen, box, ParseStrict); }

void BuildFullHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int box : HeirBoxes) claimants += BoxLine(screen, box);
  c.ReportHeader = Join(Inputs(screen), claimants, distribution);
}

void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int box : HeirBoxes) {
    const bool entered = box <= 7 ? IsEnteredLeniently(screen, box) : IsEnteredStrictly(screen, box);
    if (entered) claimants += BoxLine(screen, box);
  }
  const bool none = claimants.empty();
  c.ReportHeader = Join(Inputs(screen), none ? "- NO SELECTION IS FOUND" : claimants, distribution,
                        none ? "\r\n\r\n- NO SHARER FOR DISTRIBUTION" : "");
}

}  // namespace qismora
