#pragma once

#include "division/DivisionView.h"
#include "windows/division/Markup.h"

// The tables of a division, for the paper and the clipboard.
namespace qismora {

/// Those who take, with the sum.
QString TableOfTakers(const DivisionView& view, markup::Order order);
/// Those who are alive and receive nothing; empty where there are none.
QString TableOfOthers(const DivisionView& view, markup::Order order);
/// The same with those in one row who stand there for the same reason.
QString OthersByReason(const DivisionView& view);
/// All heirs and the sum as tab-separated text.
QString TableAsText(const DivisionView& view);

/// The heading of those who receive nothing.
QString HeadingOfOthers();

}  // namespace qismora
