#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "Films.h"

// Makes the films of the main menu in the folder that is given.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: qismora_videos FOLDER\n", stderr);
    return 2;
  }
  const QDir folder(QFile::decodeName(argv[1]));
  for (const qismora::film::Film& film : qismora::film::films) {
    const QByteArray content = qismora::film::FileOf(film);
    if (content.isEmpty()) {
      std::fprintf(stderr, "%s: %d frames do not fit into %d bytes\n", film.FileName, film.Frames,
                   film.Length);
      return 1;
    }
    QFile file(folder.filePath(QString::fromLatin1(film.FileName)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush()) {
      std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
      return 1;
    }
  }
  return 0;
}
