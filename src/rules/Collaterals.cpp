#include "rules/Collaterals.h"

#include "case/Conditions.h"
#include "case/Shares.h"

namespace qismora {

bool HasMaleLine(const CaseRecord& c) { return HasSonsLine(c) || HasFatherLine(c); }

std::string ExcludingList(const CaseRecord& c) {
  return Join("Son = ", c.Sons, CRLF, "Son's Son = ", c.GrandSons, CRLF, "Son's Son's Son = ", c.GtGrandSons,
              CRLF, "Father = ", c.Father, CRLF, "Father's Father = ", c.GrandFather, CRLF,
              "Father's Father's Father = ", c.GtGrandFather, CRLF);
}

std::string DaughtersList(const CaseRecord& c) {
  return Join("Daughter = ", c.Daughters, CRLF, "Son's Daughter = ", c.GrandDaughters, CRLF,
              "Son's Son's Daughter = ", c.GtGrandDaughters, CRLF);
}

std::string ResiduaryTail(const CaseRecord& c, ResiduaryFlag flag) {
  return Join(CRLF, TAB, "RESIDUARY (ASABA')", CRLF, FlagText(c.Res(flag)));
}

}  // namespace qismora
