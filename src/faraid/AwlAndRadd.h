#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// Awl: shares that exceed the whole are all reduced in proportion. Ruling of Umar with the Companions; base
/// and raised base are those of the whole division.
Allotments ApplyAwl(const Allotments& shares, std::int64_t base, std::int64_t raised);

/// Radd: what the shares leave without a residuary goes to the sharers other than the spouse, in proportion.
/// Without such a sharer nothing changes. Ruling of Ali and others; Quran 8:75.
Allotments ApplyRadd(const Allotments& shares);

}  // namespace faraid
