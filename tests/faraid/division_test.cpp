// What holds of every division, whatever the family: over all small families and over random ones of any
// size.

#include "faraid/Division.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "faraid/Amounts.h"
#include "faraid/Families.h"

namespace faraid {
namespace {

using enum Kind;

constexpr int kindsOfSmallFamilies = 4;
constexpr int randomFamilies = 20000;

template <class Check>
void ForAllFamilies(const Check& check) {
  const auto inEachSchool = [&](const Family& family) {
    if (::testing::Test::HasFailure()) return;
    for (const School school : Schools) {
      SCOPED_TRACE(::testing::PrintToString(family) + "in school " +
                   std::to_string(static_cast<int>(school)));
      check(family, school);
    }
  };
  ForSmallFamilies(kindsOfSmallFamilies, inEachSchool);
  RandomFamilies random(1);
  for (int i = 0; i < randomFamilies; ++i) inEachSchool(random.Next());
}

bool Takes(const Row& row) {
  return row.As == Standing::Sharer || row.As == Standing::Residuary ||
         row.As == Standing::SharerAndResiduary;
}

KindSet Takers(const Division& division) {
  KindSet takers;
  for (const Row& row : division.Rows) takers = takers | (Takes(row) ? KindSet(row.Heir) : Nobody);
  return takers;
}

KindSet Excluded(const Division& division) {
  KindSet excluded;
  for (const Row& row : division.Rows) {
    if (row.As == Standing::Excluded) excluded = excluded | row.Heir;
  }
  return excluded;
}

Fraction ShareOf(const Division& division, Kind kind) {
  for (const Row& row : division.Rows) {
    if (row.Heir == kind) return row.Share;
  }
  return {};
}

TEST(EveryDivision, DistributesTheWholeToThoseWhoTake) {
  ForAllFamilies([](const Family& family, School school) {
    const Division division = Divide(family, school);
    Fraction sum;
    KindSet listed;
    for (const Row& row : division.Rows) {
      ASSERT_EQ(row.Share, row.PerHead * row.Heads);
      ASSERT_EQ(row.Share > 0, Takes(row));
      ASSERT_EQ(row.As == Standing::Excluded, row.Excluder != Remainder);
      if (row.As == Standing::Excluded) {
        ASSERT_TRUE(family.Alive().Has(row.Excluder));
        ASSERT_NE(row.Excluder, row.Heir);
      }
      sum = sum + row.Share;
      listed = listed | row.Heir;
    }
    ASSERT_EQ(sum, 1);
    ASSERT_EQ(listed - Remainder, family.Alive());
  });
}

TEST(EveryDivision, ComesToTheBasesOfTheLaw) {
  // Awl is known for these alone; al-Akdariyya is one of those from 6 to 9.
  const std::set<std::pair<std::int64_t, std::int64_t>> raised = {{6, 7},   {6, 8},   {6, 9},   {6, 10},
                                                                  {12, 13}, {12, 15}, {12, 17}, {24, 27}};
  std::set<std::pair<std::int64_t, std::int64_t>> seen;
  ForAllFamilies([&](const Family& family, School school) {
    const Division division = Divide(family, school);
    ASSERT_EQ(division.Base > 0, !(Takers(division) - Remainder).IsEmpty());
    if (division.RaisedTo > 0) seen.insert({division.Base, division.RaisedTo});
  });
  EXPECT_EQ(seen, raised);
}

TEST(EveryDivision, StaysFarFromTheLimitsOfItsFractions) {
  // Counts without a common divisor, as many as may be.
  Family largest;
  constexpr int primes[] = {97, 89, 83, 79, 73, 71};
  std::size_t next = 0;
  for (std::size_t i = 0; i < KindCount; ++i) {
    const int most = MostOf(static_cast<Kind>(i));
    largest.Counts[i] = most < 100 ? most : primes[next++ % std::size(primes)];
  }
  std::int64_t widest = 0;
  const auto widen = [&](const Family& family, School school) {
    widest = std::max(widest, Divide(family, school).CorrectedBase);
  };
  RandomFamilies random(2);
  for (int i = 0; i < 2 * randomFamilies; ++i) {
    Family family = largest;
    for (const Kind kind : family.Alive()) {
      if (random.Below(2) == 0) family[kind] = 0;
    }
    family[random.Below(2) == 0 ? Wives : Husband] = 0;
    for (const School school : Schools) widen(family, school);
  }
  ForAllFamilies(widen);
  EXPECT_LT(widest, std::int64_t{1} << 31);
}

TEST(EveryDivision, KeepsTheExcludedWithoutAShareWhenAnotherJoins) {
  ForSmallFamilies(kindsOfSmallFamilies, [](const Family& family) {
    if (::testing::Test::HasFailure()) return;
    for (const School school : Schools) {
      const KindSet takers = Takers(Divide(family, school));
      for (const Kind joined : family.Alive()) {
        Family before = family;
        before[joined] = 0;
        ASSERT_TRUE((Excluded(Divide(before, school)) & takers).IsEmpty())
            << ::testing::PrintToString(family) << " joined by " << static_cast<int>(joined);
      }
    }
  });
}

TEST(EveryDivision, PaysTheNetEstateToTheLastHundredth) {
  RandomFamilies random(4);
  ForAllFamilies([&](const Family& family, School school) {
    const Division division = Divide(family, school);
    const Hundredths net = random.Below(2) == 0 ? random.Below(1000) : MostHundredths - random.Below(1000000);
    const Amounts amounts = AmountsOf(division, net);
    Hundredths sum = 0;
    for (std::size_t i = 0; i < division.Rows.Size(); ++i) {
      const Row& row = division.Rows[i];
      const Amount& amount = amounts[i];
      sum += amount.Together;
      ASSERT_EQ(amount.Together, amount.Each * row.Heads + amount.HeadsWithOneMore);
      // No head is off by a whole hundredth, and whoever has one more would lose without it.
      const Fraction exact = row.PerHead * net;
      ASSERT_TRUE(amount.Each <= exact && exact < amount.Each + 1);
      ASSERT_TRUE(amount.HeadsWithOneMore == 0 || exact > amount.Each);
    }
    ASSERT_EQ(sum, net);
  });
}

TEST(EveryDivision, IsOneInAllSchoolsWhereTheyDoNotDiffer) {
  const auto differ = [](const Family& family) {
    const KindSet alive = family.Alive();
    return alive.HasAny(Grandmothers) || (alive.HasAny(Grandfathers) && alive.HasAny(SiblingsByFather)) ||
           alive.HasAll(Husband | FullBrothers);
  };
  ForAllFamilies([&](const Family& family, School school) {
    if (differ(family)) return;
    const Division hanafi = Divide(family, School::Hanafi);
    const Division other = Divide(family, school);
    ASSERT_EQ(other.Rows.Size(), hanafi.Rows.Size());
    for (std::size_t i = 0; i < hanafi.Rows.Size(); ++i) {
      ASSERT_EQ(other.Rows[i].Share, hanafi.Rows[i].Share);
      ASSERT_EQ(other.Rows[i].As, hanafi.Rows[i].As);
    }
  });
}

TEST(EveryDivision, GivesAGrandfatherAtLeastASixthBesideSiblings) {
  ForAllFamilies([](const Family& family, School school) {
    const KindSet alive = family.Alive();
    if (alive.Has(Father) || !alive.HasAny(Grandfathers)) return;
    const Kind grandfather = (alive & Grandfathers).First();
    const Division division = Divide(family, school);
    const Fraction reduced = division.RaisedTo > 0 ? Fraction(division.Base, division.RaisedTo) : Fraction(1);
    ASSERT_GE(ShareOf(division, grandfather), Sixth * reduced);
    if (alive.HasAny(Descendants | Spouses | Mother | Grandmothers)) return;
    ASSERT_GE(ShareOf(division, grandfather), Third);
  });
}

TEST(EveryDivision, HasAReasonWithASourceForEachHeir) {
  ForAllFamilies([](const Family& family, School school) {
    for (const Row& row : Divide(family, school).Rows) {
      const std::string sentence = English(row.Why);
      ASSERT_NE(row.Why.Code, ReasonCode::Open);
      ASSERT_NE(row.Why.Basis, Source::None);
      ASSERT_LT(sentence.size(), 111U) << sentence;
      ASSERT_EQ(sentence.find_first_of("{}"), std::string::npos) << sentence;
      ASSERT_EQ(sentence.find("  "), std::string::npos) << sentence;
    }
  });
}

TEST(Divide, RefusesWhatIsNoFamily) {
  EXPECT_THROW(Divide(FamilyOf({{Wives, 5}}), School::Hanafi), std::invalid_argument);
  EXPECT_THROW(Divide(FamilyOf({{Wives, 1}, {Husband, 1}}), School::Hanafi), std::invalid_argument);
  EXPECT_THROW(Divide(FamilyOf({{Sons, -1}}), School::Hanafi), std::invalid_argument);
  EXPECT_THROW(Divide(FamilyOf({{FullUncle, 2}}), School::Hanafi), std::invalid_argument);
}

}  // namespace
}  // namespace faraid
