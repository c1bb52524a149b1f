#pragma once

#include <QMainWindow>

#include "screens/CentredFrame.h"
#include "windows/widgets/Binder.h"

class QLabel;
class QScrollArea;

namespace qismora {

/// A window whose controls all stand on one frame of 800 by 600 pixels, placed by its form. On a smaller
/// screen the frame shrinks as far as its layout allows; beyond that it scrolls.
class FormWindow : public QMainWindow {
 public:
  /// Text larger than the given number of pixels is scaled down to it.
  FormWindow(CentredFrame& form, const char* name, const QString& accessibleName, int largestText);

 protected:
  /// Where the controls go.
  QWidget* Frame111() { return frame_; }
  /// What is to be seen around the frame.
  QWidget* Background() { return background_; }
  /// Adds a panel to the status bar.
  QLabel* AddPanel(const char* name, const QString& accessibleName);
  /// Puts a widget of full width above the status bar, in the place of the margin there.
  void AddStrip(QWidget* strip);
  /// To be called when all controls stand. A window whose text is larger than usual grows rather than cut it.
  void SetSizes(const QSize& window, int margin);
  /// Whether the frame follows the size of a window that is not maximized.
  virtual bool FrameGrows() const { return false; }
  bool FillsScreen() const { return isMaximized() || isFullScreen(); }
  /// Scrolls where the frame is larger than the screen. The end of the widget comes into sight for certain.
  void BringIntoSight(const QWidget* widget);

  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  Binder binder_;

 private:
  void PlaceFrame();

  CentredFrame& placed_;
  QScrollArea* scroll_;
  QWidget* strip_ = nullptr;
  QWidget* background_;
  QWidget* frame_;
  QSize frameSize_;
  int bars_ = 0;
};

}  // namespace qismora
