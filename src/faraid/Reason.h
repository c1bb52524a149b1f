#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "faraid/Fraction.h"
#include "faraid/Kinds.h"

namespace faraid {

/// The source of law on which a decision rests.
enum class Source : std::uint8_t {
  None,
  Quran4_11,
  Quran4_12,
  Quran4_176,
  Quran8_75,
  /// "Give the fixed shares to whom they are due; what is left is for the nearest male" (Bukhari, Muslim).
  ReportOfIbnAbbas,
  /// Half for the daughter, a sixth for the son's daughter, what is left for the sister (Bukhari).
  ReportOfIbnMasud,
  /// The Prophet gave the grandmother a sixth.
  ReportsOfMughiraAndUbada,
  /// The full siblings inherit, not the consanguine ones (Tirmidhi).
  ReportOfAli,
  RulingOfAbuBakr,
  RulingOfUmar,
  RulingOfZayd,
  RulingOfMalik,
  Companions,
  Consensus,
};

/// Why an heir receives what he or she receives. English() has the sentence of each.
enum class ReasonCode : std::uint8_t {
  /// Decided later for each kind, because the takers of one allotment have different reasons.
  Open,
  // Fixed shares
  BecauseOfDescendants,
  WithoutDescendants,
  OneWithoutSon,
  SeveralWithoutSon,
  OneInPlaceOf,
  SeveralInPlaceOf,
  CompletesTwoThirds,
  InFathersPlace,
  TwoOrMoreSiblings,
  NeitherDescendantsNorSiblings,
  Umariyyatan,
  OneGrandmother,
  GrandmothersTogether,
  OneWithoutBrother,
  SeveralWithoutBrother,
  OneUterine,
  UterineTogether,
  Mushtaraka,
  // Residuaries
  NearestMale,
  TwoPartsBeside,
  OnePartBeside,
  SisterBesideDescendants,
  // A grandfather with siblings
  Akdariyya,
  Malikiyya,
  LeastOfGrandfather,
  SharesAsBrother,
  MoreThanBrother,
  ThirdOfRemainder,
  WhatGrandfatherLeaves,
  FullSistersBeforeConsanguine,
  Muadda,
  // Without a share
  ExcludedBy,
  TwoThirdsAreTaken,
  NotAnHeir,
  NothingIsLeft,
  // The remainder
  KindredThenSpouse,
  KindredThenTreasury,
};

/// What happened to a fixed share after it was given.
enum class Change : std::uint8_t { None, Awl, Radd };

/// What is left for a father or grandfather who is sharer and residuary, beyond his sixth.
enum class Beyond : std::uint8_t { NoResiduary, TheResidue, Nothing };

/// A ratio that is not reduced: 3/27 stays 3/27.
struct Ratio {
  std::int64_t Num = 0;
  std::int64_t Den = 1;
  constexpr bool operator==(const Ratio&) const = default;
};

/// The reason of one row of a division, as data for any language.
struct Reason {
  ReasonCode Code = ReasonCode::Open;
  Source Basis = Source::None;
  /// The heir whom the sentence names, such as the one who excludes.
  Kind Named = Kind::Remainder;
  Beyond Sixth = Beyond::NoResiduary;
  Change Changed = Change::None;
  /// The share that the sentence names, before Awl and Radd. If several kinds take it together, it is that of
  /// all.
  Fraction Share{};
  /// The share after Awl, over the raised base, or after Radd, reduced.
  Ratio After{};

  constexpr bool operator==(const Reason&) const = default;
};

/// The pattern of a sentence with these placeholders: {share} is the share, {left} "what is left" or "the
/// whole", {a heir} the named heir with an article, {heir} the same without one, {descendants} "children" or
/// "children of sons".
std::string_view Pattern(ReasonCode code);

/// The source in words: "Quran 4:12".
std::string_view Words(Source source);

/// The whole sentence in English, short enough for a cell of a table:
/// "1/8 because there are children (Quran 4:12); after Awl 3/27".
std::string English(const Reason& reason);

}  // namespace faraid
