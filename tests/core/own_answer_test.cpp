// The figures of the commands' answer are those that a user reads in their texts, for random families and
// estates.

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <utility>

#include "division/OwnAnswer.h"
#include "support/RandomCases.h"
#include "support/ScreenFixture.h"

namespace qismora {
namespace {

using faraid::Kind;
using testing::TypedCase;

/// The beginning of a line and the heir whom it names.
using Label = std::pair<std::string_view, Kind>;

using enum Kind;

// What all heirs of a kind have together.
constexpr Label sharerLabels[] = {{"WIFE (", Wives},
                                  {"HUSBAND (", Husband},
                                  {"DAUGHTERS (", Daughters},
                                  {"FATHER (Father)", Father},
                                  {"FATHER (Grand Father)", Grandfather},
                                  {"FATHER (Great Grand Father)", GreatGrandfather},
                                  {"MOTHER (", Mother},
                                  {"Son's daughter (", SonsDaughters},
                                  {"Son's Son's daughter (", SonsSonsDaughters},
                                  {"BROTHER (", FullBrothers},
                                  {"SISTER (", FullSisters},
                                  {"Cons. SISTER (", ConsanguineSisters},
                                  {"Cons. BROTHER (", ConsanguineBrothers},
                                  {"Uter. SISTER (", UterineSisters},
                                  {"Uter. BROTHER (", UterineBrothers}};

// What one of them has.
constexpr Label residuaryLabels[] = {{"SONS (", Sons},
                                     {"DAUGHTERS (", Daughters},
                                     {"SON(", Sons},
                                     {"Son's son(", SonsSons},
                                     {"Son's Daughter (", SonsDaughters},
                                     {"Son's Son's son(", SonsSonsSons},
                                     {"SON'S SON(", SonsSons},
                                     {"Son's son's son(", SonsSonsSons},
                                     {"Son_son daughter(", SonsSonsDaughters},
                                     {"FATHER(1/", Father},
                                     {"FATHER(0/1/", Grandfather},
                                     {"FATHER(0/0/1)", GreatGrandfather},
                                     {"Sons Daughter (", SonsDaughters},
                                     {"Equal Son's Son (", SonsSons},
                                     {"Lower Son's Son (", SonsSonsSons},
                                     {"Full Brother (", FullBrothers},
                                     {"Full Sister (", FullSisters},
                                     {"Cons. Brother (", ConsanguineBrothers},
                                     {"Cons. Sister (", ConsanguineSisters}};

template <std::size_t Size>
std::optional<Kind> HeirOf(const Label (&labels)[Size], const std::string& line) {
  for (const auto& [words, heir] : labels) {
    if (line.starts_with(words)) return heir;
  }
  return std::nullopt;
}

/// What a user reads of the last text of the commands.
struct Reading {
  bool HasFigures = false;
  /// The whole number of a kind: of the sharers together, of the residuaries per head.
  std::map<Kind, double> Together;
  std::map<Kind, double> PerHead;
  double OfGrandmothers = 0;
};

double AmountBehind(const std::string& line, std::string_view equals) {
  const std::size_t at = line.find(equals) + equals.size();
  double amount = 0;
  std::from_chars(line.data() + at, line.data() + line.size(), amount);
  return amount;
}

Reading ReadText(const std::string& text) {
  Reading reading;
  bool residuaries = false;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("Net Estate Wealth = ")) reading.HasFigures = true;
    if (line.starts_with("RESIDUARIES [ASABA'T]")) {
      residuaries = true;
    } else if (line.find("(For all)") != std::string::npos) {
      reading.PerHead[Remainder] = AmountBehind(line, " = ");
    } else if (const auto heir = HeirOf(residuaryLabels, line); residuaries && heir) {
      reading.PerHead[*heir] = AmountBehind(line, ") = ");
    } else if (const auto sharer = HeirOf(sharerLabels, line); !residuaries && sharer) {
      reading.Together[*sharer] = AmountBehind(line, ") = ");
    } else if (line.starts_with("True ")) {
      reading.OfGrandmothers = AmountBehind(line, ") = ");
    }
  }
  return reading;
}

/// A user who presses Residuaries and, where it is offered, Aul & Radd.
struct User : testing::ScreenFixture {
  explicit User(const TypedCase& typed) {
    TypeIntoScreen(typed.Texts(), *Study);
    Fakes.Boxes.Answers.assign(1, typed.HeirsConsent ? Answer::Yes : Answer::No);
    Study->Resid_Click();
    if (Record.AulRaddState == NoAdjustment || WasShown("Overflow")) return;
    Divided = Study->Text3.Text;
    Study->AulRadd_Click();
    AulRaddRefused = Study->Text3.Text.Get() == Divided;
  }

  bool WasShown(std::string_view words) const {
    for (const auto& box : Fakes.Boxes.Shown) {
      if (box.Text.find(words) != std::string::npos) return true;
    }
    return false;
  }

  std::string Divided;
  bool AulRaddRefused = false;
};

OwnOutcome OutcomeOf(const User& user, const Reading& reading) {
  if (user.WasShown("Check for high values")) return OwnOutcome::FigureRefused;
  if (user.WasShown("No estate wealth")) return OwnOutcome::EstateRefused;
  if (user.WasShown("Overflow") || user.AulRaddRefused) return OwnOutcome::Failed;
  return reading.HasFigures ? OwnOutcome::Figures : OwnOutcome::NoFigures;
}

void ExpectSame(const OwnAnswer& own, const Reading& reading, const faraid::Family& family) {
  double grandmothers = 0;
  double classII = 0;
  for (std::size_t i = 0; i < faraid::KindCount; ++i) {
    const auto kind = static_cast<Kind>(i);
    const double together = own.Of(kind).Together;
    if (faraid::Grandmothers.Has(kind)) grandmothers += together;
    if (faraid::ClassII.Has(kind)) classII += together;
    if ((faraid::Grandmothers | faraid::ClassII).Has(kind)) continue;

    const double heads = family[kind];
    const auto read = [&](const std::map<Kind, double>& amounts) {
      const auto found = amounts.find(kind);
      return found == amounts.end() ? 0 : found->second;
    };
    const double shown = read(reading.Together) + heads * read(reading.PerHead);
    ASSERT_NEAR(together, shown, 0.5 + 0.5 * heads + 1e-9 * std::abs(own.NetEstate)) << CaptionOf(kind);
    ASSERT_NEAR(own.Of(kind).Each * heads, together, 1e-9 * std::abs(own.NetEstate)) << CaptionOf(kind);
  }
  ASSERT_NEAR(grandmothers, reading.OfGrandmothers, 0.5 + 1e-9 * std::abs(own.NetEstate));
  const auto forAll = reading.PerHead.find(Remainder);
  ASSERT_NEAR(classII, forAll == reading.PerHead.end() ? 0 : forAll->second,
              0.5 + 1e-9 * std::abs(own.NetEstate));
}

TEST(OwnAnswer, IsWhatAUserReadsInTheTexts) {
  constexpr int cases = 30000;
  testing::RandomCases random(5);
  std::map<OwnOutcome, int> seen;
  for (int i = 0; i < cases; ++i) {
    const TypedCase typed = random.Next();
    SCOPED_TRACE(::testing::PrintToString(typed));
    const User user(typed);
    const Reading reading = ReadText(user.Study->Text3.Text);
    const OwnAnswer own = OwnAnswerOf(typed.Texts());
    ++seen[own.Outcome];
    ASSERT_EQ(own.Outcome, OutcomeOf(user, reading));
    if (own.Outcome == OwnOutcome::Figures) ExpectSame(own, reading, typed.Family);
    if (HasFailure()) return;
  }
  EXPECT_EQ(seen.size(), 5U);
}

TEST(OwnAnswer, DividesTheSixthAmongTheGrandmothersOfTheGroup) {
  testing::ScreenFixture played;
  played.TypeEstate("1200");
  for (const int field : {17, 18, 19, 20, 21}) played.Type(field, "1");
  const OwnAnswer near = OwnAnswerOf(ReadScreen(*played.Study, false));
  EXPECT_DOUBLE_EQ(near.Of(MothersMother).Together, 600);
  EXPECT_DOUBLE_EQ(near.Of(FathersMother).Each, 600);
  EXPECT_EQ(near.Of(GrandfathersMother).Together, 0);

  // Beside a grandfather his mother is counted among those who share.
  for (const int field : {17, 19}) played.Type(field, "0");
  played.Type(14, "1");
  const OwnAnswer far = OwnAnswerOf(ReadScreen(*played.Study, false));
  for (const Kind kind : {MothersMothersMother, GrandfathersMother, FathersMothersMother}) {
    EXPECT_DOUBLE_EQ(far.Of(kind).Together, 200.0 / 3);
  }
  EXPECT_DOUBLE_EQ(far.Of(Grandfather).Together, 1000);
}

TEST(OwnAnswer, IsThatOfAFreshStart) {
  testing::ScreenFixture played;
  played.TypeEstate("1200");
  played.Type(5, "1");
  played.Type(6, "1");
  played.Study->Residuaries_Click();

  // A field that cannot be read keeps the count of the run before, but in a fresh start there is none.
  played.Type(5, "x");
  played.Study->Residuaries_Click();
  EXPECT_EQ(played.Record.GrandDaughters, 1);
  const OwnAnswer own = OwnAnswerOf(ReadScreen(*played.Study, false));
  EXPECT_EQ(own.Of(SonsDaughters).Together, 0);
  EXPECT_DOUBLE_EQ(own.Of(SonsSonsSons).Together, 1200);
}

}  // namespace
}  // namespace qismora
