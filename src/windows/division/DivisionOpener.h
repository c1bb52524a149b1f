#pragma once

#include <QObject>
#include <memory>

class QWidget;

namespace qismora {

class CaseStudy;
class DivisionWindow;
class Settings;

/// Opens the Division window beside Case Study. Nothing of it is made before it is first shown.
class DivisionOpener : public QObject {
 public:
  /// The form lives longer than the window of Case Study, which owns this.
  DivisionOpener(CaseStudy& form, Settings& store, QWidget* study);
  ~DivisionOpener() override;

  /// At the user's request: in front, with the focus.
  void Open();
  /// Beside Case Study and without the focus, where the screen has room and the user has not closed it.
  void OpenBeside();
  /// Null before it is first shown.
  DivisionWindow* Window() const { return window_.get(); }

 protected:
  /// The window comes and goes with Case Study.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Make();

  CaseStudy& form_;
  Settings& store_;
  QWidget* study_;
  std::unique_ptr<DivisionWindow> window_;
  bool comesBack_ = false;
};

}  // namespace qismora
