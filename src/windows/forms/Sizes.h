#pragma once

#include <QSize>

namespace qismora {

// The sizes that forms share, in pixels.

constexpr QSize largeForm{800, 600};
/// Between the parts of a form, and around them.
constexpr int formGap = 12;
/// Larger text of the desktop is scaled down to this in the large forms.
constexpr int largestText = 14;
/// The font of a heading on a large form.
constexpr int largeHeading = 20;

}  // namespace qismora
