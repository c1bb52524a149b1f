#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "casefile/HeirFields.h"
#include "division/DivisionView.h"
#include "division/FamilyTree.h"

namespace qismora {
namespace {

using faraid::Kind;
using faraid::School;

struct Heads {
  Kind Heir;
  int Count;
};

CaseTexts Case(std::initializer_list<Heads> heirs, const char* gross = "2400") {
  CaseTexts texts;
  texts.Fields[GrossEstateField] = gross;
  for (const auto& [heir, count] : heirs) {
    if (heir == Kind::Husband) texts.Gender = Female;
    texts = WithHeads(texts, heir, count);
  }
  return texts;
}

DivisionOutcome Outcome(const CaseTexts& texts) { return ViewDivision(texts, School::Hanafi).Outcome; }

TEST(DivisionView, NamesWhatBecameOfTheEstate) {
  CaseTexts unreadable = Case({{Kind::Sons, 1}});
  unreadable.Fields[3] = "two";
  EXPECT_EQ(Outcome(unreadable), DivisionOutcome::Unreadable);
  CaseTexts indebted = Case({{Kind::Sons, 1}});
  indebted.Fields[DebtsField] = "2400.01";
  EXPECT_EQ(Outcome(indebted), DivisionOutcome::Short);
  EXPECT_EQ(Outcome(Case({})), DivisionOutcome::NoHeirs);
  EXPECT_EQ(Outcome(Case({{Kind::Husband, 1}, {Kind::FullSisters, 2}})), DivisionOutcome::AwlApplied);
  EXPECT_EQ(Outcome(Case({{Kind::Wives, 1}, {Kind::Daughters, 1}})), DivisionOutcome::RaddApplied);
  EXPECT_EQ(Outcome(Case({{Kind::Wives, 1}})), DivisionOutcome::Remainder);
  EXPECT_EQ(Outcome(Case({{Kind::Wives, 1}, {Kind::Sons, 2}})), DivisionOutcome::Residue);
  EXPECT_EQ(Outcome(Case({{Kind::Husband, 1}, {Kind::FullSisters, 1}})), DivisionOutcome::FitsExactly);
}

TEST(DivisionView, TakersSumToTheNetEstateAndOthersStandApart) {
  const DivisionView view = ViewDivision(Case({{Kind::Wives, 1},
                                               {Kind::Daughters, 2},
                                               {Kind::Grandfather, 1},
                                               {Kind::Mother, 1},
                                               {Kind::ConsanguineBrothers, 1}},
                                              "15,00,000"),
                                         School::Hanafi);
  EXPECT_EQ(view.Takers.size(), 4U);
  EXPECT_EQ(view.Sum, (DivisionSum{5, 27, 1'500'000'00}));
  ASSERT_EQ(view.Others.size(), 1U);
  EXPECT_EQ(view.Others[0].Law.Excluder, Kind::Grandfather);
  EXPECT_EQ(view.Find(Kind::Daughters)->Parts, 16);
}

TEST(DivisionView, MarksTheExamplesThatAreUntouched) {
  CaseTexts texts = Case({{Kind::Sons, 1}}, "18600");
  texts.Fields[DebtsField] = "5000";
  texts.Fields[FuneralField] = "999";
  texts.Fields[NameField] = "Abdullah";
  EXPECT_EQ(ViewDivision(texts, School::Hanafi).Examples, (std::vector<int>{GrossEstateField, DebtsField}));
  texts.Fields[NameField] = "ABDULLAH";
  EXPECT_EQ(ViewDivision(texts, School::Hanafi).Examples.back(), NameField);
}

TEST(DivisionView, AsksForTheConsentWhereMoreThanAThirdIsBequeathed) {
  CaseTexts texts = Case({{Kind::Sons, 1}}, "300");
  texts.Fields[WillsField] = "100";
  EXPECT_FALSE(ViewDivision(texts, School::Hanafi).ConsentMatters());
  texts.Fields[WillsField] = "100.01";
  EXPECT_TRUE(ViewDivision(texts, School::Hanafi).BequestsAreCut());
  texts.HeirsConsent = true;
  EXPECT_TRUE(ViewDivision(texts, School::Hanafi).ConsentMatters());
  EXPECT_FALSE(ViewDivision(texts, School::Hanafi).BequestsAreCut());
}

TEST(DivisionView, FindsWhereTheSchoolsDiffer) {
  const SchoolViews views =
      ViewFourSchools(Case({{Kind::Grandfather, 1}, {Kind::FullBrothers, 1}, {Kind::Mother, 1}}));
  EXPECT_TRUE(SchoolsDiffer(views, Kind::Grandfather));
  EXPECT_TRUE(SchoolsDiffer(views, Kind::FullBrothers));
  EXPECT_FALSE(SchoolsDiffer(views, Kind::Mother));
}

TEST(DivisionView, ComparesWithTheCaseInWhichAnHeirHasDied) {
  const CaseTexts texts = Case({{Kind::Wives, 1}, {Kind::Sons, 1}, {Kind::FullUncle, 1}});
  const DivisionView before = ViewDivision(texts, School::Hanafi);
  const DivisionView now = ViewDivision(WithHeads(texts, Kind::Sons, 0), School::Hanafi);
  const std::vector<HeirChange> changes = ChangesBetween(before, now);
  ASSERT_EQ(changes.size(), 3U);
  EXPECT_EQ(changes[0].Difference(), 300'00);
  EXPECT_EQ(changes[1].Difference(), -2100'00);
  EXPECT_FALSE(changes[1].Now.has_value());
  EXPECT_EQ(changes[2].Before, 0);
  EXPECT_EQ(changes[2].Difference(), 1800'00);
}

void ExpectApart(const FamilyTree& tree, const TreeMetrics& metrics) {
  for (std::size_t i = 0; i < tree.Nodes.size(); ++i) {
    const TreeNode& a = tree.Nodes[i];
    ASSERT_TRUE(a.X >= 0 && a.Y >= 0 && a.X + a.Width <= tree.Width && a.Y + a.Height <= tree.Height);
    for (std::size_t j = 0; j < i; ++j) {
      const TreeNode& b = tree.Nodes[j];
      // Half a gap is between any two, in one direction at least.
      const int gap = metrics.Gap / 2;
      const bool apart = a.X + a.Width + gap <= b.X || b.X + b.Width + gap <= a.X ||
                         a.Y + a.Height + gap <= b.Y || b.Y + b.Height + gap <= a.Y;
      ASSERT_TRUE(apart) << static_cast<int>(a.Heir) << " and " << static_cast<int>(b.Heir);
    }
  }
  for (const TreeLine& line : tree.Lines) {
    for (const TreePoint& point : line) {
      ASSERT_TRUE(point.X >= 0 && point.Y >= 0 && point.X <= tree.Width && point.Y <= tree.Height);
    }
  }
}

bool IsOnEdge(const TreePoint& point, const TreeNode& node) {
  const bool inside = point.X >= node.X && point.X <= node.X + node.Width && point.Y >= node.Y &&
                      point.Y <= node.Y + node.Height;
  return inside && (point.X == node.X || point.X == node.X + node.Width || point.Y == node.Y ||
                    point.Y == node.Y + node.Height);
}

bool Touches(const TreeNode& node, const TreePoint& a, const TreePoint& b) {
  return std::max(a.X, b.X) >= node.X && std::min(a.X, b.X) <= node.X + node.Width &&
         std::max(a.Y, b.Y) >= node.Y && std::min(a.Y, b.Y) <= node.Y + node.Height;
}

// The line leads from the one to the other, straight or square, and past all others.
void ExpectLeads(const FamilyTree& tree, const TreeYield& yield) {
  ASSERT_GE(yield.Line.size(), 2U);
  ASSERT_TRUE(IsOnEdge(yield.Line.front(), tree.Nodes[yield.From]));
  ASSERT_TRUE(IsOnEdge(yield.Line.back(), tree.Nodes[yield.To]));
  ASSERT_EQ(yield.Alone.front().X, yield.Line.front().X);
  ASSERT_EQ(yield.Alone.front().Y, yield.Line.front().Y);
  for (std::size_t i = 1; i < yield.Line.size(); ++i) {
    const TreePoint& a = yield.Line[i - 1];
    const TreePoint& b = yield.Line[i];
    ASSERT_TRUE(a.X == b.X || a.Y == b.Y);
    for (std::size_t n = 0; n < tree.Nodes.size(); ++n) {
      if (n == yield.From || n == yield.To || tree.Nodes[n].What == TreeNode::Role::Link) continue;
      ASSERT_FALSE(Touches(tree.Nodes[n], a, b)) << "through node " << n;
    }
  }
}

// Every kind that is alive has one node of its own, and those who are excluded a line to whom they yield.
TEST(FamilyTree, NodesNeverOverlapWhateverTheFamily) {
  std::mt19937 random(7);
  const TreeMetrics sizes[] = {{}, {300, 90, 70, 20, 30, 8, 12, 6}, {40, 20, 16, 300, 20, 16, 34, 8}};
  for (int run = 0; run < 1500; ++run) {
    CaseTexts texts;
    const auto density = 1 + random() % 6;
    std::size_t alive = 0;
    const Kind spouse = run % 2 == 0 ? Kind::Wives : Kind::Husband;
    texts.Gender = run % 2 == 0 ? Male : Female;
    for (std::size_t i = 0; i < faraid::KindCount; ++i) {
      const auto kind = static_cast<Kind>(i);
      if (faraid::Spouses.Has(kind) && kind != spouse) continue;
      if (random() % density != 0) continue;
      texts = WithHeads(texts, kind, 1);
      ++alive;
    }
    const DivisionView view = ViewDivision(texts, static_cast<School>(run % 4));
    const TreeMetrics& metrics = sizes[run % 3];
    const FamilyTree tree = LayOutFamily(view, {&metrics, 1}, static_cast<int>(random() % 2000));
    ASSERT_NO_FATAL_FAILURE(ExpectApart(tree, metrics));
    const auto heirs = std::ranges::count(tree.Nodes, TreeNode::Role::Heir, &TreeNode::What);
    ASSERT_EQ(static_cast<std::size_t>(heirs), alive);
    ASSERT_EQ(tree.Nodes[0].What, TreeNode::Role::Deceased);
    for (const TreeYield& yield : tree.Yields) ASSERT_NO_FATAL_FAILURE(ExpectLeads(tree, yield)) << run;
  }
}

// All heirs stand in a wide tree where there is room, in a narrow one where there is not, and the sizes that
// are narrower are taken when the others do not fit.
TEST(FamilyTree, GrowsDownWhereThereIsNoRoomAcross) {
  CaseTexts texts;
  for (std::size_t i = 1; i < faraid::KindCount; ++i) texts = WithHeads(texts, static_cast<Kind>(i), 1);
  const DivisionView view = ViewDivision(texts, School::Hanafi);
  TreeMetrics narrow;
  narrow.NodeWidth = 90;
  narrow.OtherHeight = 60;
  const TreeMetrics sizes[] = {{}, narrow};
  const FamilyTree wide = LayOutFamily(view, sizes, 2000);
  const FamilyTree high = LayOutFamily(view, sizes, 800);
  EXPECT_EQ(wide.Sizes, 0U);
  EXPECT_EQ(high.Sizes, 1U);
  EXPECT_LE(wide.Width, 2000);
  EXPECT_LE(high.Width, 800);
  EXPECT_GT(high.Height, wide.Height);
}

}  // namespace
}  // namespace qismora
