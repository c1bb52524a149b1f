#pragma once

#include "base/Ports.h"
#include "windows/widgets/AnnouncedLabel.h"

namespace qismora {

/// The panel of the status bar that says where full reports are saved. After a command that saves, it shows
/// the outcome until the next case is typed, and a screen reader announces it. A path that is too long is
/// shortened in the middle; the tool tip shows all of it.
class SavePanel : public AnnouncedLabel {
 public:
  SavePanel(const QString& folder, QWidget* parent);

  void ShowOutcome(const SaveOutcome& outcome);
  /// Shows where reports are saved, instead of the outcome of an earlier save.
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
