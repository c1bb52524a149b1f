// How often the commands of Case Study and the exact division agree in Hanafi law:
//
//   qismora_agreement [FAMILIES [SEED]]
//
// Each family has one to eight kinds of heir, every number of them equally likely, drawn from all kinds that
// have a field; one to four heads of a kind of which there may be several. The estate is a round sum from
// which nothing is paid.

#include <algorithm>
#include <charconv>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "division/Differences.h"
#include "support/RandomCases.h"

namespace qismora {
namespace {

using faraid::Family;
using faraid::Kind;

class Families {
 public:
  explicit Families(std::uint64_t seed) : random_(seed) {}

  Family Next() {
    Family family;
    for (unsigned left = 1 + Below(8); left > 0;) {
      const auto kind = static_cast<Kind>(Below(faraid::KindCount));
      if (family[kind] > 0) continue;
      family[kind] = static_cast<int>(1 + Below(static_cast<unsigned>(std::min(faraid::MostOf(kind), 4))));
      if (!faraid::IsPossible(family)) {
        family[kind] = 0;  // husband and wives
        continue;
      }
      --left;
    }
    return family;
  }

 private:
  unsigned Below(unsigned count) { return static_cast<unsigned>(random_() % count); }

  std::mt19937_64 random_;
};

std::string Part(long count, long all) {
  // In hundredths of a percent.
  const std::string digits = std::to_string((count * 10000 + all / 2) / all);
  const std::string padded = std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
  return padded.substr(0, padded.size() - 2) + "." + padded.substr(padded.size() - 2) + " %";
}

void PrintAgreement(long families, std::uint64_t seed) {
  Families random(seed);
  long agree = 0;
  long sharesAgree = 0;
  std::map<const DifferenceKind*, long> counts;
  for (long i = 0; i < families; ++i) {
    const testing::TypedCase typed = {.Family = random.Next(), .Amounts = {"720720", "0", "0", "0"}};
    const CaseTexts texts = typed.Texts();
    const Differences differences =
        Compare(ReadDivisionInput(texts), OwnAnswerOf(texts), faraid::School::Hanafi);
    const auto isOfShares = [](const DifferenceKind* kind) { return kind->Of == Concern::Shares; };
    agree += differences.None() ? 1 : 0;
    sharesAgree += std::ranges::none_of(differences.Kinds, isOfShares) ? 1 : 0;
    for (const DifferenceKind* kind : differences.Kinds) ++counts[kind];
  }

  std::cout << families << " families, seed " << seed << '\n'
            << Part(agree, families) << "  agree in every line\n"
            << Part(sharesAgree, families) << "  agree in all shares, shown or not\n";
  for (const DifferenceKind& kind : DifferenceKinds()) {
    if (counts.contains(&kind)) std::cout << Part(counts[&kind], families) << "  " << kind.Sentence << '\n';
  }
}

/// The number of an argument, or the usual one where there is none.
long NumberOf(int argc, char** argv, int index, long usual) {
  if (argc <= index) return usual;
  const std::string_view text = argv[index];
  long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

}  // namespace
}  // namespace qismora

int main(int argc, char** argv) {
  const long families = qismora::NumberOf(argc, argv, 1, 1000000);
  const long seed = qismora::NumberOf(argc, argv, 2, 1);
  if (families <= 0 || seed <= 0 || argc > 3) {
    std::cerr << "usage: qismora_agreement [FAMILIES [SEED]]\n";
    return 2;
  }
  qismora::PrintAgreement(families, static_cast<std::uint64_t>(seed));
  return 0;
}
