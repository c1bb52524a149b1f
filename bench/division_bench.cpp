// Measures the speed of a division, with and without its reasons in words.

#include <benchmark/benchmark.h>

#include <string>

#include "casefile/HeirFields.h"
#include "division/Differences.h"
#include "faraid/Amounts.h"

namespace faraid {
namespace {

using enum Kind;

/// A wife, two daughters, mother, father, a full sister, a full brother and a uterine brother: Awl, and three
/// who are excluded.
Family SevenKinds() {
  Family family;
  for (const Kind kind : {Wives, Mother, Father, FullSisters, FullBrothers, UterineBrothers})
    family[kind] = 1;
  family[Daughters] = 2;
  return family;
}

/// A wife, the mother, the grandfather, a full sister, consanguine and uterine siblings.
Family GrandfatherAndSiblings() {
  Family family;
  for (const Kind kind : {Wives, Mother, Grandfather, FullSisters, ConsanguineSisters}) family[kind] = 1;
  family[ConsanguineBrothers] = 2;
  family[UterineSisters] = 2;
  return family;
}

constexpr Hundredths net = 240'000'00;
constexpr School schools[] = {School::Hanafi, School::Maliki, School::Shafii, School::Hanbali};

void DivideWithReasons(School school) {
  static const Family family = SevenKinds();
  const Division division = Divide(family, school);
  benchmark::DoNotOptimize(AmountsOf(division, net));
  for (const Row& row : division.Rows) benchmark::DoNotOptimize(English(row.Why));
}

void DivisionInOneSchool(benchmark::State& state) {
  for (auto _ : state) DivideWithReasons(School::Hanafi);
}
BENCHMARK(DivisionInOneSchool)->Unit(benchmark::kMicrosecond);

void DivisionInFourSchools(benchmark::State& state) {
  for (auto _ : state) {
    for (const School school : schools) DivideWithReasons(school);
  }
}
BENCHMARK(DivisionInFourSchools)->Unit(benchmark::kMicrosecond);

/// The rows alone, as for a long table of families.
void DivisionWithoutSentences(benchmark::State& state) {
  const Family family = SevenKinds();
  for (auto _ : state) benchmark::DoNotOptimize(AmountsOf(Divide(family, School::Hanafi), net));
}
BENCHMARK(DivisionWithoutSentences)->Unit(benchmark::kMicrosecond);

/// The grandfather shares with siblings, counting the consanguine ones against him.
void DivisionBesideAGrandfather(benchmark::State& state) {
  const Family family = GrandfatherAndSiblings();
  for (auto _ : state) benchmark::DoNotOptimize(AmountsOf(Divide(family, School::Shafii), net));
}
BENCHMARK(DivisionBesideAGrandfather)->Unit(benchmark::kMicrosecond);

/// What the window does at each change: it reads the fields, divides with reasons, runs the commands and
/// compares.
void DivisionComparedWithCommands(benchmark::State& state) {
  using namespace qismora;
  const Family family = SevenKinds();
  CaseTexts texts;
  for (const HeirField& field : HeirFields) {
    if (field.Heir == Husband) continue;
    texts.Fields[static_cast<std::size_t>(field.Index)] = std::to_string(family[field.Heir]);
  }
  texts.Fields[GrossEstateField] = "240000";
  for (auto _ : state) {
    const DivisionInput input = ReadDivisionInput(texts);
    DivideWithReasons(School::Hanafi);
    benchmark::DoNotOptimize(Compare(input, OwnAnswerOf(texts), School::Hanafi));
  }
}
BENCHMARK(DivisionComparedWithCommands)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace faraid
