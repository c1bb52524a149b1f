// Every difference between the commands and the division has a kind, and every kind is a difference, for all
// families. QISMORA_FAMILIES draws another number of them: a million takes a minute.

#include "division/Differences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

#include "support/RandomCases.h"

namespace qismora {
namespace {

using faraid::Kind;
using testing::TypedCase;

int FamiliesToDraw() {
  const char* number = std::getenv("QISMORA_FAMILIES");
  return number == nullptr ? 60000 : std::atoi(number);
}

/// A case and the answer of the commands to it.
struct Answered {
  explicit Answered(const TypedCase& typed)
      : Input(ReadDivisionInput(typed.Texts())), Own(OwnAnswerOf(typed.Texts())) {}

  DivisionInput Input;
  OwnAnswer Own;
};

bool Concerns(const Differences& differences, Concern of) {
  return std::ranges::any_of(differences.Kinds, [&](const DifferenceKind* kind) { return kind->Of == of; });
}

/// The differences that a reader of both answers sees.
struct Seen {
  bool OtherEstate = false;
  bool NoFigures = false;
  bool OtherShares = false;
  /// Those whose line is another.
  faraid::KindSet Heirs;
};

Seen Look(const Answered& answered, faraid::School school) {
  const faraid::Settlement settled = faraid::Settle(answered.Input.Estate);
  const faraid::Division division = faraid::Divide(answered.Input.Family, school);
  const OwnAnswer& own = answered.Own;
  const faraid::KindSet alive = answered.Input.Family.Alive();
  const double net = static_cast<double>(settled.Net) / 100;
  Seen seen;
  const bool refused = own.Outcome == OwnOutcome::FigureRefused || own.Outcome == OwnOutcome::EstateRefused;
  seen.OtherEstate = refused || std::abs(own.NetEstate - net) >
                                    0.005 + 2.5e-18 * static_cast<double>(answered.Input.Estate.Gross);
  seen.NoFigures = own.Outcome == OwnOutcome::Failed;
  for (const faraid::Row& row : division.Rows) {
    if (row.Heir == Kind::Remainder) continue;
    const bool takes = (row.Share > 0 && settled.Net > 0) || own.Of(row.Heir).Together != 0;
    if (takes && (seen.OtherEstate || own.Outcome != OwnOutcome::Figures)) seen.Heirs = seen.Heirs | row.Heir;
    if (!own.IsDecided() || own.NetEstate <= 0) continue;
    if (own.Outcome == OwnOutcome::NoFigures && row.Share > 0) seen.NoFigures = true;
    const double share = static_cast<double>(row.Share.Num()) / static_cast<double>(row.Share.Den());
    // Without a child the spouse's amount may have been rounded, by half a unit, before the parents' third.
    const bool rounded = (Kind::Mother | Kind::Father).Has(row.Heir) && alive.HasAny(faraid::Spouses) &&
                         alive.HasAll(Kind::Mother | Kind::Father) && !alive.HasAny(faraid::Descendants);
    const double tolerance = rounded ? 0.5 / 3 : 0;
    const double apart = std::abs(own.Of(row.Heir).Together - share * own.NetEstate);
    if (apart <= tolerance + 1e-9 * own.NetEstate) continue;
    seen.OtherShares = true;
    if (takes) seen.Heirs = seen.Heirs | row.Heir;
  }
  return seen;
}

/// Compares the differences that are named with those that a reader sees, in each school. Collects the kinds.
void Check(const Answered& answered, std::set<const DifferenceKind*>& named) {
  for (const faraid::School school : faraid::Schools) {
    SCOPED_TRACE("school " + std::to_string(static_cast<int>(school)));
    const Differences differences = Compare(answered.Input, answered.Own, school);
    const Seen seen = Look(answered, school);
    ASSERT_EQ(Concerns(differences, Concern::Estate), seen.OtherEstate);
    ASSERT_EQ(Concerns(differences, Concern::Figures), seen.NoFigures);
    ASSERT_EQ(Concerns(differences, Concern::Shares), seen.OtherShares);
    ASSERT_EQ(differences.Heirs.Bits, seen.Heirs.Bits);
    named.insert(differences.Kinds.begin(), differences.Kinds.end());
  }
}

TEST(Differences, HaveIdsOfTheirOwn) {
  std::set<std::string_view> ids;
  for (const DifferenceKind& kind : DifferenceKinds()) {
    EXPECT_TRUE(ids.insert(kind.Id).second) << kind.Id;
    // A list of them has blanks between them, in a table with any separator.
    EXPECT_EQ(kind.Id.find_first_of(" ,;\t\""), std::string_view::npos) << kind.Id;
  }
}

TEST(Differences, HaveAKindAndEachKindIsADifference) {
  testing::RandomCases random(6);
  std::set<const DifferenceKind*> named;
  const int families = FamiliesToDraw();
  for (int i = 0; i < families && !HasFailure(); ++i) {
    const TypedCase typed = random.Next();
    SCOPED_TRACE(::testing::PrintToString(typed));
    Check(Answered(typed), named);
  }
  for (const DifferenceKind& kind : DifferenceKinds()) EXPECT_TRUE(named.contains(&kind)) << kind.Sentence;
}

TEST(Differences, HaveAKindInEverySmallFamily) {
  std::set<const DifferenceKind*> named;
  faraid::ForSmallFamilies(4, [&](const faraid::Family& family) {
    if (HasFailure()) return;
    const TypedCase typed = {.Family = family, .Amounts = {"25200", "0", "0", "0"}};
    SCOPED_TRACE(::testing::PrintToString(typed));
    Check(Answered(typed), named);
  });
}

// A fixed share and a residue may happen to have the ratio of two to one: four sons' daughters have two
// thirds beside one son's son's son under both rules.
TEST(Differences, AreNoneWhereTwoToOneIsTheFixedShare) {
  using enum Kind;
  std::set<const DifferenceKind*> named;
  int accidents = 0;
  for (const faraid::KindSet others : {faraid::Nobody, faraid::KindSet(Father), faraid::KindSet(Husband),
                                       Father | Mother, Husband | Mother, Daughters | Mother}) {
    for (int women = 1; women <= 20; ++women) {
      for (int men = 1; men <= 4; ++men) {
        faraid::Family family = faraid::FamilyOf({{SonsDaughters, women}, {SonsSonsSons, men}});
        for (const Kind kind : others) family[kind] = 1;
        const TypedCase typed = {.Family = family, .Amounts = {"25200", "0", "0", "0"}};
        SCOPED_TRACE(::testing::PrintToString(typed));
        const Answered answered(typed);
        Check(answered, named);
        accidents += Compare(answered.Input, answered.Own, faraid::School::Hanafi).None() ? 1 : 0;
      }
    }
  }
  EXPECT_GT(accidents, 5);
}

}  // namespace
}  // namespace qismora
