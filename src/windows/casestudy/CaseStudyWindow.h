#pragma once

#include <QMainWindow>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// The window of the Case Study screen. It owns its form; closing it destroys both, so that the next
/// opening starts anew.
class CaseStudyWindow : public QMainWindow {
 public:
  CaseStudyWindow(CaseRecord& record, Outside& outside, int savedLanguage);
  ~CaseStudyWindow() override;

  CaseStudy& Form() { return form_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildFrame();
  void BuildStatusBar(Outside& outside);
  void BuildTimer();
  void KeepOnTop();
  void SetSizes();
  void OrderTabs();
  void TellSize();

  CaseStudy form_;
  Binder binder_;
  QWidget* frame_ = nullptr;
  QSize frameSize_;
};

}  // namespace qismora
