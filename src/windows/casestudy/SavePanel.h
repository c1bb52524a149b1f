#pragma once

#include "base/Ports.h"
#include "windows/widgets/AnnouncedLabel.h"

namespace qismora {

/// The panel of the status bar that says where full reports are saved and, after a command that saves, what
/// came of it, until the next case is typed. A path that is too long for it is shortened in the middle; its
/// tool tip shows the whole. A screen reader announces what comes of a save.
class SavePanel : public AnnouncedLabel {
 public:
  SavePanel(const QString& folder, QWidget* parent);

  void ShowOutcome(const SaveOutcome& outcome);
  /// Where reports are saved; the outcome of an earlier save goes.
  void ShowFolder();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetText(const QString& words, const QString& path);

  QString folder_;
  QString words_;
  QString path_;
};

}  // namespace qismora
