#include "aulradd/Distribution.h"

#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/DistributionTexts.h"

namespace qismora {

namespace {

/// The beginning of the line of an heir.
struct HeirLine {
  HeirKind Heir;
  std::string_view Label;
};

constexpr HeirLine spouseLines[] = {{WifeHeir, "WIFE ("}, {HusbandHeir, "HUSBAND ("}};
constexpr HeirLine otherLines[] = {
    {DaughterHeir, "DAUGHTERS ("},
    {FatherHeir, "FATHER ("},
    {MotherHeir, "MOTHER ("},
    {GrandMotherHeir, "True Grand Mother ("},
    {SonsDaughterHeir, "Son's daughter ("},
    {SonsSonsDaughterHeir, "Son's Son's daughter ("},
    {FullBrotherHeir, "BROTHER ("},
    {FullSisterHeir, "SISTER ("},
    {ConsSisterHeir, "Cons. SISTER ("},
    {ConsBrotherHeir, "Cons. BROTHER ("},
    {UterineSisterHeir, "Uter. SISTER ("},
    {UterineBrotherHeir, "Uter. BROTHER ("},
};

/// The plain distribution shows every ultimate father and the combination of the grandmothers.
void AddSummaryLine(CaseRecord& c, const HeirLine& line) {
  if (!IsAlive(c, line.Heir)) return;
  const auto add = [&](const auto&... head) {
    Append(c.SharerLines, head..., ") = ", AmountLine(c, line.Heir), CRLF);
  };
  if (line.Heir == FatherHeir) return add(line.Label, c.UltimateFatherName);
  if (line.Heir == GrandMotherHeir) {
    return add("True grandmother (", c.GrandMotherCount, "/", c.GrandMotherGroup);
  }
  add(line.Label, c.*Heirs[line.Heir].Count);
}

/// The adjusted distribution has no line for an ultimate father other than the father, though a grandfather's
/// amount is in the total.
void AddAdjustedLine(CaseRecord& c, const HeirLine& line, Double factor) {
  if (!IsAlive(c, line.Heir) || (line.Heir == FatherHeir && c.Father <= 0)) return;
  const auto add = [&](const auto&... head) {
    const Double amount = c.*Heirs[line.Heir].Amount;
    Append(c.SharerLines, head..., ") = ", F(amount * factor), " (", F(amount), ") ",
           FractionOf(c, line.Heir), CRLF);
  };
  if (line.Heir == FatherHeir) return add(line.Label, c.UltimateFatherName);
  add(line.Label, c.*Heirs[line.Heir].Count);
}

/// Aul reduces the spouse's share like all others. Radd leaves it and increases all others. Without a residue
/// the spouse has no line.
void AddSpouseLines(CaseRecord& c) {
  if (c.Residue == 0) return;
  for (const HeirLine& line : spouseLines) AddAdjustedLine(c, line, c.Residue < 0 ? c.AulFactor : 1);
  if (c.Residue > 0) c.AulFactor = c.RaddFactor;
}

/// The part after the explanation in every distribution: the net estate and the lines of the sharers.
std::string SharersBlock(CaseRecord& c) {
  if (c.SharerLines.empty()) c.SharerLines = "NO Quranic Heir Found\r\n";
  return Join("Net Estate Wealth = ", F(c.NetEstate), "\r\n\r\nQURANIC SHARERS (Zawil-Farooz):\r\n",
              c.SharerLines, CRLF);
}

}  // namespace

void BuildSharerSummary(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  for (const HeirLine& line : spouseLines) AddSummaryLine(c, line);
  for (const HeirLine& line : otherLines) AddSummaryLine(c, line);
  Write(c.SummaryText, SummaryOpening, screen.Text1(NameField).Text, SummaryExplanation, SharersBlock(c),
        "TOTAL Q-Shares = ", F(c.TotalQShares), "\r\nRESIDUE (Balance) = ", F(c.Residue), " (", c.ResidueNum,
        "/", c.ResidueDen, ")\r\n\r\nRESIDUARIES [ASABA'T] (Share per head):\r\n");
}

void BuildAulRaddTexts(CaseRecord& c, const CaseScreen& screen) {
  c.SharerLines = "";
  AddSpouseLines(c);
  for (const HeirLine& line : otherLines) AddAdjustedLine(c, line, c.AulFactor);
  const std::string figures =
      Join(SharersBlock(c), "TOTAL Q-Shares = ", F(c.TotalQShares + c.Residue), " (", F(c.TotalQShares),
           ")\r\nRESIDUE (Balance) = 0  (", F(c.Residue), ")\r\n\r\n");
  Write(c.SummaryText, AulRaddOpening, screen.Text1(NameField).Text, AulExplanation, figures);
  Write(c.RaddText, AulRaddOpening, screen.Text1(NameField).Text, RaddExplanation, figures);
}

}  // namespace qismora
