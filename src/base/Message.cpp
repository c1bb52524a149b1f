#include "base/Message.h"

#include <algorithm>

namespace qismora {

std::string Filled(std::string_view pattern, const std::vector<Message::Value>& values) {
  std::string text;
  while (true) {
    const std::size_t open = pattern.find('{');
    const std::size_t close = pattern.find('}', open);
    if (close == std::string_view::npos) return text.append(pattern);
    const std::string_view place = pattern.substr(open + 1, close - open - 1);
    const auto value = std::ranges::find(values, place, &Message::Value::Place);
    text.append(pattern.substr(0, open));
    if (value != values.end()) text.append(value->Text);
    pattern.remove_prefix(close + 1);
  }
}

std::string English(const Message& message) { return Filled(message.Pattern, message.Values); }

}  // namespace qismora
