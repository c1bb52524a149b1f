#include "windows/platform/BuiltFiles.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <algorithm>

namespace qismora {

bool IsAsBuilt(const QString& path) {
  const QByteArray name = QFileInfo(path).fileName().toUtf8();
  const auto built =
      std::ranges::find_if(builtFiles, [&](const BuiltFile& file) { return name == file.Name; });
  QFile file(path);
  if (built == builtFiles.end() || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  QCryptographicHash digest(QCryptographicHash::Sha256);
  return digest.addData(&file) && digest.result().toHex() == built->Sha256;
}

QFunctionPointer LoadPlugin(const QStringList& directories, const char* plugin, const char* function) {
  for (const QString& directory : directories) {
    const QString file = directory + QLatin1Char('/') + QLatin1String(plugin);
    if (!IsAsBuilt(file)) continue;
    QLibrary library(file);
    library.setLoadHints(QLibrary::PreventUnloadHint);
    if (const QFunctionPointer found = library.resolve(function)) return found;
  }
  return nullptr;
}

}  // namespace qismora
