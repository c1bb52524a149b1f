#pragma once

#include <array>
#include <cstddef>

namespace faraid {

/// A list of limited size that allocates no memory. Adding beyond the limit throws std::out_of_range.
template <class Item, std::size_t Most>
class List {
 public:
  constexpr void Add(const Item& item) { items_.at(size_++) = item; }

  constexpr std::size_t Size() const { return size_; }
  constexpr bool IsEmpty() const { return size_ == 0; }
  constexpr Item& operator[](std::size_t i) { return items_[i]; }
  constexpr const Item& operator[](std::size_t i) const { return items_[i]; }

  constexpr Item* begin() { return items_.data(); }
  constexpr Item* end() { return items_.data() + size_; }
  constexpr const Item* begin() const { return items_.data(); }
  constexpr const Item* end() const { return items_.data() + size_; }

  constexpr bool operator==(const List& other) const {
    if (size_ != other.size_) return false;
    for (std::size_t i = 0; i < size_; ++i) {
      if (!(items_[i] == other.items_[i])) return false;
    }
    return true;
  }

 private:
  std::array<Item, Most> items_{};
  std::size_t size_ = 0;
};

}  // namespace faraid
