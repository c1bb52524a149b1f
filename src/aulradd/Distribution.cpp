#include "aulradd/Distribution.h"

#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/DistributionTexts.h"

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

// The lines that all distributions share.

std::string NetEstateLine(const CaseRecord& c) {
  return Join("Net Estate Wealth = ", F(c.NetEstate), CRLF, CRLF);
}

std::string SharersBlock(CaseRecord& c) {
  if (c.SharerLines.empty()) c.SharerLines = "NO Quranic Heir Found\r\n";
  return Join("QURANIC SHARERS (Zawil-Farooz):", CRLF, c.SharerLines, CRLF);
}

}  // namespace

void BuildSharerSummary(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  AddSummaryLine(c, wifeLine);
  AddSummaryLine(c, husbandLine);
  for (const HeirLine& line : otherLines) AddSummaryLine(c, line);

  const std::string total = Join("TOTAL Q-Shares = ", F(c.TotalQShares), CRLF);
  const std::string residue =
      Join("RESIDUE (Balance) = ", F(c.Residue), " (", c.ResidueNum, "/", c.ResidueDen, ")", CRLF, CRLF);
  c.SummaryText = Join(SummaryOpening, screen.Text1(NameBox).Text, SummaryExplanation, NetEstateLine(c),
                       SharersBlock(c), total, residue, "RESIDUARIES [ASABA'T] (Share per head):", CRLF);
}

void BuildAulRaddTexts(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  AddSpouseLines(c);
  for (const HeirLine& line : otherLines) AddAdjustedLine(c, line, c.AulFactor);

  const std::string total =
      Join("TOTAL Q-Shares = ", F(c.TotalQShares + c.Residue), " (", F(c.TotalQShares), ")", CRLF);
  const std::string residue = Join("RESIDUE (Balance) = 0  (", F(c.Residue), ")", CRLF, CRLF);
  const std::string figures = Join(NetEstateLine(c), SharersBlock(c), total, residue);
  c.SummaryText = Join(AulRaddOpening, screen.Text1(NameBox).Text, AulExplanation, figures);
  c.RaddText = Join(AulRaddOpening, screen.Text1(NameBox).Text, RaddExplanation, figures);
}

}  // namespace qismora
