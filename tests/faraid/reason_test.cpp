// The sentences that people read, in families that bring them about.

#include <gtest/gtest.h>

#include "faraid/Families.h"

namespace faraid {
namespace {

using enum Kind;
using enum School;

struct Expected {
  School In;
  Family Who;
  std::initializer_list<std::pair<Kind, const char*>> Sentences;
};

std::string SentenceOf(const Division& division, Kind kind) {
  for (const Row& row : division.Rows) {
    if (row.Heir == kind) return English(row.Why);
  }
  return "no such line";
}

TEST(Reasons, AreSentences) {
  const Expected cases[] = {
      {Hanafi,
       FamilyOf({{Wives, 1}, {Daughters, 2}, {Grandfather, 1}, {Mother, 1}, {ConsanguineBrothers, 1}}),
       {{Wives, "1/8 because there are children (Quran 4:12); after Awl 3/27"},
        {Daughters, "2/3, two or more without a son (Quran 4:11); after Awl 16/27"},
        {Grandfather, "1/6 in the father's place (consensus); nothing is left beyond it; after Awl 4/27"},
        {ConsanguineBrothers, "excluded by the grandfather (ruling of Abu Bakr)"}}},
      {Hanafi,
       FamilyOf({{Daughters, 1}, {SonsDaughters, 2}, {Mother, 1}, {FathersMother, 1}}),
       {{SonsDaughters, "1/6 completes two thirds beside one daughter (report of Ibn Masud); after Radd 1/5"},
        {FathersMother, "excluded by the mother (consensus)"}}},
      {Hanafi,
       FamilyOf({{Husband, 1}, {SonsSons, 1}, {SonsDaughters, 1}, {Father, 1}}),
       {{Husband, "1/4 because there are children of sons (Quran 4:12)"},
        {Father, "1/6 because there are children of sons (Quran 4:11)"},
        {SonsSons, "takes what is left, two parts to a son's daughter's one (Quran 4:11)"},
        {SonsDaughters, "takes what is left, one part to a son's son's two (Quran 4:11)"}}},
      {Hanafi,
       FamilyOf({{Wives, 2}, {Father, 1}, {Mother, 1}, {MothersMother, 1}}),
       {{Mother, "1/4, al-Umariyyatan: a third of what a wife leaves (ruling of Umar)"},
        {Father, "takes what is left, nearest male (Quran 4:11)"}}},
      {Hanafi,
       FamilyOf({{Daughters, 2}, {SonsDaughters, 1}, {Father, 1}}),
       {{SonsDaughters, "two thirds are taken (Quran 4:11)"},
        {Father, "1/6 because there are children (Quran 4:11), and what is left beyond it"}}},
      {Hanafi,
       FamilyOf({{Daughters, 1}, {FullSisters, 1}, {FullUncle, 1}}),
       {{FullSisters, "takes what is left beside a daughter (report of Ibn Masud)"},
        {FullUncle, "excluded by a full sister (report of Ibn Masud)"}}},
      {Hanafi, FamilyOf({{Sons, 2}}), {{Sons, "takes the whole, nearest male (Quran 4:11)"}}},
      {Hanafi,
       FamilyOf({{Wives, 1}}),
       {{Remainder,
         "to distant kindred; if there is none, later Hanafi jurists return it to the spouse (Quran 8:75)"}}},
      {Shafii,
       FamilyOf({{Wives, 1}}),
       {{Remainder, "to distant kindred; if there is none, to the treasury (Quran 8:75)"}}},
      {Shafii,
       FamilyOf({{Husband, 1}, {Mother, 1}, {FullBrothers, 1}, {UterineSisters, 2}}),
       {{FullBrothers, "1/3, al-Mushtaraka: full and uterine siblings alike (ruling of Umar)"},
        {Mother, "1/6 because there are two or more siblings (Quran 4:11)"}}},
      {Hanbali,
       FamilyOf({{Husband, 1}, {Mother, 1}, {FullBrothers, 1}, {UterineSisters, 2}}),
       {{FullBrothers, "nothing is left (report of Ibn Abbas)"},
        {UterineSisters, "1/3 together, men and women alike (Quran 4:12)"}}},
      {Shafii,
       FamilyOf({{Husband, 1}, {Mother, 1}, {Grandfather, 1}, {FullSisters, 1}}),
       {{Husband, "1/2 because there are no descendants (Quran 4:12); after Awl 3/9"},
        {FullSisters,
         "al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one (ruling of Zayd); after Awl 4/9"}}},
      {Maliki,
       FamilyOf({{Husband, 1}, {Mother, 1}, {Grandfather, 1}, {FullBrothers, 1}, {UterineSisters, 2}}),
       {{Grandfather, "al-Malikiyya: takes what is left, siblings would have nothing (ruling of Malik)"},
        {FullBrothers, "nothing is left (ruling of Malik)"}}},
      {Maliki,
       FamilyOf({{GrandfathersMother, 1}, {FathersMothersMother, 1}, {MothersMothersMother, 1}}),
       {{GrandfathersMother, "not an heir in this school (ruling of Malik)"},
        {FathersMothersMother,
         "1/6 together with the other grandmothers (reports of al-Mughira and Ubada); after Radd 1"}}},
      {Maliki,
       FamilyOf({{Grandfather, 1}, {FullSisters, 1}, {ConsanguineBrothers, 2}}),
       {{Grandfather, "1/3 of the whole, more than a brother's part (ruling of Zayd)"},
        {FullSisters, "takes what the grandfather leaves, up to 1/2 of the whole (ruling of Zayd)"},
        {ConsanguineBrothers, "mu'adda: takes what the full sisters leave (ruling of Zayd)"}}},
      {Maliki,
       FamilyOf({{Mother, 1}, {GreatGrandfather, 1}, {FullBrothers, 3}}),
       {{GreatGrandfather, "1/3 of the remainder, more than a brother's part (ruling of Zayd)"},
        {FullBrothers, "takes what the grandfather leaves (ruling of Zayd)"}}},
      {Maliki,
       FamilyOf({{Husband, 1}, {Daughters, 2}, {Grandfather, 1}, {FullBrothers, 1}}),
       {{Grandfather, "1/6, his least beside siblings (ruling of Zayd); after Awl 2/13"}}},
  };
  for (const Expected& expected : cases) {
    const Division division = Divide(expected.Who, expected.In);
    for (const auto& [kind, sentence] : expected.Sentences) EXPECT_EQ(SentenceOf(division, kind), sentence);
  }
}

}  // namespace
}  // namespace faraid
