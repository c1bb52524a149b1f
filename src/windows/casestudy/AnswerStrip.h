#pragma once

#include <QFrame>

#include "screens/CaseDocument.h"
#include "windows/widgets/AnnouncedLabel.h"

namespace qismora {

/// A line that is always visible: how far the answer can be relied on, and under which file the case is
/// kept.
class AnswerStrip : public QFrame {
 public:
  AnswerStrip(CaseStudy& form, CaseDocument& document, QWidget* parent);

  /// All words in the current language, from the side on which it begins.
  void Translate();

  /// In the order of the Tab key.
  QList<QWidget*> Lines() { return {answer_, file_}; }

 private:
  void ShowAnswer();
  bool DivisionDiffers() const;

  CaseStudy& form_;
  AnnouncedLabel* answer_;
  AnnouncedLabel* file_;
};

/// A panel of the status bar that says which field is read differently from what stands in it, and how many
/// more there are; it is there only while there are such fields.
class ReadingsPanel : public AnnouncedLabel {
 public:
  ReadingsPanel(CaseStudy& form, QWidget* parent);

  /// The sentences in the current language.
  void Translate();

 private:
  CaseStudy& form_;
  Grouping grouping_;
  qsizetype misread_ = 0;
};

}  // namespace qismora
