#include <span>

#include "case/Conditions.h"
#include "case/Shares.h"
#include "case/narratives/GrandMotherTexts.h"
#include "rules/Rules.h"

// Five kinds of female ascendant above the parents are one heir, the true grandmother. One procedure decides
// the amount, another who makes up the group. They disagree in two cases: the father is alive beside his
// mother and a maternal great grandmother, or a grandfather is alive beside paternal great grandmothers.
// Beside a grandfather some texts speak of a living father. Both are required behaviour.

namespace qismora {

namespace {

void Report(CaseRecord& c, GrandMotherText text) {
  Report(c, GrandMotherHeir, GrandMotherTexts[text], TAB, F(c.GrandMotherShare));
}

void GiveSixth(CaseRecord& c, GrandMotherText text) {
  Take(c, GrandMotherHeir, 1, 6);
  Report(c, text);
}

void GiveNothing(CaseRecord& c, GrandMotherText text) {
  TakeNothing(c, GrandMotherHeir);
  Report(c, text);
}

using enum GrandMotherText;

void DecideBesideFather(CaseRecord& c) {
  if (c.MothersMother > 0) return GiveSixth(c, MothersMotherBesideFather);
  if (c.MothersMothersMother <= 0) return;
  if (c.FathersMother > 0) return GiveNothing(c, ExcludedByFatherAndNearer);
  GiveSixth(c, MothersMothersMotherBesideFather);
}

void DecideBesideGrandFather(CaseRecord& c) {
  if (c.MothersMother > 0 && c.FathersMother > 0) return GiveSixth(c, BothGrandMothers);
  if (c.MothersMother > 0 || c.FathersMother > 0) return GiveSixth(c, MothersMotherBesideFather);
  if (c.MothersMothersMother <= 0) return;
  GiveSixth(c, MothersMothersMotherBesideFather);
}

void DecideWithoutFathers(CaseRecord& c) {
  if (c.MothersMother > 0 && c.FathersMother > 0) return GiveSixth(c, BothGrandMothers);
  if (c.MothersMother > 0) return GiveSixth(c, MothersMotherAlone);
  if (c.FathersMother > 0) return GiveSixth(c, FathersMotherAlone);
  if (HasGrandMother(c)) return GiveSixth(c, GreatGrandMothers);
}

void DecideGrandMother(CaseRecord& c) {
  if (c.Father > 0 && c.Mother == 0) return DecideBesideFather(c);
  if (c.GrandFather > 0 && c.Mother == 0) return DecideBesideGrandFather(c);
  if (c.Mother > 0) return GiveNothing(c, ExcludedByMother);
  if (c.Mother == 0 && c.Father == 0 && c.GrandFather <= 0) return DecideWithoutFathers(c);
}

}  // namespace

void ShareOfGrandMother(CaseRecord& c, CaseScreen& screen) {
  screen.Label2.Caption = "TRUE GRAND MOTHER'S SHARE";
  TakeNothing(c, GrandMotherHeir);
  Report(c, GrandMotherHeir, NoGrandMotherText);
  DecideGrandMother(c);
  ShowResult(c, screen, GrandMotherHeir, Join(c.GrandMotherReport, "  ", FractionOf(c, GrandMotherHeir)));
  SetGrandMotherGroup(c);
}

namespace {

// The kinds by their initials: MM is the mother's mother, MMM her mother, FM the father's mother, FFM the
// father's father's mother, FMM the father's mother's mother.
enum Kind { MM = 1, MMM = 2, FM = 4, FFM = 8, FMM = 16 };

/// A combination of kinds that forms the group if all of them are alive, its name, and the slot that takes
/// the whole amount.
struct GroupRow {
  int Kinds;
  const char* Name;
  Double CaseRecord::*Slot;
};

// The nearer grandmothers exclude the great grandmothers; no great grandmother excludes another (the
// Companions). A combined group puts its sum into the slot of its first-named woman. FMM+MMM uses the slot of
// FFM, though no FFM is alive.
constexpr GroupRow withoutParents[] = {
    {FM | MM, "FM+MM", &CaseRecord::FathersMotherAmount},
    {FM, "FM", &CaseRecord::FathersMotherAmount},
    {MM, "MM", &CaseRecord::MothersMotherAmount},
    {FFM | FMM | MMM, "FFM+FMM+MMM", &CaseRecord::GrandFathersMotherAmount},
    {FFM | FMM, "FFM+FMM", &CaseRecord::GrandFathersMotherAmount},
    {FFM | MMM, "FFM+MMM", &CaseRecord::GrandFathersMotherAmount},
    {FMM | MMM, "FMM+MMM", &CaseRecord::GrandFathersMotherAmount},
    {FFM, "FFM", &CaseRecord::GrandFathersMotherAmount},
    {FMM, "FMM", &CaseRecord::FathersGrandMotherAmount},
    {MMM, "MMM", &CaseRecord::MothersMothersMotherAmount},
};

// The father excludes his own side, so only the mother's side is left. MM uses the slot of the father's
// mother.
constexpr GroupRow besideFather[] = {
    {MM, "MM", &CaseRecord::FathersMotherAmount},
    {MMM, "MMM", &CaseRecord::MothersMothersMotherAmount},
};

struct KindRow {
  Kind Initials;
  Integer CaseRecord::*Count;
};
constexpr KindRow kinds[] = {
    {MM, &CaseRecord::MothersMother},       {MMM, &CaseRecord::MothersMothersMother},
    {FM, &CaseRecord::FathersMother},       {FFM, &CaseRecord::GrandFathersMother},
    {FMM, &CaseRecord::FathersGrandMother},
};

/// How many women the kinds have together.
Integer WomenOf(const CaseRecord& c, int wanted) {
  Integer women;
  for (const KindRow& kind : kinds) {
    if ((wanted & kind.Initials) != 0) women += c.*kind.Count;
  }
  return women;
}

void TakeFirstGroup(CaseRecord& c, std::span<const GroupRow> rows) {
  int alive = 0;
  for (const KindRow& kind : kinds) alive |= c.*kind.Count > 0 ? kind.Initials : 0;
  for (const GroupRow& row : rows) {
    if ((row.Kinds & alive) != row.Kinds) continue;
    c.GrandMotherGroup = row.Name;
    c.GrandMotherCount = WomenOf(c, row.Kinds);
    c.*row.Slot = c.GrandMotherShare;
    return;
  }
  c.GrandMotherGroup = "Non";
  c.GrandMotherCount = Integer(0);
}

}  // namespace

void SetGrandMotherGroup(CaseRecord& c) {
  if (c.Father == 0 && c.Mother == 0) {
    TakeFirstGroup(c, withoutParents);
  } else if (c.Father > 0 && c.Mother == 0) {
    TakeFirstGroup(c, besideFather);
  } else if (c.Mother > 0) {
    TakeFirstGroup(c, {});
  }
}

}  // namespace qismora
