#pragma once

#include "division/DivisionView.h"
#include "windows/division/Markup.h"

// The tables of a division, for the paper and the clipboard.
namespace qismora {

/// How the estate became what is divided.
QString TableOfEstate(const DivisionView& view, markup::Order order);
/// Those who take, with the sum and the bases.
QString TableOfTakers(const DivisionView& view, markup::Order order);
/// Those who are alive and receive nothing; empty where there are none.
QString TableOfOthers(const DivisionView& view, markup::Order order);
/// The same for paper: heirs with the same reason share a row.
QString OthersByReason(const DivisionView& view, bool onNewPage);
/// The estate, and all heirs and the sum, as tab-separated text.
QString EstateAsText(const DivisionView& view);
QString TableAsText(const DivisionView& view);

/// The heading of those who receive nothing.
QString HeadingOfOthers();

}  // namespace qismora
