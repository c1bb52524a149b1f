#pragma once

#include <array>

#include "case/CaseRecord.h"

namespace qismora {

/// The kinds of heir whose share a rule decides. The number of a kind is its slot in FractionNum and
/// FractionDen.
enum HeirKind {
  WifeHeir,
  HusbandHeir,
  DaughterHeir,
  FatherHeir,
  MotherHeir,
  GrandMotherHeir,
  SonsDaughterHeir,
  SonsSonsDaughterHeir,
  FullSisterHeir,
  FullBrotherHeir,
  ConsSisterHeir,
  ConsBrotherHeir,
  UterineSisterHeir,
  UterineBrotherHeir,
};
inline constexpr int HeirCount = 14;

/// What the record holds of a kind: how many are alive, the amount of them all together, the narrative.
struct Heir {
  Integer CaseRecord::*Count;
  Double CaseRecord::*Amount;
  std::string CaseRecord::*Report;
};

/// By kind. The ultimate father is counted by the father alone, the grandmothers by their group.
inline constexpr std::array<Heir, HeirCount> Heirs = {{
    {&CaseRecord::Wives, &CaseRecord::WifeShare, &CaseRecord::WifeReport},
    {&CaseRecord::Husband, &CaseRecord::HusbandShare, &CaseRecord::HusbandReport},
    {&CaseRecord::Daughters, &CaseRecord::DaughterShare, &CaseRecord::DaughterReport},
    {&CaseRecord::Father, &CaseRecord::FatherShare, &CaseRecord::FatherReport},
    {&CaseRecord::Mother, &CaseRecord::MotherShare, &CaseRecord::MotherReport},
    {&CaseRecord::GrandMotherCount, &CaseRecord::GrandMotherShare, &CaseRecord::GrandMotherReport},
    {&CaseRecord::GrandDaughters, &CaseRecord::SonsDaughterShare, &CaseRecord::SonsDaughterReport},
    {&CaseRecord::GtGrandDaughters, &CaseRecord::SonsSonsDaughterShare, &CaseRecord::SonsSonsDaughterReport},
    {&CaseRecord::FullSisters, &CaseRecord::FullSisterShare, &CaseRecord::FullSisterReport},
    {&CaseRecord::FullBrothers, &CaseRecord::FullBrotherShare, &CaseRecord::FullBrotherReport},
    {&CaseRecord::ConsSisters, &CaseRecord::ConsSisterShare, &CaseRecord::ConsSisterReport},
    {&CaseRecord::ConsBrothers, &CaseRecord::ConsBrotherShare, &CaseRecord::ConsBrotherReport},
    {&CaseRecord::UterineSisters, &CaseRecord::UterineSisterShare, &CaseRecord::UterineSisterReport},
    {&CaseRecord::UterineBrothers, &CaseRecord::UterineBrotherShare, &CaseRecord::UterineBrotherReport},
}};

}  // namespace qismora
