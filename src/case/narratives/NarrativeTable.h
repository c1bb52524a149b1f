#pragma once

#include <array>
#include <string_view>

namespace qismora {

/// The fixed texts of a rule, each under the entry that says what it is. No other index fits, and rows that
/// do not stand in the order of the entries do not compile. No rule shows an entry whose name is Unshown.
template <class Entry, std::size_t Size>
class NarrativeTable {
 public:
  struct Row {
    Entry Name;
    std::string_view Text;
  };

  constexpr NarrativeTable(const Row (&rows)[Size]) {
    for (std::size_t i = 0; i < Size; ++i) {
      if (static_cast<std::size_t>(rows[i].Name) != i) throw "a row out of order";
      texts_[i] = rows[i].Text;
    }
  }

  constexpr std::string_view operator[](Entry entry) const { return texts_[static_cast<std::size_t>(entry)]; }

 private:
  std::array<std::string_view, Size> texts_;
};

}  // namespace qismora
