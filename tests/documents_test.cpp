// The documents tell the law with the program's own figures and the verses letter for letter. Here every
// worked case is typed into the Case Study screen again, and every verse held against its data.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "Source.h"
#include "screens/CaseStudy.h"
#include "support/MemoryOutside.h"

namespace qismora {

namespace {

using documents::Block;
using documents::BlockKind;
using documents::ReadSource;
using documents::Trim;
using documents::WorkedCase;

const std::string Folder = DOCUMENTS_FOLDER;

const std::vector<std::string> Sources = {"rules",      "history",   "development", "schools",
                                          "references", "relations", "verses"};

/// The boxes by their captions; box 1 bears the caption of either spouse.
std::map<std::string, int> BoxesByCaption(const CaseStudy& screen) {
  std::map<std::string, int> boxes = {{"Wives", 1}, {"Husband", 1}};
  for (const int box : HeirBoxes) boxes[screen.Label1(box).Caption.Get()] = box;
  for (const int box : {GrossEstateBox, FuneralBox, DebtsBox, WillsBox}) {
    boxes[screen.Label1(box).Caption.Get()] = box;
  }
  return boxes;
}

std::map<std::string, int> ChecksByCaption(const CaseStudy& screen) {
  std::map<std::string, int> checks;
  for (int i = 0; i < 12; ++i) checks[screen.Check1(i).Caption.Get()] = i;
  return checks;
}

/// Plays worked cases, each on a screen of its own.
class Player {
 public:
  explicit Player(const WorkedCase& worked) {
    const std::map<std::string, int> boxes = BoxesByCaption(screen_);
    const std::map<std::string, int> checks = ChecksByCaption(screen_);
    for (const int box : {GrossEstateBox, FuneralBox, DebtsBox, WillsBox}) screen_.Text1(box).Text = "0";
    for (const auto& [caption, value] : worked.Boxes) {
      if (caption == "Deceased") {
        screen_.Combo1.ListIndex = value == "Female" ? Female : Male;
      } else if (const auto box = boxes.find(caption); box != boxes.end()) {
        screen_.Text1(box->second).Text = value;
      } else if (const auto check = checks.find(caption); check != checks.end() && value == "ticked") {
        screen_.Check1(check->second).Value = 1;
      } else {
        ADD_FAILURE() << "the screen has no " << caption << " = " << value;
      }
    }
    screen_.Resid_Click();
  }

  std::vector<std::string> Residuaries() const { return Figures(); }

  std::vector<std::string> AulRadd() {
    screen_.AulRadd_Click();
    return Figures();
  }

 private:
  /// The lines of the long text between its introduction and its footer.
  std::vector<std::string> Figures() const {
    std::istringstream in(screen_.Text3.Text.Get());
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
      line = Trim(line);
      if (line.rfind("©", 0) == 0) break;
      if (line.rfind("The numbers shown", 0) != 0 && !line.empty()) lines.push_back(line);
    }
    return lines;
  }

  testing::MemoryWorld world_;
  CaseRecord record_;
  CaseStudy screen_{record_, world_.Ports, 0};
};

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\n");
  return text;
}

/// A long line may be cut short in the document with an ellipsis.
void Compare(const std::vector<std::string>& told, std::vector<std::string> played) {
  for (std::size_t i = 0; i < std::min(told.size(), played.size()); ++i) {
    const std::size_t ellipsis = told[i].find("…");
    if (ellipsis != std::string::npos) played[i] = played[i].substr(0, ellipsis) + "…";
  }
  EXPECT_EQ(Joined(told), Joined(played));
}

TEST(Documents, TheWorkedCasesAreTheProgramsOwn) {
  int cases = 0;
  for (const std::string& name : Sources) {
    for (const Block& block : ReadSource(Folder + "/" + name + ".md").Blocks) {
      if (block.Kind != BlockKind::Case) continue;
      ++cases;
      SCOPED_TRACE(name + ".md: " + block.Case.Title);
      Player player(block.Case);
      if (!block.Case.Residuaries.empty()) Compare(block.Case.Residuaries, player.Residuaries());
      if (!block.Case.AulRadd.empty()) Compare(block.Case.AulRadd, player.AulRadd());
    }
  }
  EXPECT_GT(cases, 30);
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
