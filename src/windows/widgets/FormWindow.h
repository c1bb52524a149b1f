#pragma once

#include <QMainWindow>

#include "screens/CentredFrame.h"
#include "windows/widgets/Binder.h"

class QLabel;
class QScrollArea;

namespace qismora {

/// A window whose controls are on one frame of 800 by 600 pixels, which its form places. On a smaller screen
/// the frame shrinks as far as its layout allows; then it scrolls.
class FormWindow : public QMainWindow {
 public:
  /// Text larger than the given number of pixels is scaled down to it.
  FormWindow(CentredFrame& form, const char* name, const QString& accessibleName, int largestText);

 protected:
  /// The parent of the controls.
  QWidget* Frame111() { return frame_; }
  /// The area around the frame.
  QWidget* Background() { return background_; }
  /// Adds a panel to the status bar.
  QLabel* AddPanel(const char* name, const QString& accessibleName);
  /// Adds a line of full width above the status bar, instead of the margin there. The form leaves it little
  /// more than the height of its text, so that it also has the margin within the status bar.
  void AddStrip(QWidget* strip);
  /// Call it when all controls exist. A window with larger text than usual grows instead of cutting it.
  void SetSizes(const QSize& window, int margin);
  /// Whether the frame follows the size of a window that is not maximized.
  virtual bool FrameGrows() const { return false; }
  bool FillsScreen() const { return isMaximized() || isFullScreen(); }
  /// Scrolls until the widget is visible; if it is too large, its end is.
  void BringIntoSight(const QWidget* widget);

  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  Binder binder_;

 private:
  void PlaceFrame();
  void PlaceStrip();

  CentredFrame& placed_;
  QScrollArea* scroll_;
  QWidget* strip_ = nullptr;
  QWidget* stripPlace_ = nullptr;
  QWidget* background_;
  QWidget* frame_;
  QSize frameSize_;
  int bars_ = 0;
};

}  // namespace qismora
