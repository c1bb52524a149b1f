#pragma once

#include "faraid/Allotment.h"

namespace faraid {

/// Awl: shares that exceed the whole are all reduced in proportion (ruling of Umar, agreed by the
/// Companions). The base and the raised base are those of the whole division.
Allotments ApplyAwl(const Allotments& shares, std::int64_t base, std::int64_t raised);

/// Radd: what the shares leave, if there is no residuary, goes to the sharers other than the spouse in
/// proportion (ruling of Ali and others; Quran 8:75). Without such a sharer nothing changes.
Allotments ApplyRadd(const Allotments& shares);

}  // namespace faraid
