#pragma once

#include <QCoreApplication>
#include <QToolBar>

#include "base/Ports.h"
#include "faraid/School.h"

class QComboBox;
class QLabel;
class QToolButton;

namespace qismora {

/// The tool bar of the Division window: the school, what is compared, the paper, and the language.
class DivisionTools : public QToolBar {
  Q_DECLARE_TR_FUNCTIONS(DivisionWindow)

 public:
  DivisionTools(faraid::School school, Settings& store, QWidget* parent);

  /// All words in the current language.
  void Translate();
  /// Enables the paper where all fields can be read, and what compares where there is a table. Keep can
  /// always be undone.
  void Enable(bool isReadable, bool isDivided);

  QComboBox* Schools() { return schools_; }
  QAction* FourSchools() { return fourSchools_; }
  QAction* Keep() { return keep_; }
  QAction* Copy() { return copy_; }
  QAction* Print() { return print_; }
  QAction* Preview() { return preview_; }
  QAction* SaveAsPdf() { return pdf_; }

 private:
  QAction* Add(const char* name, const QKeySequence& key);
  void AddSchools(faraid::School school);
  void AddLanguages(Settings& store);

  QLabel* schoolCaption_ = nullptr;
  QComboBox* schools_ = nullptr;
  QAction* fourSchools_ = nullptr;
  QAction* keep_ = nullptr;
  QAction* copy_ = nullptr;
  QAction* print_ = nullptr;
  QAction* preview_ = nullptr;
  QAction* pdf_ = nullptr;
  QToolButton* language_ = nullptr;
  /// Of Qt, where the window is too narrow for all of them.
  QToolButton* more_ = nullptr;
};

}  // namespace qismora
