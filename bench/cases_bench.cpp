// Measures the speed of a case on a form without windows, and the memory before and after a million cases.
//   qismora_bench --count NAME    runs one command for callgrind, which counts the instructions of Counted

#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>

#include "aulradd/AulRadd.h"
#include "reports/ReportRuns.h"
#include "residue/Residuaries.h"
#include "support/Memory.h"
#include "support/ScreenFixture.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::ResidentKilobytes;
using testing::ScreenFixture;

/// A wife, two daughters, father and mother, a full sister and a uterine brother.
void TypeSevenHeirs(ScreenFixture& played) {
  played.TypeEstate("24000");
  for (const int field : {1, 13, 16, 23, 33}) played.Type(field, "1");
  played.Type(3, "2");
}

/// The same family without the father: the estate suffices, so that no message box is shown.
void TypeSixHeirs(ScreenFixture& played) {
  TypeSevenHeirs(played);
  played.Type(13, "0");
}

/// Thirteen kinds of heir, most of them excluded by the son.
void TypeThirteenHeirs(ScreenFixture& played) {
  played.TypeEstate("24000");
  for (const int field : {1, 2, 3, 5, 7, 13, 16, 17, 22, 23, 30, 31, 32, 33}) played.Type(field, "1");
}

void PressResiduaries(ScreenFixture& played) { played.Study->Residuaries_Click(); }

void DoubleClickAllHeirs(ScreenFixture& played) {
  for (const int heir : {1, 3, 13, 16, 23, 33}) played.Study->Label1_DblClick(heir);
}

void MakeFullReport(ScreenFixture& played) {
  played.Record.ReportToFile = true;
  RunSelectedReport(played.Record, *played.Study);
  RunResiduaries(played.Record, *played.Study);
  RunAulRadd(played.Record, *played.Study);
}

void SaveFullReport(ScreenFixture& played) {
  if (fs::exists("/dev/shm")) setenv("TMPDIR", "/dev/shm", 1);
  static const testing::TemporaryFolder folder;
  played.Fakes.Folders.Folder = folder.Path();
  played.Fakes.Boxes.Answers = {Answer::Yes};
  played.Study->CreateSaveFullReport_Click();
}

struct Command {
  const char* Name;
  void (*Type)(ScreenFixture&);
  void (*Press)(ScreenFixture&);
};

constexpr Command commands[] = {
    {"Residuaries", TypeSevenHeirs, PressResiduaries},
    {"ResiduariesWithoutMessage", TypeSixHeirs, PressResiduaries},
    {"DoubleClicksOnSixHeirs", TypeSevenHeirs, DoubleClickAllHeirs},
    {"SelectedReport", TypeThirteenHeirs,
     [](ScreenFixture& played) { played.Study->SelectedReport_Click(); }},
    {"FullReportWithoutFiles", TypeSevenHeirs, MakeFullReport},
    {"FullReportInMemoryFiles", TypeSevenHeirs, SaveFullReport},
};

void Time(benchmark::State& state, const Command& command) {
  ScreenFixture played;
  command.Type(played);
  for (auto _ : state) {
    command.Press(played);
    played.Fakes.Boxes.Shown.clear();
  }
}

[[gnu::noinline]] void Counted(const Command& command, ScreenFixture& played) { command.Press(played); }

/// Runs the command 100 times, so that the count is divided by 100. The first run fills the caches of the
/// allocator and is not counted.
void Count(const std::string& name) {
  for (const Command& command : commands) {
    if (command.Name != name) continue;
    ScreenFixture played;
    command.Type(played);
    command.Press(played);
    for (int i = 0; i < 100; ++i) {
      played.Fakes.Boxes.Shown.clear();
      Counted(command, played);
    }
  }
}

void PrintMemoryOverAMillionCases() {
  ScreenFixture played;
  TypeSevenHeirs(played);
  const auto play = [&](int cases) {
    for (int i = 0; i < cases; ++i) {
      played.Type(3, i % 2 == 0 ? "2" : "3");
      played.Study->Residuaries_Click();
      played.Fakes.Boxes.Shown.clear();
    }
  };
  play(1000);
  const long before = ResidentKilobytes();
  play(1000000);
  std::cout << "memory over one million cases: " << before << " KiB before, " << ResidentKilobytes()
            << " KiB after\n";
}

}  // namespace
}  // namespace qismora

int main(int argc, char** argv) {
  using namespace qismora;
  if (argc == 3 && std::string(argv[1]) == "--count") {
    Count(argv[2]);
    return 0;
  }
  for (const Command& command : commands) {
    benchmark::RegisterBenchmark(command.Name, Time, command)->Unit(benchmark::kMicrosecond);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::AddCustomContext("compiler", __VERSION__);
  benchmark::RunSpecifiedBenchmarks();
  PrintMemoryOverAMillionCases();
  return 0;
}
