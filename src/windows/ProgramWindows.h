#pragma once

#include <QPointer>
#include <memory>

#include "screens/ProgramInfo.h"
#include "windows/casestudy/CaseStudyWindow.h"
#include "windows/forms/InhMainWindow.h"
#include "windows/forms/ProgramInfoWindow.h"
#include "windows/forms/QurLawsWindow.h"
#include "windows/forms/SessionWindow.h"
#include "windows/forms/ZummyWindow.h"

namespace qismora {

/// All windows of the program and the transitions between them. The main menu lives for the whole run. Every
/// other window is created when it is first shown.
class ProgramWindows {
 public:
  ProgramWindows(ShellPorts& ports, QtVideoPlayer& player);
  ~ProgramWindows();
  ProgramWindows(const ProgramWindows&) = delete;
  ProgramWindows& operator=(const ProgramWindows&) = delete;

  void ShowMainMenu();
  /// Opens Case Study with a case file. A message refuses a file that cannot be opened.
  void OpenCase(const std::string& path);

  InhMainWindow& MainMenu() { return menu_; }
  /// The windows; null if closed.
  CaseStudyWindow* Study() const { return study_; }
  QurLawsWindow* Laws() const { return laws_; }
  ZummyWindow* Resources() const { return zummy_.get(); }
  SessionWindow* Log() const { return session_.get(); }
  ProgramInfoWindow* Catalogue() const { return catalogue_; }
  CaseRecord& Record() { return record_; }

 private:
  void ShowQurLaws();
  void ShowCaseStudy();
  void ShowZummy();
  void ShowSession();
  void ShowCatalogue(QWidget* from);
  void HideCatalogue();
  bool MayEnd();

  ShellPorts& ports_;
  CaseRecord record_;
  ShellRecord shell_;
  InhMainWindow menu_;
  QPointer<CaseStudyWindow> study_;
  QPointer<QurLawsWindow> laws_;
  std::unique_ptr<ZummyWindow> zummy_;
  std::unique_ptr<SessionWindow> session_;
  QPointer<ProgramInfoWindow> catalogue_;
  bool sessionEnds_ = false;
};

}  // namespace qismora
