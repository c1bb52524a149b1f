#include "reports/ReportHeaders.h"

#include "base/NumberText.h"
#include "base/Text.h"

namespace qismora {

namespace {

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

bool IsEntered(const CaseScreen& screen, int field) {
  const std::string& text = screen.Text1(field).Text;
  try {
    return (field <= GtGrandDaughtersField ? ParsePrefix(text) : ParseStrict(text)) > 0;
  } catch (const Failure&) {
    return true;
  }
}

void BuildFullHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int index : HeirFieldIndexes) claimants += FieldLine(screen, index);
  c.ReportHeader = Join(Inputs(screen), claimants, distribution);
}

void BuildSelectedHeader(CaseRecord& c, const CaseScreen& screen) {
  std::string claimants;
  for (const int index : HeirFieldIndexes) {
    if (IsEntered(screen, index)) claimants += FieldLine(screen, index);
  }
  const bool none = claimants.empty();
  c.ReportHeader = Join(Inputs(screen), none ? "- NO SELECTION IS FOUND" : claimants, distribution,
                        none ? "\r\n\r\n- NO SHARER FOR DISTRIBUTION" : "");
}

}  // namespace qismora
