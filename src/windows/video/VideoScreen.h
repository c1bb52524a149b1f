#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace qismora {

/// The interface of the video plugin: a screen that fills a panel and plays files.
class VideoScreen {
 public:
  virtual ~VideoScreen() = default;
  virtual void Play(const QString& file) = 0;

  /// Called when a file has been played to its end.
  std::function<void()> EndOfPlay;
};

/// The one function of the plugin. The screen belongs to the panel.
using MakeVideoScreen = VideoScreen* (*)(QWidget* panel);
inline constexpr const char* MakeVideoScreenName = "MakeQismoraVideoScreen";
inline constexpr const char* VideoPluginName = "qismora_video.so";

}  // namespace qismora
