#include "reports/ReportHeaders.h"

#include "base/NumberText.h"
#include "base/Text.h"

namespace qismora {

namespace {

/// Whether the field has a number above 0. If the reading fails, the heir counts as entered.
template <class Reading>
bool IsAboveZero(const CaseScreen& screen, int index, Reading read) {
  try {
    return read(screen.Text1(index).Text.Get()) > 0;
  } catch (const Failure&) {
    return true;
  }
}

std::string FieldLine(const CaseScreen& screen, int index) {
  return Join(screen.Label1(index).Caption, " = ", screen.Text1(index).Text, CRLF);
}

std::string Inputs(const CaseScreen& screen) {
  std::string text = Join("DISTRIBUTION OF PROPERTY LEFT BY DECEASED ",
                          UpperCase(screen.Text1(NameField).Text.Get()), CRLF, CRLF, "INPUTS:", CRLF);
  for (int index = GrossEstateField; index <= NetEstateField; ++index) text += FieldLine(screen, index);
  return Join(text, CRLF, "SHARE CLAIMANTS:", CRLF);
}

constexpr std::string_view distribution = "\r\n\r\nDISTRIBUTION FOLLOWS LIKE THIS:";

}  // namespace

bool IsEnteredLeniently(const CaseScreen& screen, int index) {
  return IsAboveZero(screen, index, ParsePrefix);
}

bool IsEnteredStrictly(const CaseScreen& screen, int index) {
  return IsAboveZero(screen, index, ParseStrict);
}

void BuildFullHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int index : HeirFieldIndexes) claimants += FieldLine(screen, index);
  c.ReportHeader = Join(Inputs(screen), claimants, distribution);
}

void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int index : HeirFieldIndexes) {
    const bool entered = index <= 7 ? IsEnteredLeniently(screen, index) : IsEnteredStrictly(screen, index);
    if (entered) claimants += FieldLine(screen, index);
  }
  const bool none = claimants.empty();
  c.ReportHeader = Join(Inputs(screen), none ? "- NO SELECTION IS FOUND" : claimants, distribution,
                        none ? "\r\n\r\n- NO SHARER FOR DISTRIBUTION" : "");
}

}  // namespace qismora
