#pragma once

#include <array>
#include <cstdint>

#include "faraid/Kinds.h"
#include "faraid/Reason.h"

namespace faraid {

enum class School : std::uint8_t { Hanafi, Maliki, Shafii, Hanbali };

/// The points in which the schools differ. Everything else is common to the four.
struct SchoolLaw {
  School Name;
  /// Rule of Zayd: a grandfather shares with full and consanguine siblings. Otherwise he excludes them, as
  /// Abu Bakr ruled.
  bool GrandfatherSharesWithSiblings;
  /// Al-Malikiyya: a grandfather takes what the siblings would not have had without him.
  bool GrandfatherTakesForSiblings;
  /// Al-Mushtaraka (second ruling of Umar): full siblings share the third of the uterine siblings.
  bool FullSiblingsShareUterineThird;
  /// Grandmothers who are not heirs.
  KindSet NotHeirs;
  /// Father and grandfather exclude the grandmothers who are related through them.
  bool FathersExcludeGrandmothers;
  /// The father's mother excludes the mother's mother's mother; the second: even if the father excludes her.
  /// On both the Companions differed.
  bool NearerOfFathersSideExcludes;
  bool ExcludedNearerExcludes;
  /// Where the remainder goes if the spouse is the only heir: to distant kindred (Quran 8:75). If there is
  /// none, the schools differ.
  ReasonCode RemainderBesideSpouse;
};

/// The table of differences, one row for each school.
inline constexpr std::array<SchoolLaw, 4> SchoolLaws = {{
    {.Name = School::Hanafi,
     .GrandfatherSharesWithSiblings = false,
     .GrandfatherTakesForSiblings = false,
     .FullSiblingsShareUterineThird = false,
     .NotHeirs = Nobody,
     .FathersExcludeGrandmothers = true,
     .NearerOfFathersSideExcludes = true,
     .ExcludedNearerExcludes = true,
     .RemainderBesideSpouse = ReasonCode::KindredThenSpouse},
    {.Name = School::Maliki,
     .GrandfatherSharesWithSiblings = true,
     .GrandfatherTakesForSiblings = true,
     .FullSiblingsShareUterineThird = true,
     .NotHeirs = Kind::GrandfathersMother,
     .FathersExcludeGrandmothers = true,
     .NearerOfFathersSideExcludes = false,
     .ExcludedNearerExcludes = false,
     .RemainderBesideSpouse = ReasonCode::KindredThenTreasury},
    {.Name = School::Shafii,
     .GrandfatherSharesWithSiblings = true,
     .GrandfatherTakesForSiblings = false,
     .FullSiblingsShareUterineThird = true,
     .NotHeirs = Nobody,
     .FathersExcludeGrandmothers = true,
     .NearerOfFathersSideExcludes = false,
     .ExcludedNearerExcludes = false,
     .RemainderBesideSpouse = ReasonCode::KindredThenTreasury},
    // Here no father excludes a grandmother, so ExcludedNearerExcludes has no effect.
    {.Name = School::Hanbali,
     .GrandfatherSharesWithSiblings = true,
     .GrandfatherTakesForSiblings = false,
     .FullSiblingsShareUterineThird = false,
     .NotHeirs = Nobody,
     .FathersExcludeGrandmothers = false,
     .NearerOfFathersSideExcludes = true,
     .ExcludedNearerExcludes = true,
     .RemainderBesideSpouse = ReasonCode::KindredThenTreasury},
}};

static_assert([] {
  for (std::size_t i = 0; i < SchoolLaws.size(); ++i) {
    if (SchoolLaws[i].Name != static_cast<School>(i)) return false;
  }
  return true;
}());

constexpr const SchoolLaw& LawOf(School school) { return SchoolLaws[static_cast<std::size_t>(school)]; }

}  // namespace faraid
