#pragma once

#include <array>

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"

namespace qismora {

/// A kind of class II residuary: the caption of its check box, the end of the sentence that names the taker,
/// the beginning of the amount line, and the short name.
struct ClassIIRow {
  const char* Caption;
  const char* SentenceEnd;
  const char* AmountLine;
  const char* ShortName;
};

/// The class II residuaries: the remoter male agnates, in the order of succession ("what remains goes to the
/// nearest male", report of Ibn Abbas).
extern const std::array<ClassIIRow, 12> ClassIIRows;

/// Names the nearest ticked class II heir as the taker of a positive residue. He excludes the others. His
/// amount is rounded to a whole number.
void NameClassIIHeir(CaseRecord& c);

/// Explains on the result panel and in a message box who the class II residuaries are.
void ExplainClassII(CaseScreen& screen);

}  // namespace qismora
