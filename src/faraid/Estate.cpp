#include "faraid/Estate.h"

#include <algorithm>

namespace faraid {

Settlement Settle(const Estate& estate) {
  const Hundredths left = estate.Gross - estate.Funeral - estate.Debts;
  if (left < 0) return {.Shortfall = -left};
  const Hundredths limit = estate.HeirsConsent ? left : left / 3;
  const Hundredths bequests = std::min(estate.Bequests, limit);
  return {.Net = left - bequests, .BequestLimit = limit, .Bequests = bequests};
}

}  // namespace faraid
