#pragma once

#include <QDialog>

#include "screens/ProgramInfo.h"

namespace qismora {

/// The window of the program catalogue. It stays above the window from which it was opened.
class ProgramInfoWindow : public QDialog {
 public:
  ProgramInfoWindow(const ProgramFacts& facts, MemoryMeter& memory, QWidget* parent);

 private:
  prginfo form_;
};

}  // namespace qismora
