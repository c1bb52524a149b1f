// The documents and the guides explain the law with the program's own figures. Every worked case in them is
// typed into the Case Study screen again, and every line compared.

#include <gtest/gtest.h>

#include <filesystem>

#include "support/CasePlayer.h"

namespace qismora {

namespace {

TEST(Documents, TheWorkedCasesAreTheProgramsOwn) {
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

}  // namespace

}  // namespace qismora
