#include "windows/platform/BuiltFiles.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
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

}  // namespace qismora
