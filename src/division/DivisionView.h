#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "casefile/CaseTexts.h"
#include "division/Differences.h"
#include "division/DivisionInput.h"
#include "faraid/Amounts.h"
#include "faraid/Division.h"

namespace qismora {

/// What became of the estate as a whole.
enum class DivisionOutcome {
  /// Fields cannot be read; nothing is divided.
  Unreadable,
  /// Funeral expenses and debts exceed the estate; nothing is divided.
  Short,
  /// No heir inherits; the whole is the remainder.
  NoHeirs,
  /// The fixed shares exceed the estate, so that all are reduced.
  AwlApplied,
  /// The fixed shares leave something, which returns to the sharers other than the spouse.
  RaddApplied,
  /// A spouse alone: what the fixed share leaves is the remainder.
  Remainder,
  /// Residuaries take what the fixed shares leave, or the whole.
  Residue,
  /// The fixed shares equal the whole estate.
  FitsExactly,
};

/// One line of the division: an heir, or the remainder.
struct DivisionLine {
  faraid::Row Law;
  faraid::Amount Amount;
  /// The parts of the corrected base, all heads together.
  std::int64_t Parts = 0;

  faraid::Kind Heir() const { return Law.Heir; }
  bool Takes() const { return Law.Share > 0; }
  bool operator==(const DivisionLine&) const = default;
};

/// The sums of the heads, the parts and the amounts of those who take.
struct DivisionSum {
  int Heads = 0;
  std::int64_t Parts = 0;
  faraid::Hundredths Together = 0;

  bool operator==(const DivisionSum&) const = default;
};

/// Heirs who are supposed to have died before the deceased: how many, and of how many who are alive.
struct SupposedDeath {
  faraid::Kind Heir = faraid::Kind::Remainder;
  int Heads = 0;
  int Of = 0;
};

/// The division of a case by one school, as the window and the paper show it. It has values, not words.
struct DivisionView {
  faraid::School School = faraid::School::Hanafi;
  std::string Name;
  int Gender = Male;

  /// Empty for the case as it is.
  std::vector<SupposedDeath> Supposed;

  DivisionOutcome Outcome = DivisionOutcome::Unreadable;
  /// The fields that cannot be read, in the order of the screen.
  std::vector<UnreadableField> Unreadable;

  /// Who is alive, also where there is nothing to divide.
  faraid::Family Family;
  faraid::Estate Estate;
  faraid::Settlement Settlement;
  /// The fields that still hold what the screen opens with, by index: those of the estate, and the name.
  std::vector<int> Examples;

  /// The shares and the bases; empty where nothing is divided.
  faraid::Division Division;
  /// Those who take, in the order of the division, and the remainder last.
  std::vector<DivisionLine> Takers;
  DivisionSum Sum;
  /// The heirs who are alive and receive nothing.
  std::vector<DivisionLine> Others;

  /// The answer of the commands of Case Study, and how it differs. Empty if nothing is divided, and for a
  /// case that is not on the screen.
  std::optional<OwnAnswer> Own;
  Differences Differs;

  /// Whether there is a table: all fields are read and the estate is not short. The net estate may be 0.
  bool IsDivided() const {
    return Outcome != DivisionOutcome::Unreadable && Outcome != DivisionOutcome::Short;
  }
  /// Every field can be read, so that there is something to print, even if it is that nothing is left.
  bool IsReadable() const { return Outcome != DivisionOutcome::Unreadable; }
  /// The bequests exceed what they may take.
  bool BequestsAreCut() const { return Settlement.Bequests < Estate.Bequests; }
  /// The bequests exceed a third of what funeral expenses and debts leave, so the consent of the heirs
  /// matters.
  bool ConsentMatters() const;
  /// The line of an heir who is alive, or of the remainder; else null.
  const DivisionLine* Find(faraid::Kind heir) const;
};

/// Divides what the texts of a case hold.
DivisionView ViewDivision(const CaseTexts& texts, faraid::School school);

/// Divides what the fields of the screen hold, and compares it with what the commands would answer. Nothing
/// on the screen changes.
DivisionView ViewDivision(const CaseScreen& screen, bool heirsConsent, faraid::School school);

/// The same case in the four schools, in their order.
using SchoolViews = std::array<DivisionView, 4>;
SchoolViews ViewFourSchools(const CaseTexts& texts);

/// Whether the schools differ about an heir, in the share or in its reason.
bool SchoolsDiffer(const SchoolViews& views, faraid::Kind heir);

/// What an heir receives in two divisions. An amount is empty if the heir is not alive in that division.
struct HeirChange {
  faraid::Kind Heir = faraid::Kind::Remainder;
  std::optional<faraid::Hundredths> Before;
  std::optional<faraid::Hundredths> Now;

  faraid::Hundredths Difference() const { return Now.value_or(0) - Before.value_or(0); }
};

/// Every heir of either division, in the order of the division; the remainder last.
std::vector<HeirChange> ChangesBetween(const DivisionView& before, const DivisionView& now);

/// The case with another number of these heirs.
CaseTexts WithHeads(CaseTexts texts, faraid::Kind heir, int heads);

}  // namespace qismora
