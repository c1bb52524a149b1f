#pragma once

#include <QCoreApplication>
#include <functional>
#include <utility>
#include <vector>

#include "division/DivisionView.h"

class QMenu;

namespace qismora {

/// What if these heirs had died before? The fields of Case Study stay as they are.
class Supposition {
  Q_DECLARE_TR_FUNCTIONS(DivisionWindow)

 public:
  bool IsEmpty() const { return deaths_.empty(); }
  void SupposeDead(faraid::Kind heir, int heads);
  void Clear() { deaths_.clear(); }

  /// The heirs of the case as it is who are supposed to be dead.
  std::vector<SupposedDeath> DeathsIn(const DivisionView& asItIs) const;
  /// The case without those who are supposed to be dead. The division is that of the case as it is.
  CaseTexts Applied(CaseTexts texts, const DivisionView& asItIs) const;
  /// The supposition as rich text, with a link back to the case; empty without. The division is that of the
  /// supposition.
  QString Words(const DivisionView& supposed) const;

  /// The entries of a context menu that suppose an heir of a division dead.
  static void FillMenu(QMenu* menu, const DivisionLine& line,
                       const std::function<void(int heads)>& supposeDead);

 private:
  /// The heirs, and how many of each are supposed to have died before.
  std::vector<std::pair<faraid::Kind, int>> deaths_;
};

}  // namespace qismora
