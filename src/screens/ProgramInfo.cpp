#include "screens/ProgramInfo.h"

#include "base/Text.h"

namespace qismora {

namespace {

std::string Mebibytes(double bytes) { return Join(F(bytes / (1024.0 * 1024.0)), " MiB"); }

std::string Listed(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += Join(text.empty() ? "" : ", ", word);
  return text;
}

}  // namespace

prginfo::prginfo(ProgramFacts facts, MemoryMeter& memory) : memory_(memory) {
  Rows = {
      {"Program", "Qismora"},
      {"Version", facts.Version},
      {"Purpose",
       "Calculates the shares of the heirs in the Islamic law of inheritance, tells the reason for each, "
       "and explains the law."},
      {"Maker", "'Qismora' from the house of 'Brindhaven'"},
      {"Built with", Listed(facts.Libraries)},
  };
  Refresh();
}

void prginfo::Refresh() {
  const MemoryFigures figures = memory_.Read();
  TotalMemory = Mebibytes(figures.Total);
  FreeMemory = Mebibytes(figures.Free);
  UsedMemory = Mebibytes(figures.UsedHere);
}

}  // namespace qismora
