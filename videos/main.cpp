#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "MenuVideos.h"

// Writes the videos of the main menu into the given directory.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: qismora_videos DIRECTORY\n", stderr);
    return 2;
  }
  const QDir directory(QFile::decodeName(argv[1]));
  for (const qismora::video::Video& video : qismora::video::videos) {
    const QByteArray content = qismora::video::FileOf(video);
    if (content.isEmpty()) {
      std::fprintf(stderr, "%s: %d frames do not fit into %d bytes\n", video.FileName, video.Frames,
                   video.Length);
      return 1;
    }
    QFile file(directory.filePath(QString::fromLatin1(video.FileName)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush()) {
      std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
      return 1;
    }
  }
  return 0;
}
