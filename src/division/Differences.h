#pragma once

#include <span>
#include <string_view>

#include "division/DivisionInput.h"
#include "division/OwnAnswer.h"
#include "faraid/Division.h"
#include "faraid/List.h"

namespace qismora {

struct Compared;

/// What a kind of difference concerns: the estate, the lack of figures, or the shares.
enum class Concern : std::uint8_t { Estate, Figures, Shares };

/// A kind of difference between the answer of the commands and the division.
struct DifferenceKind {
  Concern Of;
  /// A name for other programs. It does not change with the sentence.
  std::string_view Id;
  /// Whether it applies. It is asked about the estate only if that differs, and about the shares only if they
  /// are decided.
  bool (*When)(const Compared&);
  /// What the commands do, for the user.
  std::string_view Sentence;
  /// The heading of its section in docs/peculiarities.md, as a link names it.
  std::string_view Section;
};

/// All kinds, in the order in which they are shown. Several can apply at once. If one of the estate applies,
/// every line differs.
std::span<const DifferenceKind> DifferenceKinds();

/// How the answer of the commands differs from a division.
struct Differences {
  /// The heirs whose lines differ.
  faraid::KindSet Heirs;
  faraid::List<const DifferenceKind*, 20> Kinds{};

  bool None() const { return Kinds.IsEmpty(); }
};

/// Compares the answer of the commands with the division in a school. If a field cannot be read, there is no
/// division and so no difference.
///
/// A line differs if all heads of the kind together have another part of the net estate, or if the commands
/// show no amount for an heir who takes something. The amounts of the commands are compared before they are
/// rounded for their texts. One rounding is no difference: that of the spouse's amount in the mother's third
/// of the remainder, as long as it stays below a unit of money. The estate differs if the net estates are not
/// equal to the hundredth.
Differences Compare(const DivisionInput& input, const OwnAnswer& own, faraid::School school);

}  // namespace qismora
