#pragma once

#include "screens/CaseDocument.h"
#include "windows/forms/FormHolder.h"
#include "windows/forms/FormWindow.h"

namespace qismora {

class DivisionOpener;

/// The window of the Case Study screen. Closing it destroys it with its form, so that the next opening starts
/// with a new one.
class CaseStudyWindow : public FormHolder<CaseStudy>, public FormWindow {
 public:
  CaseStudyWindow(CaseRecord& record, Ports& ports, int savedLanguage);

  /// The Division window, which shows what the fields come to.
  DivisionOpener& Division() { return *division_; }
  CaseDocument& Document() { return document_; }

 protected:
  bool FrameGrows() const override { return true; }
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildFrame();
  void BuildDivision(Settings& store);
  void BuildStatusBar(Ports& ports);
  void BuildTimer();
  void KeepOnTop();
  void OrderTabs();

  DivisionOpener* division_ = nullptr;
  CaseDocument document_;
};

}  // namespace qismora
