#pragma once

#include <QAction>
#include <QTest>

#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"

namespace qismora::testing {

/// The Case Study window of a new user, and the message boxes of the program.
class CaseStudyFixture {
 public:
  CaseStudyFixture() { Open(); }

  CaseStudyWindow& Window() { return *windows_->Study(); }
  CaseStudy& Form() { return Window().Form(); }
  Settings& Store() { return program_.Store(); }
  /// Starts the program with the settings of the earlier start, and opens the window.
  void Open() {
    program_.KeepDivisionClosed();
    windows_ = &program_.Start();
    windows_->MainMenu().Form().ShowCaseStudy();
    Activate();
  }

  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    return testing::Find<Widget>(&Window(), name);
  }
  /// The text of a label or a button.
  QString TextOf(const char* name) { return Find(name)->property("text").toString(); }

  /// Clicks into the field and types.
  void Type(const char* field, const QString& text) {
    Activate();
    Click(field);
    QTest::keyClick(Find(field), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(Find(field), text);
  }
  void Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }
  void DoubleClick(const char* name) { QTest::mouseDClick(Find(name), Qt::LeftButton); }
  /// A double click sent to the window, which passes it to the widget on top at that place.
  void DoubleClickAt(const char* name) {
    QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, {},
                       PlaceOf(name, Find(name)->rect().center()));
  }
  /// Moves the mouse over a place of the widget, or whatever lies on top of it.
  void MoveTo(const char* name, QPoint place) {
    QTest::mouseMove(Window().windowHandle(), PlaceOf(name, place));
  }
  void Key(const char* name, Qt::Key key) {
    Activate();
    Find(name)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Find(name), key);
  }

  MessageBoxSpy Boxes;

 private:
  QPoint PlaceOf(const char* name, QPoint place) { return Find(name)->mapTo(&Window(), place); }
  void Activate() {
    Window().activateWindow();
    if (!QTest::qWaitForWindowActive(&Window())) qFatal("the window does not become active");
  }

  ProgramFixture program_;
  ProgramWindows* windows_ = nullptr;
};

}  // namespace qismora::testing
