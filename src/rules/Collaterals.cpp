#include "rules/Collaterals.h"

#include "base/Text.h"
#include "case/Conditions.h"

namespace qismora {

bool HasMaleExcluder(const CaseRecord& c) { return HasMaleDescendant(c) || HasMaleAscendant(c); }

std::string ExcludingList(const CaseRecord& c) {
  return Join("Son = ", c.Sons, "\r\nSon's Son = ", c.GrandSons, "\r\nSon's Son's Son = ", c.GtGrandSons,
              "\r\nFather = ", c.Father, "\r\nFather's Father = ", c.GrandFather,
              "\r\nFather's Father's Father = ", c.GtGrandFather, CRLF);
}

std::string DaughtersList(const CaseRecord& c) {
  return Join("Daughter = ", c.Daughters, "\r\nSon's Daughter = ", c.GrandDaughters,
              "\r\nSon's Son's Daughter = ", c.GtGrandDaughters, CRLF);
}

}  // namespace qismora
