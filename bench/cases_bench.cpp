// How fast a case is on a form without windows, and that a million cases do not grow.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>

#include "aulradd/AulRadd.h"
#include "reports/ReportRuns.h"
#include "residue/Residuaries.h"
#include "support/MemoryCase.h"
#include "support/TemporaryFolder.h"

namespace qismora {
namespace {

namespace fs = std::filesystem;
using testing::MemoryCase;

/// A wife, two daughters, father and mother, a full sister and a uterine brother.
struct SevenHeirs : MemoryCase {
  SevenHeirs() {
    TypeEstate("24000");
    for (const int box : {1, 13, 16, 23, 33}) Type(box, "1");
    Type(3, "2");
  }
};

void Residuaries(benchmark::State& state) {
  SevenHeirs played;
  for (auto _ : state) {
    played.Study->Residuaries_Click();
    played.World.Boxes.Shown.clear();
  }
}
BENCHMARK(Residuaries)->Unit(benchmark::kMicrosecond);

void DoubleClickOnAnHeir(benchmark::State& state) {
  SevenHeirs played;
  const int heirs[] = {1, 3, 13, 16, 23, 33};
  std::size_t next = 0;
  for (auto _ : state) {
    played.Study->Label1_DblClick(heirs[next++ % std::size(heirs)]);
    played.World.Boxes.Shown.clear();
  }
}
BENCHMARK(DoubleClickOnAnHeir)->Unit(benchmark::kMicrosecond);

void FullReportWithoutFiles(benchmark::State& state) {
  SevenHeirs played;
  played.Record.ReportToFile = true;
  for (auto _ : state) {
    RunSelectedReport(played.Record, *played.Study);
    RunResiduaries(played.Record, *played.Study);
    RunAulRadd(played.Record, *played.Study);
    played.World.Boxes.Shown.clear();
  }
}
BENCHMARK(FullReportWithoutFiles)->Unit(benchmark::kMicrosecond);

void FullReportInMemoryFiles(benchmark::State& state) {
  SevenHeirs played;
  if (fs::exists("/dev/shm")) setenv("TMPDIR", "/dev/shm", 1);
  const testing::TemporaryFolder folder;
  played.World.Folders.Folder = folder.Path();
  for (auto _ : state) {
    played.World.Boxes.Answers = {Answer::Yes};
    played.Study->CreateSaveFullReport_Click();
    played.World.Boxes.Shown.clear();
  }
}
BENCHMARK(FullReportInMemoryFiles)->Unit(benchmark::kMicrosecond);

/// The selected report of so many kinds of heir, each excluded by the son who stands beside them.
void SelectedReport(benchmark::State& state) {
  MemoryCase played;
  played.TypeEstate("24000");
  played.Type(2, "1");
  const int boxes[] = {1, 3, 5, 7, 13, 16, 17, 22, 23, 30, 31, 32, 33};
  for (int i = 0; i < state.range(0); ++i) played.Type(boxes[i], "1");
  for (auto _ : state) {
    played.Study->SelectedReport_Click();
    played.World.Boxes.Shown.clear();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(SelectedReport)->DenseRange(1, 13, 3)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);

long ResidentKilobytes() {
  std::ifstream statm("/proc/self/statm");
  long size = 0;
  long resident = 0;
  statm >> size >> resident;
  return resident * sysconf(_SC_PAGESIZE) / 1024;
}

void TellGrowthOverAMillionCases() {
  SevenHeirs played;
  const auto play = [&](int cases) {
    for (int i = 0; i < cases; ++i) {
      played.Type(3, i % 2 == 0 ? "2" : "3");
      played.Study->Residuaries_Click();
      played.World.Boxes.Shown.clear();
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
  benchmark::Initialize(&argc, argv);
  benchmark::AddCustomContext("compiler", __VERSION__);
  benchmark::RunSpecifiedBenchmarks();
  qismora::TellGrowthOverAMillionCases();
  return 0;
}
