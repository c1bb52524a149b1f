#pragma once

#include <array>

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// A line of distant male agnates: the caption of its tick box, the end of the sentence that names the
/// taker, the head of the amount line, and its short name.
struct ClassIIRow {
  const char* Caption;
  const char* SentenceEnd;
  const char* AmountLine;
  const char* ShortName;
};

/// The class II residuaries in the order of succession.
extern const std::array<ClassIIRow, 12> ClassIIRows;

/// Names the nearest ticked class II heir as the taker of a positive residue. He excludes all the rest;
/// his amount is a rounded whole figure.
void NameClassIIHeir(CaseRecord& c);

/// Tells on the result panel and in a box who the class II residuaries are.
void ExplainClassII(CaseScreen& screen);

}  // namespace qismora
