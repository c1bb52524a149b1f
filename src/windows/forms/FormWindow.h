#pragma once

#include <QMainWindow>

#include "windows/style/Letters.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// A window whose controls all stand on one frame of 800 by 600 pixels. The form tells where the frame stands
/// in the window, and is told the window's size.
class FormWindow : public QMainWindow {
 public:
  FormWindow(const char* name, const QString& spoken);

 protected:
  /// Where the controls go.
  QWidget* Frame111() { return frame_; }
  /// A panel of the status bar.
  QLabel* AddPanel(const char* name, const QString& spoken);
  void FollowPlace(Property<int>& left, Property<int>& top);
  /// To be called when all controls stand. Should letters be larger than usual, the window grows rather than
  /// cut them.
  void SetSizes();
  QSize FormSize() const { return minimumSize(); }
  bool IsMaximizedForm() const { return isMaximized() || isFullScreen(); }

  /// The state and the size of the window, in twips.
  virtual void TellSize(bool maximized, int width, int height) = 0;

  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  Binder binder_;

 private:
  void Tell();

  QWidget* frame_;
};

}  // namespace qismora
