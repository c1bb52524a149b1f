#pragma once

#include <array>

#include "division/TreeRows.h"
#include "faraid/Kinds.h"

// Who is related through whom, for the family tree.
namespace qismora {

/// An ascendant, and the places in the table of his or her own parents.
struct Ascendant {
  faraid::Kind Heir;
  int Generation;
  std::array<int, 2> Parents;
};

inline constexpr int Nobody = -1;

// The father's side stands on the left.
inline constexpr Ascendant Ascendants[] = {
    {faraid::Kind::Father, 1, {2, 3}},
    {faraid::Kind::Mother, 1, {4, Nobody}},
    {faraid::Kind::Grandfather, 2, {5, 6}},
    {faraid::Kind::FathersMother, 2, {7, Nobody}},
    {faraid::Kind::MothersMother, 2, {8, Nobody}},
    {faraid::Kind::GreatGrandfather, 3, {Nobody, Nobody}},
    {faraid::Kind::GrandfathersMother, 3, {Nobody, Nobody}},
    {faraid::Kind::FathersMothersMother, 3, {Nobody, Nobody}},
    {faraid::Kind::MothersMothersMother, 3, {Nobody, Nobody}},
};

inline constexpr int FatherPlace = 0;
inline constexpr int MotherPlace = 1;
static_assert(Ascendants[FatherPlace].Heir == faraid::Kind::Father &&
              Ascendants[MotherPlace].Heir == faraid::Kind::Mother);

/// The men and the women of one kinship.
struct Descent {
  faraid::Kind Male;
  faraid::Kind Female;
};

inline constexpr Descent Descents[Generations] = {
    {faraid::Kind::Sons, faraid::Kind::Daughters},
    {faraid::Kind::SonsSons, faraid::Kind::SonsDaughters},
    {faraid::Kind::SonsSonsSons, faraid::Kind::SonsSonsDaughters},
};

inline constexpr Descent FullKinship = {faraid::Kind::FullBrothers, faraid::Kind::FullSisters};
inline constexpr Descent ConsanguineKinship = {faraid::Kind::ConsanguineBrothers,
                                               faraid::Kind::ConsanguineSisters};
inline constexpr Descent UterineKinship = {faraid::Kind::UterineBrothers, faraid::Kind::UterineSisters};

}  // namespace qismora
