#pragma once

#include "base/Property.h"

namespace qismora {

/// The position in its window, in twips (1/1440 inch, 15 to a pixel), of Frame111, which holds all controls
/// of a form.
struct CentredFrame {
  static constexpr int Width = 12000;
  static constexpr int Height = 9000;

  Property<int> Frame111Left;
  Property<int> Frame111Top;

  /// Takes the size of the window in twips. The frame is in the centre of a maximized window, and in the top
  /// left corner of any other.
  void Form_Resize(bool maximized, int width, int height) {
    Frame111Left = maximized ? (width - Width) / 2 : 0;
    Frame111Top = maximized ? (height - Height) / 2 : 0;
  }
};

}  // namespace qismora
