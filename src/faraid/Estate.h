#pragma once

#include <cstdint>

namespace faraid {

/// Money as a whole number of hundredths.
using Hundredths = std::int64_t;

/// The largest amount that an estate may name: 999,999,999,999,999.99.
inline constexpr Hundredths MostHundredths = 99'999'999'999'999'999;

/// What the deceased left and what is paid before the heirs. Amounts are from 0 to MostHundredths.
struct Estate {
  Hundredths Gross = 0;
  Hundredths Funeral = 0;
  Hundredths Debts = 0;
  Hundredths Bequests = 0;
  /// The heirs consent to bequests of more than a third.
  bool HeirsConsent = false;
};

/// What is left to the heirs.
struct Settlement {
  Hundredths Net = 0;
  /// By how much funeral expenses and debts exceed the estate; then nothing is divided.
  Hundredths Shortfall = 0;
  /// The most that the bequests may take.
  Hundredths BequestLimit = 0;
  /// What they take.
  Hundredths Bequests = 0;
};

/// Pays in the order of the law: funeral expenses, debts (Quran 4:11-12), bequests up to a third (report of
/// Sad ibn Abi Waqqas), rounded down to the hundredth, or as far as the heirs consent.
Settlement Settle(const Estate& estate);

}  // namespace faraid
