#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qismora {

/// One property of a control. It calls its listeners when it has changed. Windows listen; most tests do not.
template <class Value>
class Property {
 public:
  Property() = default;
  explicit Property(Value first) : value_(std::move(first)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;

  Property& operator=(const Value& value) { return Set(value); }
  Property& operator=(const char* words) requires std::same_as<Value, std::string> {
    return Set(std::string_view(words));
  }

  const Value& Get() const { return value_; }
  operator const Value&() const { return value_; }

  void WhenChanged(std::function<void()> listener) { listeners_.push_back(std::move(listener)); }

 private:
  /// A text is copied into its existing storage.
  template <class Given>
  Property& Set(const Given& value) {
    if (value == value_) return *this;
    value_ = value;
    for (const auto& listener : listeners_) listener();
    return *this;
  }

  Value value_{};
  std::vector<std::function<void()>> listeners_;
};

}  // namespace qismora
