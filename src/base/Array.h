#pragma once

#include <array>

#include "base/Failure.h"

namespace qismora {

/// Elements with the indices 0 to Last. An index outside of them throws
/// Failure(SubscriptOutOfRange).
template <class Element, int Last>
class Array {
 public:
  Element& operator()(int index) { return elements_[Checked(index)]; }
  const Element& operator()(int index) const { return elements_[Checked(index)]; }

  void Fill(const Element& value) { elements_.fill(value); }

  static constexpr int Size = Last + 1;

 private:
  static std::size_t Checked(int index) {
    if (index < 0 || index > Last) throw Failure(SubscriptOutOfRange);
    return static_cast<std::size_t>(index);
  }

  std::array<Element, static_cast<std::size_t>(Last) + 1> elements_{};
};

}  // namespace qismora
