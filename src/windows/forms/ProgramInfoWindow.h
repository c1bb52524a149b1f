#pragma once

#include <QDialog>

#include "screens/ProgramInfo.h"

namespace qismora {

/// The window of the program catalogue. It belongs to the window that it was opened from, and stands above
/// it.
class ProgramInfoWindow : public QDialog {
 public:
  ProgramInfoWindow(const ProgramFacts& facts, MemoryMeter& memory, QWidget* parent);

 private:
  prginfo form_;
};

}  // namespace qismora
