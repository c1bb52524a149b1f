#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>
#include <string>

#include "Fonts.h"

namespace qismora::documents {

/// A text with the font of each stretch of it.
struct StyledText {
  QString Text;
  QList<QTextLayout::FormatRange> Formats;
  /// The text begins in Arabic script, so that its lines run from right to left.
  bool RightToLeft = false;
};

/// Reads the inline marks: `**bold**`, `*italic*` and `<br>`. Arabic script is found by its letters and
/// set in its own font.
StyledText ReadInline(const std::string& utf8, const TextStyle& style);

/// The same for what the program answers, which is shown sign for sign as the program writes it.
StyledText ReadAsWritten(const std::string& utf8, const TextStyle& style);

/// The same letters in the code points that fonts of general use know. The text of the verses writes
/// the open tanwīn, the doubled vowel sign whose two strokes stand apart, with three code points that
/// mean other signs in Unicode, as the font for which it was made wants it.
QString WithUnicodeTanwin(QString text);

}  // namespace qismora::documents
