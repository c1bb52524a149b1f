#pragma once

#include <QAction>
#include <QDir>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>

#include "windows/casestudy/CaseStudyWindow.h"
#include "windows/platform/QtPorts.h"

namespace qismora::testing {

/// A Case Study window of a new user: empty settings and an empty directory. Expected message boxes are
/// answered, unexpected ones reported.
class CaseStudyFixture {
 public:
  CaseStudyFixture();
  ~CaseStudyFixture();

  CaseStudyWindow& Window() { return *window_; }
  CaseStudy& Form() { return window_->Form(); }
  bool IsOpen() const { return window_ != nullptr; }
  /// Opens a window as the program does, with the view of the settings.
  void Open();

  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("there is no %s", name);
    return found;
  }

  /// Clicks into the field and types.
  void Type(const char* field, const QString& text);
  void Click(const char* name);
  void DoubleClick(const char* name);
  /// A double click sent to the window, which passes it to the widget on top at that place.
  void DoubleClickAt(const char* name);
  /// Moves the mouse over the widget, or whatever lies on top of it; to its middle if no place is given.
  void MoveTo(const char* name, QPoint place = {});
  void Key(const char* name, Qt::Key key);
  /// The text of a label or a button.
  QString TextOf(const char* name);

  /// The next message box contains these words; this button of it is clicked.
  void Expect(const QString& words, QMessageBox::StandardButton answer = QMessageBox::Ok);
  /// Message boxes are closed unread.
  void IgnoreMessageBoxes() { ignore_ = true; }
  /// Whether all expected message boxes have come, and no others.
  bool AllAnswered() const { return expected_.empty() && surprises_ == 0; }

  CaseRecord Record;
  QtSettings Store;

 private:
  struct Expected {
    QString Words;
    QMessageBox::StandardButton Answer;
  };

  void Answer(QMessageBox& box);

  QTemporaryDir home_;
  QString before_;
  SystemClock clock_;
  QtProgram running_;
  QtMessageBoxes boxes_{running_};
  SystemFolders places_;
  QtSaveDialog dialog_{places_};
  Ports ports_{clock_, boxes_, dialog_, Store, places_};
  QPointer<CaseStudyWindow> window_;
  QTimer watchdog_;
  std::deque<Expected> expected_;
  int surprises_ = 0;
  bool ignore_ = false;
};

}  // namespace qismora::testing
