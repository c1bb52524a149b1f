#pragma once

#include "screens/CaseDocument.h"
#include "windows/casestudy/CaseWords.h"
#include "windows/widgets/FormHolder.h"
#include "windows/widgets/FormWindow.h"

class QAction;
class QToolButton;

namespace qismora {

class AnswerStrip;
class CaseFileMenu;
class DivisionOpener;
class ReadingsPanel;
class SavePanel;

/// The window of the Case Study screen. Closing it destroys it with its form, so that the next opening starts
/// with a new one.
class CaseStudyWindow : public FormHolder<CaseStudy>, public FormWindow {
 public:
  CaseStudyWindow(CaseRecord& record, CasePorts& ports, int savedLanguage);

  /// Opens the Division window, which divides what the fields hold.
  DivisionOpener& Division() { return *division_; }
  CaseDocument& Document() { return document_; }

 protected:
  bool FrameGrows() const override { return true; }
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildFrame();
  void BuildDivision(Settings& store);
  void Translate();
  void BuildStatusBar(CasePorts& ports);
  void BuildTimer();
  void KeepOnTop();
  void OrderTabs();

  CaseDialogs dialogs_;
  CasePorts ports_;
  CaseDocument document_;
  DivisionOpener* division_ = nullptr;
  QAction* openDivision_ = nullptr;
  QToolButton* divisionLine_ = nullptr;
  CaseFileMenu* fileMenu_ = nullptr;
  ReadingsPanel* readings_ = nullptr;
  SavePanel* saves_ = nullptr;
  AnswerStrip* strip_ = nullptr;
};

}  // namespace qismora
