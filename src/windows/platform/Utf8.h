#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qismora {

/// Texts of the core are UTF-8. Bytes that are not valid UTF-8 become replacement characters.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// The same with single line feeds, for widgets and the clipboard.
inline QString ToQtLines(std::string_view text) {
  return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace qismora
