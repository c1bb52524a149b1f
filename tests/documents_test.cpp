// The documents and the guides tell the law with the program's own figures and the verses letter for letter.
// Here every worked case is typed into the Case Study screen again, and every verse held against its data.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "Source.h"
#include "support/CasePlayer.h"

namespace qismora {

namespace {

using documents::Block;
using documents::BlockKind;
using documents::ReadCases;
using documents::ReadSource;
using documents::WorkedCase;

const std::string Folder = DOCUMENTS_FOLDER;

const std::vector<std::string> Sources = {"rules",      "history",   "development", "schools",
                                          "references", "relations", "verses"};

TEST(Documents, TheWorkedCasesAreTheProgramsOwn) {
  int cases = 0;
  for (const std::string& name : Sources) {
    for (const Block& block : ReadSource(Folder + "/" + name + ".md").Blocks) {
      if (block.Kind != BlockKind::Case) continue;
      ++cases;
      SCOPED_TRACE(name + ".md: " + block.Case.Title);
      testing::CasePlayer().Play(block.Case);
    }
  }
  EXPECT_GT(cases, 30);
}

TEST(Guides, TheWorkedCasesAreTheProgramsOwn) {
  for (const char* name : {"guide.md", "peculiarities.md"}) {
    const std::vector<WorkedCase> cases = ReadCases(std::string(GUIDES_FOLDER "/") + name);
    EXPECT_FALSE(cases.empty());
    for (const WorkedCase& worked : cases) {
      SCOPED_TRACE(std::string(name) + ": " + worked.Title);
      testing::CasePlayer().Play(worked);
    }
  }
}

/// The verses of the data, each as "sura:number Arabic".
std::vector<std::string> VersesOfTheData() {
  std::ifstream in(Folder + "/quran-verses.json");
  std::vector<std::string> verses;
  std::string place;
  for (std::string line; std::getline(in, line);) {
    const std::size_t colon = line.find("\": ");
    if (colon == std::string::npos) continue;
    const std::string key = line.substr(line.find('"') + 1, colon - line.find('"') - 1);
    std::string value = line.substr(colon + 3);
    while (!value.empty() && (value.back() == ',' || value.back() == '\r')) value.pop_back();
    if (key == "surah") place = value + ":";
    if (key == "verse") place += value + " ";
    if (key == "arabic") verses.push_back(place + value.substr(1, value.size() - 2));
  }
  return verses;
}

TEST(Documents, TheVersesAreQuotedLetterForLetter) {
  std::vector<std::string> quoted;
  for (const Block& block : ReadSource(Folder + "/verses.md").Blocks) {
    if (block.Kind != BlockKind::VerseText) continue;
    std::string verse = std::to_string(block.Ayah.Surah);
    verse.append(":").append(std::to_string(block.Ayah.Number)).append(" ").append(block.Ayah.Arabic);
    quoted.push_back(verse);
  }
  std::vector<std::string> data = VersesOfTheData();
  ASSERT_EQ(data.size(), 21U);
  std::sort(quoted.begin(), quoted.end());
  std::sort(data.begin(), data.end());
  EXPECT_EQ(quoted, data);
}

TEST(Documents, ASourceThatCannotBeReadNamesItsLine) {
  const std::string head = "title: T\nfile: T.pdf\n\n";
  const std::vector<std::pair<std::string, std::string>> faults = {
      {"title: T\n\nA document without a file.\n", "line 2"},
      {head + "| a | b |\n|---|---|\n| one cell |\n", "line 6"},
      {head + "```case\nWithout an end\nSons = 1\n", "line 7"},
      {head + "```case\nTitle\nSons: 1\nResiduaries:\nx\n```\n", "Sons: 1"},
      {head + "{picture family}\n", "line 4"}};
  for (const auto& [text, named] : faults) {
    SCOPED_TRACE(text);
    try {
      documents::ParseSource(text);
      ADD_FAILURE() << "it was read";
    } catch (const std::runtime_error& error) {
      EXPECT_NE(std::string(error.what()).find(named), std::string::npos) << error.what();
    }
  }
}

}  // namespace

}  // namespace qismora
