#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <utility>

#include "casefile/HeirFields.h"
#include "division/DivisionView.h"
#include "division/ExclusionLines.h"
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
void ExpectLeads(const FamilyTree& tree, const TreeExclusion& exclusion) {
  ASSERT_GE(exclusion.Line.size(), 2U);
  ASSERT_TRUE(IsOnEdge(exclusion.Line.front(), tree.Nodes[exclusion.From]));
  ASSERT_TRUE(IsOnEdge(exclusion.Line.back(), tree.Nodes[exclusion.To]));
  ASSERT_EQ(exclusion.Alone.front().X, exclusion.Line.front().X);
  ASSERT_EQ(exclusion.Alone.front().Y, exclusion.Line.front().Y);
  for (std::size_t i = 1; i < exclusion.Line.size(); ++i) {
    const TreePoint& a = exclusion.Line[i - 1];
    const TreePoint& b = exclusion.Line[i];
    ASSERT_TRUE(a.X == b.X || a.Y == b.Y);
    for (std::size_t n = 0; n < tree.Nodes.size(); ++n) {
      if (n == exclusion.From || n == exclusion.To || tree.Nodes[n].What == TreeNode::Role::Link) continue;
      ASSERT_FALSE(Touches(tree.Nodes[n], a, b)) << "through node " << n;
    }
  }
}

/// What a reader sees: the parts of all lines between nodes, joined where they touch. Lines that cross look
/// joined too.
class SeenLines {
 public:
  explicit SeenLines(const FamilyTree& tree) : tree_(tree) {
    for (const TreeLine& line : tree.Lines) {
      for (std::size_t i = 1; i < line.size(); ++i) Add(line[i - 1], line[i]);
    }
    for (bool joins = true; joins;) {
      joins = false;
      for (Part& a : parts_) {
        for (Part& b : parts_) {
          if (a.Joined <= b.Joined || !Meet(a, b)) continue;
          a.Joined = b.Joined;
          joins = true;
        }
      }
    }
  }

  /// The nodes to which any line leads that touches this one.
  std::vector<const TreeNode*> From(const TreeNode& node) const {
    std::vector<const TreeNode*> found;
    for (const Part& part : parts_) {
      if (!Touches(node, part.A, part.B)) continue;
      for (const Part& other : parts_) {
        if (other.Joined != part.Joined) continue;
        for (const TreeNode& end : tree_.Nodes) {
          if (Touches(end, other.A, other.B)) found.push_back(&end);
        }
      }
    }
    return found;
  }

 private:
  struct Part {
    TreePoint A;
    TreePoint B;
    std::size_t Joined;
  };

  static bool Meet(const Part& a, const Part& b) {
    return std::max(std::min(a.A.X, a.B.X), std::min(b.A.X, b.B.X)) <=
               std::min(std::max(a.A.X, a.B.X), std::max(b.A.X, b.B.X)) &&
           std::max(std::min(a.A.Y, a.B.Y), std::min(b.A.Y, b.B.Y)) <=
               std::min(std::max(a.A.Y, a.B.Y), std::max(b.A.Y, b.B.Y));
  }

  // Without what lies behind a node, in steps of a pixel, since every line is straight across or down.
  void Add(const TreePoint& from, const TreePoint& to) {
    ASSERT_TRUE(from.X == to.X || from.Y == to.Y);
    const int length = std::max(std::abs(to.X - from.X), std::abs(to.Y - from.Y));
    const int x = (to.X > from.X) - (to.X < from.X);
    const int y = (to.Y > from.Y) - (to.Y < from.Y);
    bool open = false;
    for (int i = 0; i <= length; ++i) {
      const TreePoint point = {from.X + i * x, from.Y + i * y};
      const bool hidden = std::ranges::any_of(tree_.Nodes, [&](const TreeNode& node) {
        return point.X > node.X && point.X < node.X + node.Width && point.Y > node.Y &&
               point.Y < node.Y + node.Height;
      });
      if (!hidden && !std::exchange(open, true)) parts_.push_back({point, point, parts_.size()});
      if (hidden) open = false;
      if (open) parts_.back().B = point;
    }
  }

  const FamilyTree& tree_;
  std::vector<Part> parts_;
};

// No line passes behind a node: it leads to a node at its ends alone, or through a link.
void ExpectNothingBehind(const FamilyTree& tree) {
  for (const TreeLine& line : tree.Lines) {
    for (std::size_t i = 1; i < line.size(); ++i) {
      for (const TreeNode& node : tree.Nodes) {
        if (node.What == TreeNode::Role::Link || !Touches(node, line[i - 1], line[i])) continue;
        ASSERT_TRUE(Touches(node, line.front(), line.front()) || Touches(node, line.back(), line.back()));
      }
    }
  }
}

// Each brother, sister and spouse is seen to belong to his or her own parents, or to the deceased, alone.
void ExpectOwnParents(const FamilyTree& tree) {
  const SeenLines lines(tree);
  for (const TreeNode& node : tree.Nodes) {
    if (node.What != TreeNode::Role::Heir) continue;
    const faraid::KindSet kin = node.Heir;
    const bool full = faraid::FullSiblings.HasAny(kin);
    const bool consanguine = faraid::ConsanguineSiblings.HasAny(kin);
    const bool uterine = faraid::UterineSiblings.HasAny(kin);
    const bool spouse = faraid::Spouses.HasAny(kin);
    if (!full && !consanguine && !uterine && !spouse && !faraid::ClassII.HasAny(kin)) continue;
    bool deceased = false;
    bool father = false;
    bool mother = false;
    for (const TreeNode* other : lines.From(node)) {
      deceased = deceased || other->What == TreeNode::Role::Deceased;
      father = father || (other->Heir == Kind::Father && other->What != TreeNode::Role::Deceased);
      mother = mother || (other->Heir == Kind::Mother && other->What != TreeNode::Role::Deceased);
      // Nobody else hangs there than one's own kind, and class II behind a link.
      const faraid::KindSet both = faraid::Siblings | faraid::Spouses | faraid::ClassII;
      if (other->What != TreeNode::Role::Heir || !both.HasAny(other->Heir)) continue;
      ASSERT_EQ(faraid::FullSiblings.Has(other->Heir), full);
      ASSERT_EQ(faraid::ConsanguineSiblings.Has(other->Heir), consanguine);
      ASSERT_EQ(faraid::UterineSiblings.Has(other->Heir), uterine);
      ASSERT_EQ(faraid::Spouses.Has(other->Heir), spouse);
    }
    ASSERT_EQ(deceased, full || spouse) << static_cast<int>(node.Heir);
    ASSERT_EQ(father && !full, consanguine) << static_cast<int>(node.Heir);
    ASSERT_EQ(mother && !full, uterine) << static_cast<int>(node.Heir);
  }
}

constexpr TreeMetrics walkedSizes[] = {{}, {300, 90, 70, 20, 30, 8, 12, 6}, {40, 20, 16, 300, 20, 16, 34, 8}};

// All brothers and sisters who can stand together, beside every choice of ascendants, spouse and class II.
TEST(FamilyTree, EachSiblingHangsFromTheOwnParentsAlone) {
  constexpr Kind siblings[] = {Kind::FullBrothers,        Kind::FullSisters,    Kind::ConsanguineSisters,
                               Kind::ConsanguineBrothers, Kind::UterineSisters, Kind::UterineBrothers};
  const std::vector<Kind> others[] = {
      {},
      {Kind::Mother},
      {Kind::Father, Kind::Daughters},
      {Kind::Father, Kind::Mother, Kind::Wives},
      {Kind::Mother, Kind::Wives, Kind::FullUncle},
      {Kind::Grandfather, Kind::FathersMother, Kind::MothersMother, Kind::Wives, Kind::Sons, Kind::Daughters},
      {Kind::Father, Kind::Mother, Kind::Grandfather, Kind::GreatGrandfather, Kind::GrandfathersMother,
       Kind::FathersMothersMother, Kind::MothersMothersMother, Kind::FullUncle, Kind::ConsanguineUncle},
  };
  std::size_t run = 0;
  for (unsigned choice = 0; choice < 64; ++choice) {
    for (const std::vector<Kind>& beside : others) {
      CaseTexts texts;
      for (const Kind heir : beside) texts = WithHeads(texts, heir, 1);
      for (unsigned i = 0; i < 6; ++i) {
        if ((choice >> i & 1U) != 0) texts = WithHeads(texts, siblings[i], 2);
      }
      const DivisionView view = ViewDivision(texts, School::Maliki);
      for (const int widest : {0, 600, 2000}) {
        const TreeMetrics& metrics = walkedSizes[run++ % std::size(walkedSizes)];
        const FamilyTree tree = LayOutFamily(view, {&metrics, 1}, widest);
        ASSERT_NO_FATAL_FAILURE(ExpectApart(tree, metrics)) << choice;
        ASSERT_NO_FATAL_FAILURE(ExpectNothingBehind(tree)) << choice;
        ASSERT_NO_FATAL_FAILURE(ExpectOwnParents(tree)) << choice << " at " << widest;
      }
    }
  }
}

// Every kind that is alive has one node of its own, and an excluded one a line to the one who excludes it.
TEST(FamilyTree, NodesNeverOverlapWhateverTheFamily) {
  std::mt19937 random(7);
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
    const TreeMetrics& metrics = walkedSizes[run % 3];
    FamilyTree tree = LayOutFamily(view, {&metrics, 1}, static_cast<int>(random() % 2000));
    DrawExclusionLines(tree, metrics);
    ASSERT_NO_FATAL_FAILURE(ExpectApart(tree, metrics)) << run;
    ASSERT_NO_FATAL_FAILURE(ExpectNothingBehind(tree)) << run;
    ASSERT_NO_FATAL_FAILURE(ExpectOwnParents(tree)) << run;
    const auto heirs = std::ranges::count(tree.Nodes, TreeNode::Role::Heir, &TreeNode::What);
    ASSERT_EQ(static_cast<std::size_t>(heirs), alive);
    ASSERT_EQ(tree.Nodes[0].What, TreeNode::Role::Deceased);
    for (const TreeExclusion& exclusion : tree.Exclusions)
      ASSERT_NO_FATAL_FAILURE(ExpectLeads(tree, exclusion)) << run;
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
