#pragma once

#include <QFrame>

#include "screens/CaseDocument.h"

namespace qismora {

class AnnouncedLabel;

/// Two lines that are always in sight: how far the answer can be relied on and under which file the case is
/// kept, and below them which fields are read differently from what stands in them.
class AnswerStrip : public QFrame {
 public:
  AnswerStrip(CaseStudy& form, CaseDocument& document, QWidget* parent);

 private:
  void ShowAnswer();
  void ShowReadings();

  CaseStudy& form_;
  AnnouncedLabel* answer_;
  AnnouncedLabel* readings_;
  std::size_t misread_ = 0;
};

}  // namespace qismora
