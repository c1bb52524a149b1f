#include "windows/platform/QtVideoPlayer.h"

#include <QEvent>
#include <QTimer>
#include <utility>

#include "windows/platform/BuiltFiles.h"
#include "windows/platform/Utf8.h"

namespace qismora {

void QtVideoPlayer::SetFile(const std::string& path) { file_ = ToQt(path); }

void QtVideoPlayer::Play() {
  wanted_ = true;
  if (painted_) Start();
}

void QtVideoPlayer::PlayIn(QWidget* panel) {
  panel_ = panel;
  panel->installEventFilter(this);
}

// A video starts only after the panel has been painted once, so that the window appears first.
bool QtVideoPlayer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && watched == panel_ && !std::exchange(painted_, true)) {
    panel_->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] { Start(); });
  }
  return false;
}

void QtVideoPlayer::Start() {
  if (!wanted_ || panel_ == nullptr || !IsAsBuilt(file_)) return;
  Load();
  if (screen_ != nullptr) screen_->Play(file_);
}

void QtVideoPlayer::Load() {
  if (std::exchange(tried_, true)) return;
  const auto make =
      reinterpret_cast<MakeVideoScreen>(LoadPlugin(folders_, VideoPluginName, MakeVideoScreenName));
  if (make == nullptr) return;
  screen_ = make(panel_);
  if (screen_ == nullptr) return;
  screen_->EndOfPlay = [this] {
    if (EndOfPlay) EndOfPlay();
  };
  connect(panel_, &QObject::destroyed, this, [this] { screen_ = nullptr; });
  panel_->setFocusPolicy(Qt::StrongFocus);
}

}  // namespace qismora
