#pragma once

#include <string>

#include "base/Numbers.h"
#include "base/Ports.h"

namespace qismora {

/// A number that outlives the runs of the program, addressed by application, section and key.
struct Setting {
  const char* Application;
  const char* Section;
  const char* Key;

  /// The leading digits of the stored text; 0 for a missing one. Throws Failure(Overflow) for
  /// a number beyond the range.
  Long Read(Settings& store) const;
  void Write(Settings& store, const std::string& text) const;
};

/// The picture of the main menu, by the index that was clicked.
inline constexpr Setting LowerImage = {ApplicationTitle, "ImageSetting", "LowerImage"};
/// The view of the Case Study screen.
inline constexpr Setting LblPressed = {ApplicationTitle, "LanguageSetting", "LblPressed"};
/// How many times a case was loaded, over all runs.
inline constexpr Setting TimesExecuted = {"Qismora", "Inheritance", "TimesExecuted"};

}  // namespace qismora
