#pragma once

#include <QFrame>

#include "screens/CaseDocument.h"

namespace qismora {

class AnnouncedLabel;

/// A line that is always in sight: how far the answer can be relied on, and under which file the case is
/// kept.
class AnswerStrip : public QFrame {
 public:
  AnswerStrip(CaseStudy& form, CaseDocument& document, QWidget* parent);

 private:
  void ShowAnswer();

  CaseStudy& form_;
  AnnouncedLabel* answer_;
};

/// A panel of the status bar that says which fields are read differently from what stands in them; it is
/// there only while there are such fields.
QWidget* MakeReadingsPanel(CaseStudy& form, QWidget* parent);

}  // namespace qismora
