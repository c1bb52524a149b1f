// The documents and the guides explain the law with figures of the program. Every worked case in them is
// typed into the Case Study screen, and every line compared.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "division/Differences.h"
#include "support/CasePlayer.h"

namespace qismora {

namespace {

TEST(Documents, TheProgramAnswersTheWorkedCasesAsPrinted) {
  int cases = 0;
  for (const char* folder : {PROJECT_FOLDER "/documents", PROJECT_FOLDER "/docs"}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() != ".md") continue;
      for (const documents::WorkedCase& worked : documents::ReadCases(entry.path().string())) {
        SCOPED_TRACE(entry.path().filename().string() + ": " + worked.Title);
        testing::CasePlayer().Play(worked);
        ++cases;
      }
    }
  }
  EXPECT_GT(cases, 90);
}

/// Whether the case differs in this kind from the Hanafi division, which the commands follow, or from
/// another.
bool Shows(const documents::WorkedCase& worked, const DifferenceKind& kind) {
  const CaseTexts texts = testing::CasePlayer().Type(worked);
  const auto names = [&](faraid::School school) {
    const Differences differences = Compare(ReadDivisionInput(texts), OwnAnswerOf(texts), school);
    return std::ranges::find(differences.Kinds, &kind) != differences.Kinds.end();
  };
  return names(faraid::School::Hanafi) || names(faraid::School::Shafii);
}

TEST(Documents, EveryKindOfDifferenceIsShownInTheSectionThatItNames) {
  const auto cases = documents::ReadCases(PROJECT_FOLDER "/docs/peculiarities.md");
  for (const DifferenceKind& kind : DifferenceKinds()) {
    EXPECT_TRUE(std::ranges::any_of(cases,
                                    [&](const documents::WorkedCase& worked) {
                                      return worked.Section == kind.Section && Shows(worked, kind);
                                    }))
        << kind.Section << ": " << kind.Sentence;
  }
}

}  // namespace

}  // namespace qismora
