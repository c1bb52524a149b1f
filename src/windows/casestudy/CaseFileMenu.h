#pragma once

#include <QMenu>

#include "screens/CaseDocument.h"

class QMenuBar;

namespace qismora {

/// The menu of the case files.
class CaseFileMenu : public QMenu {
 public:
  CaseFileMenu(QMenuBar* bar, CaseDocument& document);

  /// All words in the current language.
  void Translate();

 private:
  QMenu* recent_;
};

/// Opens files that are dropped anywhere on the window.
void TakeDroppedCases(QWidget* window, CaseDocument& document);

}  // namespace qismora
