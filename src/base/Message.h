#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qismora {

/// A sentence for the user that a window can say in another language: a pattern, which is a literal, and the
/// texts for the places that it names in braces: "{field} {text} is read as {number}".
struct Message {
  struct Value {
    std::string_view Place;
    std::string Text;
  };
  const char* Pattern = "";
  std::vector<Value> Values = {};
};

/// The pattern with its places filled. What stands in a text is not filled again.
std::string Filled(std::string_view pattern, const std::vector<Message::Value>& values);

/// The message as it is written here.
std::string English(const Message& message);

/// Marks a literal that is a text of a message, for tools/translations.
constexpr const char* Translatable(const char* text) { return text; }

}  // namespace qismora
