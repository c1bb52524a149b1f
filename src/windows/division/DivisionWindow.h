#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <optional>

#include "division/DivisionView.h"
#include "windows/division/DivisionSettings.h"
#include "windows/division/Supposition.h"

class QMenu;
class QScrollArea;

namespace qismora {

class AnnouncedLabel;
class CaseStudy;
class DivisionPictures;
class DivisionSentences;
class DivisionTableView;
class DivisionTools;
class PageSplitter;

/// The division of what the fields of Case Study hold, at every keystroke: one sentence, one table with its
/// reasons, the estate as a bar and the family as a tree. It changes nothing on the screen.
class DivisionWindow : public QMainWindow {
  Q_DECLARE_TR_FUNCTIONS(DivisionWindow)

 public:
  /// The form lives longer than the window.
  DivisionWindow(CaseStudy& form, Settings& store);

  /// Brings Case Study to the front.
  std::function<void()> ShowCase;
  /// Places the window beside Case Study, or where it was when it was last closed, and shows it.
  void ShowBeside(const QWidget& study);
  /// Comes to the front: to the table at first, later to where the focus was.
  void TakeFocus();

  /// What is shown: the case of the screen, or what it would be if an heir had died before.
  const DivisionView& Shown() const { return shown_; }
  /// Shows at once what the fields hold now.
  void Update();
  /// Remembers size, place and splitter.
  void SavePlace();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildContent();
  void BuildTools();
  void ConnectParts();
  void Translate();
  void Watch();
  void Changed();

  void ShowTable();
  void ShowState();
  void FitSplitter();

  void Follow(const QString& link);
  void GoToField(int index);
  void GoToHeir(faraid::Kind heir);
  void FillMenu(QMenu* menu);
  void SupposeDead(faraid::Kind heir, int heads);
  void LeaveSupposition();

  CaseStudy& form_;
  Settings& store_;
  DivisionSettings settings_;
  faraid::School school_;
  bool pending_ = false;
  bool splitByUser_ = false;
  bool focused_ = false;
  /// The case that is shown.
  CaseTexts texts_;
  DivisionView shown_;
  Supposition supposition_;
  /// What Keep holds, and what the division is compared with: that, or the case as it is.
  std::optional<DivisionView> kept_;
  std::optional<DivisionView> before_;
  QTimer announcing_;

  DivisionTools* tools_ = nullptr;
  DivisionSentences* sentences_ = nullptr;
  QScrollArea* page_ = nullptr;
  PageSplitter* splitter_ = nullptr;
  DivisionTableView* table_ = nullptr;
  DivisionPictures* pictures_ = nullptr;
  /// The school and whose case it is; after a copy or a file, what came of it until something changes.
  AnnouncedLabel* state_ = nullptr;
};

}  // namespace qismora
