#pragma once

#include <array>
#include <initializer_list>
#include <ostream>
#include <random>
#include <utility>

#include "faraid/Division.h"

namespace faraid {

inline constexpr std::array Schools = {School::Hanafi, School::Maliki, School::Shafii, School::Hanbali};

using Count = std::pair<Kind, int>;

inline Family FamilyOf(std::initializer_list<Count> counts) {
  Family family;
  for (const auto& [kind, count] : counts) family[kind] = count;
  return family;
}

inline void PrintTo(const Family& family, std::ostream* out) {
  for (const Kind kind : family.Alive()) *out << static_cast<int>(kind) << ':' << family[kind] << ' ';
}

/// Calls with every family of up to so many kinds, each alone and as two, or as three where the kind may.
template <class Call>
void ForSmallFamilies(int kinds, const Call& call, Family family = {}, std::size_t from = 0) {
  if (IsPossible(family)) call(family);
  if (kinds == 0) return;
  // One farther agnate stands for all but the nearest.
  constexpr std::size_t end = static_cast<std::size_t>(Kind::ConsanguineBrothersSon) + 1;
  for (std::size_t i = from; i < end; ++i) {
    const int most = std::min(MostOf(static_cast<Kind>(i)), 2);
    for (int count = 1; count <= most; ++count) {
      family.Counts[i] = count;
      ForSmallFamilies(kinds - 1, call, family, i + 1);
    }
    family.Counts[i] = 0;
  }
}

/// Random families from few to very many heirs.
class RandomFamilies {
 public:
  explicit RandomFamilies(std::uint64_t seed) : random_(seed) {}

  Family Next() {
    Family family;
    const unsigned oneIn = 2 + Below(7);
    for (std::size_t i = 0; i < KindCount; ++i) {
      if (Below(oneIn) != 0) continue;
      const auto most = static_cast<unsigned>(MostOf(static_cast<Kind>(i)));
      family.Counts[i] = static_cast<int>(1 + Below(Below(2) == 0 ? most : std::min(most, 3U)));
    }
    family[Below(2) == 0 ? Kind::Wives : Kind::Husband] = 0;
    // A man among the descendants would settle most families.
    if (Below(2) == 0) {
      for (const Kind kind : MaleDescendants | Kind::Father) family[kind] = 0;
    }
    return family;
  }

  unsigned Below(unsigned count) { return static_cast<unsigned>(random_() % count); }

 private:
  std::mt19937_64 random_;
};

}  // namespace faraid
