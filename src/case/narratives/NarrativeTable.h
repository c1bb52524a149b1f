#pragma once

#include <array>
#include <string_view>

namespace qismora {

/// The fixed texts of a rule, indexed by an enumeration that says what each text states. Rows that are not in
/// the order of the enumeration do not compile. The names, sizes and order of the tables are fixed, so texts
/// that no rule shows are kept: the entries whose names begin with Unshown, and what is marked so.
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
