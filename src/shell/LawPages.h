#pragma once

#include <string>
#include <string_view>

#include "base/Numbers.h"

namespace qismora {

/// A page of the law: the number that selects it, its title, and the routine that makes its text. Nothing in
/// a page depends on a case.
struct LawPageRow {
  int LawPage;
  std::string_view Title;
  std::string (*Text)();
};

/// The page of that number, or none.
const LawPageRow* FindLawPage(Integer lawPage);

}  // namespace qismora
