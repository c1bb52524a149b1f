#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHashSeed>
#include <QTemporaryDir>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "PdfFile.h"

namespace {

using namespace qismora::documents;

/// Nothing of the machine may get into a page: no display, no time zone, no order of a hash, and no font
/// but those of the documents. The folder is for what must lie in a file.
void ShutOutTheWorld(const QTemporaryDir& folder) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("TZ", "UTC");
  QHashSeed::setDeterministicGlobalSeed();
  QFile fonts(folder.filePath("fonts.conf"));
  if (!fonts.open(QIODevice::WriteOnly) || fonts.write("<fontconfig/>") < 0) {
    throw std::runtime_error("cannot write to the temporary folder");
  }
  qputenv("FONTCONFIG_FILE", fonts.fileName().toLocal8Bit());
  qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
}

void Build(const QString& file, const TermTable& terms, const QString& folder) {
  const Source source = ReadSource(file.toStdString());
  const Pages pages(source, Layouter(terms).Run(source));
  QFile out(folder + "/" + QString::fromStdString(source.File));
  if (!out.open(QIODevice::WriteOnly) || out.write(WritePdf(source, pages)) < 0) {
    throw std::runtime_error("cannot write " + out.fileName().toStdString());
  }
  std::cout << source.File << ": " << pages.Count() << " pages\n";
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const QTemporaryDir folder;
    ShutOutTheWorld(folder);
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 6) {
      std::cerr << "usage: qismora_documents NOTO-FOLDER AMIRI-FOLDER TERMS.tsv OUT-FOLDER SOURCE.md...\n";
      return 2;
    }
    LoadFonts(arguments[1], arguments[2]);
    const TermTable terms = ReadTerms(arguments[3].toStdString());
    QDir().mkpath(arguments[4]);
    for (const QString& file : arguments.mid(5)) Build(file, terms, arguments[4]);
  } catch (const std::exception& error) {
    std::cerr << "qismora_documents: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
