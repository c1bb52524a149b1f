#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "screens/DivisionView.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;
class QScrollArea;
class QSplitter;
class QTableView;
class QToolBar;
class QToolButton;

namespace qismora {

class CaseStudy;
class DivisionModel;
class EstateBar;
class FamilyTreeView;
class Settings;

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
  /// Whether the screen has room for both windows side by side.
  static bool HasRoomBeside(const QWidget& study);

  /// Whether the user wants it beside Case Study: yes from the first time on, until he closes it.
  static bool IsWanted(Settings& store);
  void Want(bool wanted);

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
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// An heir of whom so many had died before.
  using Death = std::pair<faraid::Kind, int>;

  void BuildTools();
  QAction* AddTool(QToolBar* tools, const char* name, const QKeySequence& key,
                   const std::function<void()>& act);
  QToolButton* LanguageButton(QToolBar* tools);
  void BuildSentences(QWidget* parent);
  void BuildTable();
  void BuildPictures();
  void BuildActions();
  void SayAll();
  void Watch();
  void Changed();

  void ShowSentences();
  void ShowNotice();
  void ShowTable();
  void ShowPictures();
  void FitTable();
  void FitSplitter();
  void Announce();

  void ChooseSchool(int index);
  void Follow(const QString& link);
  void ShowMenu(const QPoint& place);
  void FillMenu(QMenu* menu, faraid::Kind heir);
  void GoToField(int index);
  void SupposeDead(faraid::Kind heir, int heads);
  void LeaveSupposition();
  faraid::Kind ChosenHeir() const;

  CaseStudy& form_;
  Settings& store_;
  faraid::School school_;
  bool pending_ = false;
  bool splitByUser_ = false;
  std::vector<Death> deaths_;
  std::optional<DivisionView> kept_;
  DivisionView shown_;
  std::optional<DivisionView> before_;
  QTimer announcing_;
  QString announced_;

  QComboBox* schools_ = nullptr;
  QLabel* schoolCaption_ = nullptr;
  QAction* fourSchools_ = nullptr;
  QAction* keep_ = nullptr;
  QAction* copy_ = nullptr;
  QAction* print_ = nullptr;
  QAction* preview_ = nullptr;
  QAction* pdf_ = nullptr;
  QToolButton* language_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QLabel* headline_ = nullptr;
  QLabel* estate_ = nullptr;
  QLabel* examples_ = nullptr;
  QLabel* bequests_ = nullptr;
  QCheckBox* consent_ = nullptr;
  QLabel* supposition_ = nullptr;
  QLabel* notice_ = nullptr;
  QLabel* unreadable_ = nullptr;
  QSplitter* splitter_ = nullptr;
  QTableView* table_ = nullptr;
  DivisionModel* model_ = nullptr;
  QWidget* pictures_ = nullptr;
  EstateBar* bar_ = nullptr;
  FamilyTreeView* tree_ = nullptr;
  QScrollArea* treeScroll_ = nullptr;
};

}  // namespace qismora
