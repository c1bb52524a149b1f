#pragma once

#include <QWidget>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

class ReadingText;

/// The commands, and under them heading, amount and text of the answer. Frame5 lies over amount and text
/// whenever there is no answer to read.
class ResultPanel : public QWidget {
 public:
  ResultPanel(CaseStudy& form, Binder& binder, QWidget* parent);

  /// Takes the focus to the end of the answer, where the amounts are. False while there is no answer.
  bool ShowEnd();

 private:
  CaseStudy& form_;
  ReadingText* narrative_;
  ReadingText* report_;
};

}  // namespace qismora
