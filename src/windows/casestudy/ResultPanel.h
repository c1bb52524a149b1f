#pragma once

#include <QWidget>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

class ReadingText;

/// The commands, and below them heading, amount and text of the answer. Frame5 covers amount and text while
/// there is no answer.
class ResultPanel : public QWidget {
 public:
  ResultPanel(CaseStudy& form, Binder& binder, QWidget* parent);

  /// Moves the focus to the end of the answer, where the amounts are. False if there is no answer.
  bool ShowEnd();

 private:
  CaseStudy& form_;
  ReadingText* narrative_;
  ReadingText* report_;
};

}  // namespace qismora
