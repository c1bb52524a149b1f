#include "screens/Captions.h"

#include <algorithm>

namespace qismora {

namespace {

constexpr Caption captions[] = {
    {0, "CASE WHEN DECEASED IS A"},
    {1, "Wives"},
    {2, "Sons"},
    {3, "Daughters"},
    {4, "Grand Sons"},
    {5, "Grand Daughters"},
    {6, "Great grand Sons"},
    {7, "Gt. gnd. Daughter"},
    {13, "Father"},
    {14, "Grand Father"},
    {15, "Great grand Father"},
    {16, "Mother"},
    {17, "Mother's Mother"},
    {18, "Gr. Mot's Mother"},
    {19, "Father's Mother"},
    {20, "Gd. Fath's Mother"},
    {21, "Father's G.Moth."},
    {22, "Brothers (Full)"},
    {23, "Sisters (Full)"},
    {24, "Deceased"},
    {25, "Gross Estate"},
    {26, "Funeral exp."},
    {27, "Debts"},
    {28, "Will(s)"},
    {29, "Net Estate"},
    {30, "Consanguine Sister"},
    {31, "Consang. Brother"},
    {32, "Uterine Sisters"},
    {33, "Uterine Brothers"},
};

}  // namespace

std::span<const Caption> Captions() { return captions; }

std::string CaptionOf(int field, bool femaleDeceased) {
  if (field == 1 && femaleDeceased) return HusbandCaption;
  return std::ranges::find(captions, field, &Caption::Index)->Words;
}

}  // namespace qismora
