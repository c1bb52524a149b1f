#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace qismora {

/// One property of a control. Whoever listens is told when it has changed; a window listens, a test
/// does not.
template <class Value>
class Property {
 public:
  Property() = default;
  explicit Property(Value first) : value_(std::move(first)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;

  Property& operator=(Value value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    for (const auto& listener : listeners_) listener();
    return *this;
  }

  const Value& Get() const { return value_; }
  operator const Value&() const { return value_; }

  void WhenChanged(std::function<void()> listener) { listeners_.push_back(std::move(listener)); }

 private:
  Value value_{};
  std::vector<std::function<void()>> listeners_;
};

}  // namespace qismora
