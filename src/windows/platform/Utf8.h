#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qismora {

/// Texts are UTF-8 everywhere but in the toolkit. What is no proper text there becomes a question mark.
inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// The same with single line feeds, for places that set lines themselves.
inline QString ToQtLines(std::string_view text) {
  return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace qismora
