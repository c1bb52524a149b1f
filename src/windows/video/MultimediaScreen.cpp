#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLibrary>
#include <QMediaPlayer>
#include <QPainter>
#include <QPluginLoader>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>
#include <QWidget>
#include <utility>

#include "windows/video/VideoScreen.h"

namespace qismora {

namespace {

/// Draws the frames into a widget, without a native window and without sound.
class MultimediaScreen : public QWidget, public VideoScreen {
 public:
  explicit MultimediaScreen(QWidget* panel) : QWidget(panel), player_(new QMediaPlayer(this)) {
    setObjectName(QStringLiteral("MediaPlayer1"));
    setAccessibleName(QStringLiteral("Animation"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(panel->contentsRect());
    auto* sink = new QVideoSink(this);
    player_->setVideoSink(sink);
    connect(sink, &QVideoSink::videoFrameChanged, this, [this](const QVideoFrame& frame) {
      if (!frame.isValid()) return;
      image_ = frame.toImage();
      update();
    });
    // The next file is set after the player has finished with this one.
    connect(
        player_, &QMediaPlayer::mediaStatusChanged, this,
        [this](QMediaPlayer::MediaStatus status) {
          if (status == QMediaPlayer::EndOfMedia && EndOfPlay) EndOfPlay();
        },
        Qt::QueuedConnection);
    window()->installEventFilter(this);
    show();
  }

  void Play(const QString& file) override {
    resting_ = false;
    player_->stop();
    player_->setSource(QUrl::fromLocalFile(file));
    player_->play();
  }

 protected:
  // A video in an inactive window pauses, because it would only keep the processor busy.
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::WindowDeactivate && player_->playbackState() == QMediaPlayer::PlayingState) {
      resting_ = true;
      player_->pause();
    } else if (event->type() == QEvent::WindowActivate && std::exchange(resting_, false)) {
      player_->play();
    }
    return false;
  }

  void paintEvent(QPaintEvent*) override {
    if (image_.isNull()) return;
    QRect place(QPoint(), image_.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image_);
  }

 private:
  QMediaPlayer* player_;
  QImage image_;
  bool resting_ = false;
};

// Whether the ffmpeg backend can be loaded. The default backend crashes on machines without its plugins, and
// a player without its backend ends the program.
bool HasBackend() {
  for (const QString& path : QCoreApplication::libraryPaths()) {
    const QDir folder(path + QStringLiteral("/multimedia"));
    for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*ffmpeg*")}, QDir::Files)) {
      QPluginLoader backend(file.filePath());
      if (QLibrary::isLibrary(file.filePath()) && backend.load()) return true;
    }
  }
  return false;
}

}  // namespace

}  // namespace qismora

extern "C" Q_DECL_EXPORT qismora::VideoScreen* MakeQismoraVideoScreen(QWidget* panel) {
  if (!qismora::HasBackend()) return nullptr;
  qputenv("QT_MEDIA_BACKEND", "ffmpeg");
  return new qismora::MultimediaScreen(panel);
}
