#pragma once

#include "screens/CaseStudy.h"
#include "windows/forms/FormHolder.h"
#include "windows/forms/FormWindow.h"

namespace qismora {

/// The window of the Case Study screen. Closing it destroys it with its form, so that the next opening starts
/// with a new one.
class CaseStudyWindow : public FormHolder<CaseStudy>, public FormWindow {
 public:
  CaseStudyWindow(CaseRecord& record, Outside& outside, int savedLanguage);

 protected:
  bool FrameGrows() const override { return true; }
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildFrame();
  void BuildStatusBar(Outside& outside);
  void BuildTimer();
  void KeepOnTop();
  void OrderTabs();
};

}  // namespace qismora
