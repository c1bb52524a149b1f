#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "base/Ports.h"
#include "windows/video/VideoScreen.h"

namespace qismora {

/// Plays videos in a panel through the video plugin. The plugin is loaded when there is something to play and
/// the panel has been painted. Without it the panel stays blank. A file that is not as built is neither
/// played nor loaded.
class QtVideoPlayer : public QObject, public VideoPlayer {
 public:
  /// Takes the directories in which the plugin may be.
  explicit QtVideoPlayer(QStringList folders) : folders_(std::move(folders)) {}

  void SetFile(const std::string& path) override;
  void Play() override;

  void PlayIn(QWidget* panel);
  bool IsLoaded() const { return screen_ != nullptr; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Start();
  void Load();

  QStringList folders_;
  QPointer<QWidget> panel_;
  QString file_;
  VideoScreen* screen_ = nullptr;  // belongs to the panel
  bool wanted_ = false;
  bool painted_ = false;
  bool tried_ = false;
};

}  // namespace qismora
