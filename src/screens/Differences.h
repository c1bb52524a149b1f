#pragma once

#include <span>
#include <string_view>

#include "faraid/Division.h"
#include "faraid/List.h"
#include "screens/DivisionInput.h"
#include "screens/OwnAnswer.h"

namespace qismora {

struct Compared;

/// What a kind of difference concerns.
enum class Concern : std::uint8_t { Estate, Figures, Shares };

/// A kind of difference between the answer of the commands and the division.
struct DifferenceKind {
  Concern Of;
  /// A short word for other programs. It stays as it is when the sentence changes.
  std::string_view Id;
  /// Asked about the estate only where it differs, and about the shares only where they are decided.
  bool (*When)(const Compared&);
  /// What happens, for the user.
  std::string_view Sentence;
  /// The heading of its section in docs/peculiarities.md, as a link names it.
  std::string_view Section;
};

/// All kinds in the order in which they are named. Those of the estate come first: then every line differs.
/// Several can hold at once.
std::span<const DifferenceKind> DifferenceKinds();

/// Where the answer of the commands and a division part.
struct Differences {
  /// The heirs whose lines differ.
  faraid::KindSet Heirs;
  faraid::List<const DifferenceKind*, 20> Kinds{};

  bool None() const { return Kinds.IsEmpty(); }
};

/// Compares the answer of the commands with the division in a school. Fields that cannot be read differ in
/// nothing: then there is no division.
///
/// A line differs where what all heads of the kind have together is not the same part of the net estate, or
/// where the commands show no amount for an heir who takes something. The amounts of the commands are
/// compared before they are rounded to whole numbers for their texts. What the commands round before they
/// compute with it is no difference where it stays below a unit of money: the spouse's amount in the mother's
/// third of the remainder. The estate differs where the net estates are not the same hundredth.
Differences Compare(const DivisionInput& input, const OwnAnswer& own, faraid::School school);

}  // namespace qismora
