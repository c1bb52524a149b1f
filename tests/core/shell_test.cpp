#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <utility>

#include "base/Files.h"
#include "screens/InhMain.h"
#include "screens/ProgramInfo.h"
#include "screens/QurLaws.h"
#include "screens/Zummy.h"
#include "shell/Documents.h"
#include "support/FakePorts.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

using testing::FakePorts;
using testing::TemporaryFolder;

constexpr const char* lowerImage = "Islamic Laws of Inheritance/ImageSetting/LowerImage";
constexpr const char* lblPressed = "Islamic Laws of Inheritance/LanguageSetting/LblPressed";
constexpr const char* timesExecuted = "Qismora/Inheritance/TimesExecuted";

/// A main menu that records which forms it opens, in order.
struct Menu {
  Menu() { Fakes.Folders.Folder = Folder.Path(); }

  InhMain& Open() {
    Form = std::make_unique<InhMain>(Record, Shell, Fakes.Ports);
    const auto note = [this](const char* way) { return [this, way] { Ways.emplace_back(way); }; };
    Form->ShowQurLaws = note("QurLaws");
    Form->FocusText5OfQurLaws = note("Text5");
    Form->ShowCaseStudy = note("CaseStudy");
    Form->ShowZummy = note("Zummy");
    Form->ShowSession = note("Session");
    Form->ShowCatalogue = note("prginfo");
    Form->Hide = note("hidden");
    return *Form;
  }

  int PictureShown() const {
    int shown = -1;
    for (int i = 0; i < Form->Image3.Size; ++i) {
      if (Form->Image3(i).Visible) shown = shown < 0 ? i : 99;
    }
    return shown;
  }

  /// The names of the documents that were opened since the last call.
  std::vector<std::string> Opened() {
    std::vector<std::string> names;
    for (const std::string& path : std::exchange(Fakes.Viewer.Opened, {})) {
      EXPECT_TRUE(path.starts_with(Folder.File("documents/"))) << path;
      names.push_back(std::filesystem::path(path).filename().string());
    }
    return names;
  }

  void PutVideo(const char* name, int length) const {
    std::ofstream(Folder.File(name)).put('\0');
    std::filesystem::resize_file(Folder.File(name), static_cast<std::uintmax_t>(length));
  }

  void PutDocuments() const {
    std::filesystem::create_directory(Folder.File("documents"));
    for (const Document& document : Documents) {
      std::ofstream(Folder.File(std::string("documents/") + document.FileName)) << "%PDF";
    }
  }

  TemporaryFolder Folder;
  FakePorts Fakes;
  CaseRecord Record;
  ShellRecord Shell;
  std::unique_ptr<InhMain> Form;
  std::vector<std::string> Ways;
};

TEST(MainMenu, AFirstRunStartsWithNothingSaved) {
  Menu menu;
  const InhMain& form = menu.Open();
  EXPECT_EQ(menu.PictureShown(), 1);
  EXPECT_EQ(menu.Record.ExecCount, 0);
  EXPECT_EQ(menu.Shell.SavedLanguage, 0);
  EXPECT_EQ(form.Label22.Caption.Get(), "1");
  EXPECT_FALSE(form.Text1.Visible);
  EXPECT_TRUE(form.Option1(7).Value);
  EXPECT_FALSE(form.Option1(7).Visible);
}

TEST(MainMenu, SettingsAreReadByTheirLeadingDigits) {
  Menu menu;
  menu.Fakes.Settings.Values = {{lowerImage, "4abc"}, {lblPressed, " 2"}, {timesExecuted, "123 times"}};
  menu.Open();
  EXPECT_EQ(menu.PictureShown(), 5);
  EXPECT_EQ(menu.Shell.SavedLanguage, 2);
  EXPECT_EQ(menu.Record.ExecCount, 123);
}

TEST(MainMenu, ADamagedSettingEndsTheLoadQuietly) {
  for (const char* damaged : {"6", "-1", "99999999999"}) {
    Menu menu;
    menu.Fakes.Settings.Values = {{lowerImage, damaged}, {timesExecuted, "5"}};
    const InhMain& form = menu.Open();
    EXPECT_TRUE(menu.Fakes.Boxes.Shown.empty());
    EXPECT_EQ(menu.Record.ExecCount, 5) << "what was read before stays";
    EXPECT_EQ(form.Label22.Caption.Get(), "") << "the session was not begun";
    EXPECT_EQ(menu.Fakes.Settings.Values[lowerImage], damaged);
  }
}

TEST(MainMenu, EachClickShowsTheNextPictureAndKeepsTheClickedOne) {
  Menu menu;
  InhMain& form = menu.Open();
  for (int i = 0; i < form.Image3.Size; ++i) {
    form.Image3_Click(i);
    EXPECT_EQ(menu.PictureShown(), (i + 1) % 6);
    EXPECT_EQ(menu.Fakes.Settings.Values[lowerImage], std::to_string(i));
    Menu next;
    next.Fakes.Settings.Values = menu.Fakes.Settings.Values;
    next.Open();
    EXPECT_EQ(next.PictureShown(), menu.PictureShown());
  }
}

TEST(MainMenu, EachEntryOpensItsFormOrDocument) {
  const std::map<int, std::vector<std::string>> ways = {{0, {"QurLaws", "Text5"}},
                                                        {3, {"QurLaws"}},
                                                        {5, {"QurLaws"}},
                                                        {6, {"CaseStudy"}},
                                                        {8, {"QurLaws", "Text5"}}};
  const std::map<int, std::string> files = {
      {1, "RULES OF DISTRIBUTION.pdf"}, {2, "Historical Background.pdf"}, {4, "Origin and Development.pdf"},
      {9, "Schools of Thoughts.pdf"},   {10, "References.pdf"},           {11, "RelationsEU.pdf"},
      {12, "Aayaat -e- Meeraas.pdf"}};
  Menu menu;
  InhMain& form = menu.Open();
  menu.PutDocuments();
  for (int i = 0; i < form.Option1.Size; ++i) {
    if (i == 7) continue;
    menu.Ways.clear();
    form.Option1_Click(i);
    EXPECT_EQ(menu.Ways, ways.contains(i) ? ways.at(i) : std::vector<std::string>());
    EXPECT_EQ(menu.Opened(), files.contains(i) ? std::vector{files.at(i)} : std::vector<std::string>());
    EXPECT_EQ(menu.Shell.LawPage, i);
    EXPECT_TRUE(form.Option1(7).Value && !form.Option1(i).Value) << "the same entry can be chosen again";
    EXPECT_FALSE(form.ShowsWaitCursor);
  }
}

TEST(Documents, OpeningOneShowsItsPath) {
  Menu menu;
  const auto messageOf = [&](int number) {
    menu.Fakes.Boxes.Shown.clear();
    OpenDocument(number, menu.Fakes.Ports);
    EXPECT_EQ(menu.Fakes.Boxes.Shown.size(), 1U);
    return menu.Fakes.Boxes.Shown.front();
  };
  EXPECT_EQ(messageOf(4).Style, BoxStyle::Warning) << "a missing file";
  EXPECT_TRUE(menu.Fakes.Viewer.Opened.empty());
  menu.PutDocuments();
  EXPECT_EQ(messageOf(4).Style, BoxStyle::Information);
  menu.Fakes.Viewer.HasViewer = false;
  EXPECT_EQ(messageOf(4).Style, BoxStyle::Warning) << "no viewer";
  EXPECT_TRUE(messageOf(6).Text.ends_with(menu.Folder.File("documents/RelationsEU.pdf")));
  EXPECT_THROW(OpenDocument(8, menu.Fakes.Ports), Failure);
}

TEST(Zummy, EachButtonOpensItsDocument) {
  Menu menu;
  menu.PutDocuments();
  Zummy form(menu.Record, menu.Shell, menu.Fakes.Ports);
  for (const ZummyButton& button : ZummyButtons) (form.*button.Click)();
  EXPECT_EQ(menu.Opened(),
            (std::vector<std::string>{"Historical Background.pdf", "Historical Background.pdf",
                                      "Origin and Development.pdf", "Schools of Thoughts.pdf",
                                      "RULES OF DISTRIBUTION.pdf", "References.pdf", "RelationsEU.pdf"}));
}

TEST(Zummy, TheMultipleIsTakenOfWhatTheLastCaseLeft) {
  Menu menu;
  Zummy form(menu.Record, menu.Shell, menu.Fakes.Ports);
  menu.Record.LcmCount = Integer(2);
  menu.Record.LcmDen(0) = Integer(6);
  menu.Record.LcmDen(1) = Integer(4);
  form.cmdLCM_Click();
  EXPECT_EQ(menu.Record.LcmResult, 12);
  EXPECT_TRUE(menu.Fakes.Boxes.Shown.empty());
  menu.Record.LcmCount = Integer(12);
  form.cmdLCM_Click();
  ASSERT_EQ(menu.Fakes.Boxes.Shown.size(), 1U);
  EXPECT_EQ(menu.Fakes.Boxes.Shown[0].Text, "9\r\nSubscript out of range");
}

TEST(LawPages, ANumberWithoutAPageLeavesTheFormAsItIs) {
  FakePorts fakes;
  ShellRecord shell;
  shell.LawPage = Integer(5);
  QurLaws form(shell, fakes.Boxes);
  const std::string text = form.Text2.Text;
  shell.LawPage = Integer(4);
  form.Form_Load();
  EXPECT_EQ(form.Text2.Text.Get(), text);
  EXPECT_EQ(form.StatusBar1.Caption.Get(), "EXCLUSION RULES OF INHERITANCE");
}

TEST(Animation, TwoVideosTakeTurns) {
  Menu menu;
  menu.PutVideo("brindhaven.avi", FirstVideoLength);
  menu.PutVideo("brindhaven1.avi", SecondVideoLength);
  InhMain& form = menu.Open();
  const std::string first = menu.Folder.File("brindhaven.avi");
  const std::string second = menu.Folder.File("brindhaven1.avi");
  menu.Fakes.Player.EndOfPlay();
  menu.Fakes.Player.EndOfPlay();
  form.Frame5_Click();
  form.Frame5_Click();
  form.Frame5_DblClick();
  EXPECT_EQ(menu.Fakes.Player.Played, (std::vector<std::string>{second, first, first, second, first, first}));
}

TEST(Animation, AFileOfAnotherLengthIsNotPlayedAndAMissingOneIgnored) {
  Menu menu;
  menu.PutVideo("brindhaven1.avi", SecondVideoLength + 1);
  InhMain& form = menu.Open();
  form.Frame5_Click();
  form.Frame5_DblClick();
  menu.Fakes.Player.EndOfPlay();
  EXPECT_TRUE(menu.Fakes.Player.Played.empty());
  EXPECT_TRUE(menu.Fakes.Boxes.Shown.empty());
  EXPECT_EQ(form.Label22.Caption.Get(), "1");
}

TEST(Catalogue, MemoryIsReadAtEachOpening) {
  FakePorts fakes;
  fakes.Memory.Figures = {8.0 * 1024 * 1024 * 1024, 1024.0 * 1024, 30.6 * 1024 * 1024};
  prginfo form({"1.0", {"Qt 6", "zlib"}}, fakes.Memory);
  EXPECT_EQ(form.TotalMemory.Get(), "8192 MiB");
  EXPECT_EQ(form.UsedMemory.Get(), "31 MiB");
  fakes.Memory.Figures.Free = 0;
  form.Refresh();
  EXPECT_EQ(form.FreeMemory.Get(), "0 MiB");
  EXPECT_EQ(form.Rows.back().Text, "Qt 6, zlib");
}

}  // namespace
}  // namespace qismora
