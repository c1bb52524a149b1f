#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "base/Failure.h"
#include "casefile/CaseFile.h"
#include "support/ScreenFixture.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

using testing::FakeFolders;
using testing::ScreenFixture;
using testing::TemporaryFolder;

const std::string& FieldOf(const CaseFileReading& reading, int index) {
  return reading.Case.Fields[static_cast<std::size_t>(index)];
}

TEST(CaseFile, IsReadAsItIsWrittenByHand) {
  const CaseFileReading reading = ParseCaseFile(
      "\xEF\xBB\xBF# from the notary\r\n"
      "Deceased = Abdullah\r\n"
      "\r\n"
      "  wives=1\n"
      "Mother’s Mother = 1\n"
      "Cons. Uncle's SS son = ticked\n"
      "Gross Estate =  1,000 \n"
      "Deceased = Male\n"
      "Heirs consent = yes");
  ASSERT_FALSE(reading.Fault);
  EXPECT_EQ(FieldOf(reading, NameField), "Abdullah");
  EXPECT_EQ(FieldOf(reading, 1), "1");
  EXPECT_EQ(FieldOf(reading, 17), "1");
  EXPECT_EQ(FieldOf(reading, GrossEstateField), "1,000");
  EXPECT_EQ(FieldOf(reading, DebtsField), "0");
  EXPECT_TRUE(reading.Case.ClassII[11]);
  EXPECT_TRUE(reading.Case.HeirsConsent);
  EXPECT_EQ(reading.Case.Gender, Male);
}

TEST(CaseFile, IsWrittenInTheOrderOfTheScreenWithoutAbsentHeirs) {
  CaseTexts texts;
  texts.Gender = Female;
  texts.Fields[1] = "1";
  texts.Fields[33] = "2";
  texts.Fields[2] = "abc";
  texts.Fields[3] = "";
  texts.Fields[GrossEstateField] = "24000";
  texts.ClassII[4] = true;
  EXPECT_EQ(WriteCaseFile(texts),
            "Qismora case = 1\nName =\nDeceased = Female\nHusband = 1\nSons = abc\nUterine Brothers = 2\n"
            "Full Uncle = ticked\nGross Estate = 24000\nFuneral exp. = 0\nDebts = 0\nWill(s) = 0\n");
}

// The text of every field is read back as it was, so that nothing is lost by saving.
TEST(CaseFile, KeepsEveryTextOfAField) {
  for (const std::string& text :
       {std::string("abc"), std::string(" 1 "), std::string("1\t2\r\n3"), std::string("\"1\" and \\"),
        std::string("#"), std::string("a = b"), std::string("\0\x7F\x01", 3), std::string("\u0085\u009F"),
        std::string("وفات عبداللہ"), std::string(100'000, 'x'), std::string("-5"), std::string("Male")}) {
    for (const int gender : {Male, Female}) {
      CaseTexts texts;
      texts.Gender = gender;
      texts.HeirsConsent = gender == Female;
      for (const int index : {1, 2, 33, NameField, GrossEstateField}) {
        texts.Fields[static_cast<std::size_t>(index)] = text;
      }
      const CaseFileReading reading = ParseCaseFile(WriteCaseFile(texts));
      ASSERT_FALSE(reading.Fault) << text.substr(0, 50);
      EXPECT_EQ(reading.Case, texts) << text.substr(0, 50);
    }
  }
}

TEST(CaseFile, ADamagedFileIsRefusedWithItsLine) {
  struct Damage {
    std::string Content;
    int Line;
    std::string Sentence;
  };
  for (const Damage& damage : std::vector<Damage>{
           {"Sons = 1\nSons 2\n", 2, "There is no equals sign in \"Sons 2\"."},
           {"\n#\nDaugthers = 1\n", 3, "\"Daugthers\" is not a caption of the Case Study screen."},
           {"Sons = 1\nsons = 1\n", 2, "\"sons\" is given twice."},
           {"Deceased = Zayd\nName = Umar\n", 2, "\"Name\" is given twice."},
           {"Sons = 1\nName = \xFF\n", 2, "The text is not UTF-8."},
           {"Name = \xED\xA0\x80\n", 1, "The text is not UTF-8."},
           {std::string("Sons = 1\0\n", 10), 1, "There is a control character in the line."},
           {"Name = a\tb\n", 1, "There is a control character in the line."},
           {"Sons = 1\rDaughters = 1\n", 1, "There is a control character in the line."},
           {"Name = \"a\\q\"\n", 1, "\"\"a\\q\"\" is not quoted correctly."},
           {"Name = \"a\" b\n", 1, "\"\"a\" b\" is not quoted correctly."},
           {"Full Uncle = 2\n", 1, "\"Full Uncle\" takes the word ticked, or 0."},
           {"Heirs consent = perhaps\n", 1, "\"Heirs consent\" takes yes or no."},
           {"Sons = 1\nQismora case = 1\n", 2, "\"Qismora case\" is not a caption of the Case Study screen."},
           {"Qismora case = 0\n", 1, "\"0\" is not a version of case files."},
           {"Husband = 1\nSons = 1\nWives = 1\n", 3, "Both Wives and Husband are given."},
           {"Wives = 1\nDeceased = Female\n", 1, "Wives are given, but the deceased is female."},
           {"Deceased = Male\nHusband = 1\n", 2, "A husband is given, but the deceased is male."},
           {"Name = " + std::string(MostBytesOfCaseLine, 'x'), 1, "The line is too long."},
           {std::string(MostBytesOfCaseFile + 1, '\n'), 0, "The file is too large for a case."},
       }) {
    const CaseFileReading reading = ParseCaseFile(damage.Content);
    ASSERT_TRUE(reading.Fault) << damage.Sentence;
    EXPECT_EQ(reading.Fault->Line.Number, damage.Line) << damage.Sentence;
    EXPECT_EQ(English(reading.Fault->Fault, reading.Fault->Line.Text), damage.Sentence);
    EXPECT_EQ(reading.Case, CaseTexts());
  }
}

TEST(CaseFile, ANewerVersionMayHoldLinesThatAreNotKnown) {
  const CaseFileReading reading = ParseCaseFile("Qismora case = 2\nSons = 1\nUnborn = 1\nnote\nDebts = 5\n");
  ASSERT_FALSE(reading.Fault);
  EXPECT_EQ(FieldOf(reading, 2), "1");
  EXPECT_EQ(FieldOf(reading, DebtsField), "5");
  EXPECT_EQ(reading.Unknown, (std::vector<CaseLine>{{3, "Unborn = 1"}, {4, "note"}}));
  EXPECT_TRUE(ParseCaseFile("Qismora case = 2\nSons = 1\nSons = 2\n").Fault);
}

// Each byte of a file that is replaced, left out or doubled gives a case that is written and read back the
// same, or a fault that has a line.
TEST(CaseFile, NoDamageGoesUnnoticedOrBreaksTheReader) {
  CaseTexts texts;
  texts.Fields[NameField] = "عبداللہ\t";
  texts.Fields[2] = "\"2";
  texts.ClassII[11] = true;
  const std::string whole = WriteCaseFile(texts);
  std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): the same files in every run
  const std::string signs = "=\"\\x#\n\r\t\xFF\x80 0A";
  int refused = 0;
  for (int round = 0; round < 20'000; ++round) {
    std::string content = whole;
    for (auto damages = 1 + random() % 3; damages > 0; --damages) {
      const std::size_t at = random() % content.size();
      content.replace(at, random() % 2, random() % 3, signs[random() % signs.size()]);
    }
    const CaseFileReading reading = ParseCaseFile(content);
    if (reading.Fault) {
      ++refused;
      ASSERT_GE(reading.Fault->Line.Number, 1) << content;
    } else {
      const CaseFileReading again = ParseCaseFile(WriteCaseFile(reading.Case));
      ASSERT_FALSE(again.Fault) << content;
      for (const int heir : HeirFieldIndexes) {
        const std::string& text = FieldOf(reading, heir);
        ASSERT_EQ(FieldOf(again, heir), text.empty() ? "0" : text) << content;
      }
    }
  }
  EXPECT_GT(refused, 5'000);
  EXPECT_LT(refused, 20'000);
}

TEST(CaseFile, OpeningOneReplacesWhatIsTyped) {
  ScreenFixture played;
  played.Type(5, "3");
  played.Study->Check1(2).Value = 1;
  const CaseTexts texts = ParseCaseFile("Husband = 1\nSons = 2 x\nFull Uncle = ticked\nDebts = 7\n").Case;
  TypeIntoScreen(texts, *played.Study);
  EXPECT_EQ(played.Study->Label1(1).Caption.Get(), "Husband");
  EXPECT_EQ(ReadScreen(*played.Study, false), texts);
  EXPECT_TRUE(played.Fakes.Boxes.Shown.empty());
}

TEST(CaseFile, IsSavedAndOpened) {
  const TemporaryFolder folder;
  FakeFolders folders;
  CaseTexts texts;
  texts.Fields[2] = "1";
  SaveCaseFile(folders, folder.File("a.qismora"), texts);
  EXPECT_EQ(OpenCaseFile(folder.File("a.qismora")).Case, texts);

  std::filesystem::create_symlink("a.qismora", folder.File("link.qismora"));
  texts.Fields[2] = "2";
  SaveCaseFile(folders, folder.File("link.qismora"), texts);
  EXPECT_EQ(OpenCaseFile(folder.File("a.qismora")).Case, texts);
  EXPECT_EQ(OpenCaseFile(folder.File("link.qismora")).Case, texts);

  EXPECT_THROW(OpenCaseFile(folder.File("b.qismora")), Failure);
  EXPECT_THROW(OpenCaseFile(folder.Path()), Failure);
  EXPECT_THROW(SaveCaseFile(folders, folder.File("no/a.qismora"), texts), Failure);
  std::ofstream(folder.File("large.qismora")) << std::string(MostBytesOfCaseFile + 1, '\n');
  EXPECT_EQ(OpenCaseFile(folder.File("large.qismora")).Fault->Fault, CaseFault::FileTooLarge);
}

}  // namespace
}  // namespace qismora
