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

/// All windows of the program and the transitions between them. The main menu lives for the whole run; every
/// other window is made when it is first wanted.
class ProgramWindows {
 public:
  ProgramWindows(ShellPorts& ports, QtVideoPlayer& player);
  ~ProgramWindows();
  ProgramWindows(const ProgramWindows&) = delete;
  ProgramWindows& operator=(const ProgramWindows&) = delete;

  void ShowMainMenu();
  /// Opens Case Study with a case file; one that cannot be opened is refused in a message there.
  void OpenCase(const std::string& path);

  InhMainWindow& MainMenu() { return menu_; }
  /// The windows that exist at the moment; null if closed.
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
