#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "casefile/CaseTexts.h"
#include "faraid/Kinds.h"

namespace qismora {

// The program's own answer: that of the commands of Case Study, beside which the division stands.

/// What the commands finally show.
enum class OwnOutcome : std::uint8_t {
  /// An amount for every heir who has a line.
  Figures,
  /// Only a closing sentence or nothing: the fixed shares use up the estate exactly, or a spouse is alone.
  NoFigures,
  /// A message that refuses a figure as too large.
  FigureRefused,
  /// A message that refuses the estate: nothing is left to divide.
  EstateRefused,
  /// A failure, such as a fraction beyond the range of its numbers.
  Failed,
};

/// The doctrine by which the last text divides.
enum class Doctrine : std::uint8_t { NotApplied, AulApplied, RaddApplied };

/// What a kind of heir finally receives: all heads together, and each. The amounts are not rounded, though
/// the texts show whole numbers.
struct OwnShare {
  double Together = 0;
  double Each = 0;
};

/// The answer of the commands: Residuaries, and Aul & Radd where it applies.
struct OwnAnswer {
  OwnOutcome Outcome = OwnOutcome::NoFigures;
  Doctrine Applied = Doctrine::NotApplied;
  /// The net estate as the commands compute it: below 0 if more is paid from it than there is, 0 if it is
  /// refused.
  double NetEstate = 0;
  /// An amount has a comma, where the commands stop reading.
  bool StopsAtComma = false;
  /// By the number of the kind. An heir without a line in the last text has nothing. If no figures are shown,
  /// these are the shares that the rules decided. Empty if the estate is refused or the run failed.
  std::array<OwnShare, faraid::KindCount> Shares{};
  /// The message that refuses a figure or the estate.
  std::string Refusal;

  /// The shares are decided, shown or not.
  bool IsDecided() const { return Outcome == OwnOutcome::Figures || Outcome == OwnOutcome::NoFigures; }
  const OwnShare& Of(faraid::Kind kind) const { return Shares[static_cast<std::size_t>(kind)]; }
};

/// What the commands would answer to the case in a newly started program. It runs them on a separate record
/// and screen: no message appears, no file is written, and no execution is counted. The question about the
/// wills is answered with Yes if the heirs consent, else with No.
OwnAnswer OwnAnswerOf(const CaseTexts& texts);

}  // namespace qismora
