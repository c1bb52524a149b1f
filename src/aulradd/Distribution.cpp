#include "aulradd/Distribution.h"

#include "case/Conditions.h"
#include "case/Shares.h"

namespace qismora {

namespace {

/// One line of a distribution: how it begins, the count that it shows, the amount and the fraction.
struct HeirLine {
  const char* Label;
  Integer CaseRecord::*Count;
  Double CaseRecord::*Amount;
  Slot Place;
};

constexpr HeirLine wifeLine = {"WIFE (", &CaseRecord::Wives, &CaseRecord::WifeShare, WifeSlot};
constexpr HeirLine husbandLine = {"HUSBAND (", &CaseRecord::Husband, &CaseRecord::HusbandShare, HusbandSlot};

constexpr HeirLine otherLines[] = {
    {"DAUGHTERS (", &CaseRecord::Daughters, &CaseRecord::DaughterShare, DaughterSlot},
    {"FATHER (", &CaseRecord::Father, &CaseRecord::FatherShare, FatherSlot},
    {"MOTHER (", &CaseRecord::Mother, &CaseRecord::MotherShare, MotherSlot},
    {"True Grand Mother (", &CaseRecord::GrandMotherCount, &CaseRecord::GrandMotherShare, GrandMotherSlot},
    {"Son's daughter (", &CaseRecord::GrandDaughters, &CaseRecord::SonsDaughterShare, SonsDaughterSlot},
    {"Son's Son's daughter (", &CaseRecord::GtGrandDaughters, &CaseRecord::SonsSonsDaughterShare,
     SonsSonsDaughterSlot},
    {"BROTHER (", &CaseRecord::FullBrothers, &CaseRecord::FullBrotherShare, FullBrotherSlot},
    {"SISTER (", &CaseRecord::FullSisters, &CaseRecord::FullSisterShare, FullSisterSlot},
    {"Cons. SISTER (", &CaseRecord::ConsSisters, &CaseRecord::ConsSisterShare, ConsSisterSlot},
    {"Cons. BROTHER (", &CaseRecord::ConsBrothers, &CaseRecord::ConsBrotherShare, ConsBrotherSlot},
    {"Uter. SISTER (", &CaseRecord::UterineSisters, &CaseRecord::UterineSisterShare, UterineSisterSlot},
    {"Uter. BROTHER (", &CaseRecord::UterineBrothers, &CaseRecord::UterineBrotherShare, UterineBrotherSlot},
};

// The plain distribution shows every ultimate father and the combination of the grandmothers.

bool IsInSummary(const CaseRecord& c, const HeirLine& line) {
  if (line.Place == FatherSlot) return HasFatherLine(c);
  if (line.Place == GrandMotherSlot) return HasGrandMother(c);
  return c.*line.Count > 0;
}

std::string SummaryHead(const CaseRecord& c, const HeirLine& line) {
  if (line.Place == FatherSlot) return Join(line.Label, c.UltimateFatherName);
  if (line.Place == GrandMotherSlot) {
    return Join("True grandmother (", c.GrandMotherCount, "/", c.GrandMotherGroup);
  }
  return Join(line.Label, c.*line.Count);
}

void AddSummaryLine(CaseRecord& c, const HeirLine& line) {
  if (!IsInSummary(c, line)) return;
  c.SharerLines += Join(SummaryHead(c, line), ") = ", F(c.*line.Amount), FractionText(c, line.Place), CRLF);
}

// The adjusted distribution shows the father alone of his line, though a grand father's amount is in the
// total.

bool IsInAdjusted(const CaseRecord& c, const HeirLine& line) {
  return line.Place == GrandMotherSlot ? HasGrandMother(c) : c.*line.Count > 0;
}

void AddAdjustedLine(CaseRecord& c, const HeirLine& line, Double factor) {
  if (!IsInAdjusted(c, line)) return;
  const Double amount = c.*line.Amount;
  const std::string head =
      line.Place == FatherSlot ? Join(line.Label, c.UltimateFatherName) : Join(line.Label, c.*line.Count);
  c.SharerLines += Join(head, ") = ", F(amount * factor), " (", F(amount), ") (", c.FractionNum(line.Place),
                        "/", c.FractionDen(line.Place), ")", CRLF);
}

/// Aul reduces the spouse with all others. Radd leaves the spouse the plain share and raises the rest. With
/// no residue the spouse has no line at all.
void AddSpouseLines(CaseRecord& c) {
  if (c.Residue == 0) return;
  const Double factor = c.Residue < 0 ? c.AulFactor : 1;
  AddAdjustedLine(c, wifeLine, factor);
  AddAdjustedLine(c, husbandLine, factor);
  if (c.Residue > 0) c.AulFactor = c.RaddFactor;
}

}  // namespace

void BuildSharerSummary(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  AddSummaryLine(c, wifeLine);
  AddSummaryLine(c, husbandLine);
  for (const HeirLine& line : otherLines) AddSummaryLine(c, line);
  if (c.SharerLines.empty()) c.SharerLines = "NO Quranic Heir Found\r\n";

  c.SummaryText = Join(
      "The numbers shown within first brackets are the number of such Quranic Heirs left ALIVE by the deceased ",
      screen.Text1(NameBox).Text,
      ". The value inside the second bracket indicates the per unit value of share. The distribution of Gross "
      "Estate left by the deceased BETWEEN Quranic heirs and Residuaries (Asaba't) will be as under:\r\n\r\n",
      "Net Estate Wealth = ", F(c.NetEstate), CRLF, CRLF,            //
      "QURANIC SHARERS (Zawil-Farooz):", CRLF, c.SharerLines, CRLF,  //
      "TOTAL Q-Shares = ", F(c.TotalQShares), CRLF,                  //
      "RESIDUE (Balance) = ", F(c.Residue), " (", c.ResidueNum, "/", c.ResidueDen, ")", CRLF, CRLF,
      "RESIDUARIES [ASABA'T] (Share per head):", CRLF);
}

void BuildAulRaddTexts(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  AddSpouseLines(c);
  for (const HeirLine& line : otherLines) AddAdjustedLine(c, line, c.AulFactor);
  if (c.SharerLines.empty()) c.SharerLines = "NO Quranic Heir Found\r\n";

  const std::string opening = Join(
      "The numbers shown within first brackets are the number of such Quranic Heirs left ALIVE by the deceased  ",
      screen.Text1(NameBox).Text, ". The distribution of Gross Estate ");
  const std::string figures =
      Join("Net Estate Wealth = ", F(c.NetEstate), CRLF, CRLF,                                      //
           "QURANIC SHARERS (Zawil-Farooz):", CRLF, c.SharerLines, CRLF,                            //
           "TOTAL Q-Shares = ", F(c.TotalQShares + c.Residue), " (", F(c.TotalQShares), ")", CRLF,  //
           "RESIDUE (Balance) = 0  (", F(c.Residue), ")", CRLF, CRLF);

  c.SummaryText = Join(
      opening,
      "left by the deceased AMONG Quranic heirs only are shown below, because there is no Residuary (Asaba') ALIVE, "
      "the method of 'Aul' doctrine has been applied. The value inside the second bracket indicates the share "
      "before applying 'Aul' doctrine, while value within the third brackets indicates per unit share after applying "
      "'Aul'. The distribution of Gross Estate left by the deceased AMONG Quranic heirs will be as under:\r\n\r\n",
      figures);
  c.RaddText = Join(
      opening,
      "left by the deceased AMONG Quranic heirs only is shown below, because there is no Residuary (Asaba') ALIVE, "
      "the method of 'Radd' doctrine has been applied. The value inside the second bracket indicates the share "
      "before applying 'Radd' doctrine, while value within the third brackets indicates per unit share after applying "
      "'Radd'. The distribution of Gross Estate left by the deceased AMONG Quranic heirs will be as under:\r\n\r\n",
      figures);
}

}  // namespace qismora
