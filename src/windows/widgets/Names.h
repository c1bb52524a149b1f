#pragma once

#include <QString>

namespace qismora {

/// The name of an element of a control array, as in Text1(2).
inline QString Indexed(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

}  // namespace qismora
