#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace faraid {

/// The kinds of heir, in the order in which a division lists them. Grandchildren are the children of sons
/// only, and great-grandchildren those of son's sons. A grandfather is the father's father, a
/// great-grandfather the father's father's father.
enum class Kind : std::uint8_t {
  Wives,
  Husband,
  Sons,
  Daughters,
  SonsSons,
  SonsDaughters,
  SonsSonsSons,
  SonsSonsDaughters,
  Father,
  Grandfather,
  GreatGrandfather,
  Mother,
  MothersMother,
  MothersMothersMother,
  FathersMother,
  GrandfathersMother,
  FathersMothersMother,
  FullBrothers,
  FullSisters,
  ConsanguineSisters,
  ConsanguineBrothers,
  UterineSisters,
  UterineBrothers,
  // Class II: the farther male agnates in their order of succession. An uncle is the father's brother.
  FullBrothersSon,
  ConsanguineBrothersSon,
  FullBrothersSonsSon,
  ConsanguineBrothersSonsSon,
  FullUncle,
  ConsanguineUncle,
  FullUnclesSon,
  ConsanguineUnclesSon,
  FullUnclesSonsSon,
  ConsanguineUnclesSonsSon,
  FullUnclesSonsSonsSon,
  ConsanguineUnclesSonsSonsSon,
  /// Not an heir: what none of the heirs takes.
  Remainder,
};

/// How many kinds of heir there are, without the remainder.
inline constexpr std::size_t KindCount = static_cast<std::size_t>(Kind::Remainder);

/// A set of kinds. Its order is that of the kinds.
struct KindSet {
  std::uint64_t Bits = 0;

  constexpr KindSet() = default;
  constexpr explicit KindSet(std::uint64_t bits) : Bits(bits) {}
  constexpr KindSet(Kind kind) : Bits(std::uint64_t{1} << static_cast<unsigned>(kind)) {}

  constexpr bool IsEmpty() const { return Bits == 0; }
  constexpr bool Has(Kind kind) const { return (Bits & KindSet(kind).Bits) != 0; }
  constexpr bool HasAll(KindSet kinds) const { return (kinds.Bits & ~Bits) == 0; }
  constexpr bool HasAny(KindSet kinds) const { return (kinds.Bits & Bits) != 0; }
  /// The first of a set that is not empty.
  constexpr Kind First() const { return static_cast<Kind>(std::countr_zero(Bits)); }

  constexpr bool operator==(const KindSet&) const = default;

  struct Iterator {
    std::uint64_t Left;
    constexpr Kind operator*() const { return KindSet(Left).First(); }
    constexpr Iterator& operator++() {
      Left &= Left - 1;
      return *this;
    }
    constexpr bool operator==(const Iterator&) const = default;
  };
  constexpr Iterator begin() const { return {Bits}; }
  constexpr Iterator end() const { return {0}; }
};

constexpr KindSet operator|(KindSet a, KindSet b) { return KindSet(a.Bits | b.Bits); }
constexpr KindSet operator&(KindSet a, KindSet b) { return KindSet(a.Bits & b.Bits); }
constexpr KindSet operator-(KindSet a, KindSet b) { return KindSet(a.Bits & ~b.Bits); }
constexpr KindSet operator|(Kind a, Kind b) { return KindSet(a) | KindSet(b); }

inline constexpr KindSet Nobody{};
inline constexpr KindSet Spouses = Kind::Wives | Kind::Husband;
inline constexpr KindSet MaleDescendants = Kind::Sons | Kind::SonsSons | Kind::SonsSonsSons;
inline constexpr KindSet FemaleDescendants = Kind::Daughters | Kind::SonsDaughters | Kind::SonsSonsDaughters;
inline constexpr KindSet Descendants = MaleDescendants | FemaleDescendants;
inline constexpr KindSet Grandfathers = Kind::Grandfather | Kind::GreatGrandfather;
inline constexpr KindSet GrandmothersOfFathersSide =
    Kind::FathersMother | Kind::GrandfathersMother | Kind::FathersMothersMother;
inline constexpr KindSet Grandmothers =
    Kind::MothersMother | Kind::MothersMothersMother | GrandmothersOfFathersSide;
inline constexpr KindSet FullSiblings = Kind::FullBrothers | Kind::FullSisters;
inline constexpr KindSet ConsanguineSiblings = Kind::ConsanguineSisters | Kind::ConsanguineBrothers;
inline constexpr KindSet UterineSiblings = Kind::UterineSisters | Kind::UterineBrothers;
/// Full and consanguine siblings, who have the father in common with the deceased.
inline constexpr KindSet SiblingsByFather = FullSiblings | ConsanguineSiblings;
inline constexpr KindSet Siblings = SiblingsByFather | UterineSiblings;
inline constexpr KindSet ClassII{KindSet(Kind::Remainder).Bits - KindSet(Kind::FullBrothersSon).Bits};
/// Those who take two parts where a woman beside them takes one. Uterine brothers are not among them.
inline constexpr KindSet Males =
    MaleDescendants | Kind::Father | Grandfathers | Kind::FullBrothers | Kind::ConsanguineBrothers | ClassII;

}  // namespace faraid
