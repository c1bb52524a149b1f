#include "aulradd/FindLCM.h"

#include <algorithm>

namespace qismora {

namespace {

Integer LargestEntry(const CaseRecord& c) {
  Integer largest = c.LcmDen(0);
  for (int i = 1; i < c.LcmCount; ++i) largest = std::max(largest, c.LcmDen(i));
  return largest;
}

/// Divides all entries that the candidate divides by it, if there are two or more.
bool StrikeOut(CaseRecord& c, int candidate) {
  const auto divisible = [&](int i) { return c.LcmDen(i).Value() % candidate == 0; };
  int count = 0;
  for (int i = 0; i < c.LcmCount; ++i) count += divisible(i) ? 1 : 0;
  if (count < 2) return false;
  for (int i = 0; i < c.LcmCount; ++i) {
    if (divisible(i)) c.LcmDen(i) = Integer(c.LcmDen(i).Value() / candidate);
  }
  return true;
}

}  // namespace

void FindLCM(CaseRecord& c) {
  c.LcmResult = Long(1);
  Array<Integer, 10> factors;  // from 1 on; the eleventh factor fails
  int factorCount = 0;
  Integer previous(0);
  for (Integer largest = LargestEntry(c); largest != previous; largest = LargestEntry(c)) {
    for (int candidate = 2; candidate <= largest; ++candidate) {
      if (StrikeOut(c, candidate)) factors(++factorCount) = Integer(candidate);
    }
    previous = largest;
  }
  for (int i = 1; i <= factorCount; ++i) c.LcmResult *= ToLong(factors(i));
  for (int i = 0; i < c.LcmCount; ++i) c.LcmResult *= ToLong(c.LcmDen(i));
}

}  // namespace qismora
