#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Property.h"

namespace qismora {

// The controls of a screen as plain values with the properties that the program uses. Colours are
// numbers with red in the lowest byte; from SystemColour on they name a colour of the desktop.

inline constexpr int Black = 0;
inline constexpr int Red = 255;
inline constexpr int DarkRed = 192;
inline constexpr int Green = 32768;
inline constexpr int SystemColour = -2147483647 - 1;
inline constexpr int HighlightColour = SystemColour + 13;
inline constexpr int ButtonFaceColour = SystemColour + 15;
inline constexpr int ButtonTextColour = SystemColour + 18;

struct Label {
  Property<std::string> Caption;
  Property<bool> Visible{true};
  Property<int> ForeColor{ButtonTextColour};
  Property<int> BorderStyle{0};
};

struct TextBox {
  Property<std::string> Text;
  Property<bool> Visible{true};
  Property<int> ForeColor{Black};
  /// Raised when the program sends the focus to the field.
  std::function<void()> FocusWanted;

  void SetFocus() const {
    if (FocusWanted) FocusWanted();
  }
};

struct CheckBox {
  Property<std::string> Caption;
  Property<int> Value{0};
};

/// A drop-down list; the list index is -1 before anything is chosen.
struct ComboBox {
  std::vector<std::string> List;
  Property<int> ListIndex{-1};

  const std::string& Text() const { return List[static_cast<std::size_t>(ListIndex.Get())]; }
};

struct Button {
  Property<bool> Visible{false};
};

/// A radio button of a group.
struct OptionButton {
  std::string Caption;
  Property<bool> Visible{true};
  Property<bool> Value{false};
  Property<int> BackColor{ButtonFaceColour};
};

struct MenuEntry {
  Property<bool> Enabled{true};
};

struct Frame {
  Property<std::string> Caption;
  Property<bool> Visible{true};
};

struct Picture {
  Property<bool> Visible{false};
  Property<int> BorderStyle{0};
};

}  // namespace qismora
