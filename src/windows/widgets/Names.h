#pragma once

#include <QString>

namespace qismora {

/// The object name of an element of a control array: "Text1(2)".
inline QString Indexed(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

}  // namespace qismora
