#include "Inline.h"

#include <QRegularExpression>
#include <array>
#include <utility>

namespace qismora::documents {

namespace {

enum class Script { Arabic, Latin, Common };

Script ScriptOf(QChar letter) {
  const char16_t code = letter.unicode();
  if ((code >= 0x0600 && code <= 0x06ff) || (code >= 0x08a0 && code <= 0x08ff) || code == 0x200c) {
    return Script::Arabic;
  }
  return code <= 0x20 || code == QChar::LineSeparator ? Script::Common : Script::Latin;
}

QTextLayout::FormatRange Range(qsizetype start, qsizetype length, const TextStyle& style, bool arabic) {
  QTextLayout::FormatRange range;
  range.start = static_cast<int>(start);
  range.length = static_cast<int>(length);
  range.format.setFont(FontFor(style, arabic));
  range.format.setForeground(style.Colour);
  return range;
}

/// Adds a stretch of one style. Blanks between two Arabic words belong to them.
void AddStretch(StyledText& to, const QString& text, const TextStyle& style) {
  const qsizetype base = to.Text.size();
  to.Text += text;
  qsizetype begin = 0;
  while (begin < text.size()) {
    const bool arabic = ScriptOf(text[begin]) == Script::Arabic;
    qsizetype end = begin;
    for (qsizetype i = begin; i < text.size(); ++i) {
      const Script script = ScriptOf(text[i]);
      if (script == (arabic ? Script::Latin : Script::Arabic)) break;
      if (script == Script::Common && arabic) continue;
      end = i + 1;
    }
    CheckGlyphs(text.mid(begin, end - begin), style, arabic);
    to.Formats.append(Range(base + begin, end - begin, style, arabic));
    begin = end;
  }
}

bool BeginsInArabic(const QString& text) {
  for (const QChar letter : text) {
    if (ScriptOf(letter) != Script::Common) return ScriptOf(letter) == Script::Arabic;
  }
  return false;
}

/// An Arabic term of two words in an English line would be read in the wrong order across a line's end.
void KeepTermsTogether(QString& text) {
  for (qsizetype i = 1; i + 1 < text.size(); ++i) {
    const bool inside = ScriptOf(text[i - 1]) == Script::Arabic && ScriptOf(text[i + 1]) == Script::Arabic;
    if (text[i] == ' ' && inside) text[i] = QChar::Nbsp;
  }
}

/// Apostrophes are curved like the quotation marks beside them, and no line ends behind an article (al-).
void SetAsInPrint(QString& text) {
  static const QRegularExpression joined(
      QStringLiteral(R"(\b(al|bi|li|wa|l)-(?=\p{L}))"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
  constexpr char16_t hyphenThatJoins = u'\u2011';
  text.replace('\'', QChar(u'\u2019'));
  text.replace(joined, QString("\\1") + QChar(hyphenThatJoins));
}

StyledText Read(QString text, const TextStyle& style) {
  text.replace("<br>", QString(QChar(QChar::LineSeparator)));
  StyledText read;
  TextStyle now = style;
  qsizetype begin = 0;
  for (qsizetype i = 0; i <= text.size(); ++i) {
    if (i < text.size() && text[i] != '*') continue;
    AddStretch(read, text.mid(begin, i - begin), now);
    const bool two = i + 1 < text.size() && text[i + 1] == '*';
    if (two) {
      now.Bold = !now.Bold;
      ++i;
    } else {
      now.Italic = !now.Italic;
    }
    begin = i + 1;
  }
  read.RightToLeft = BeginsInArabic(read.Text);
  if (!read.RightToLeft) KeepTermsTogether(read.Text);
  return read;
}

}  // namespace

StyledText ReadInline(const std::string& utf8, const TextStyle& style) {
  QString text = WithUnicodeTanwin(QString::fromStdString(utf8));
  SetAsInPrint(text);
  return Read(text, style);
}

StyledText ReadAsWritten(const std::string& utf8, const TextStyle& style) {
  return Read(QString::fromStdString(utf8), style);
}

QString WithUnicodeTanwin(QString text) {
  constexpr std::array<std::pair<char16_t, char16_t>, 3> signs = {{
      {u'\u0657', u'\u08f0'},  // open fathatan, written as an inverted damma
      {u'\u065e', u'\u08f1'},  // open dammatan, written as a fatha with two dots
      {u'\u0656', u'\u08f2'},  // open kasratan, written as a subscript alef
  }};
  for (const auto& [written, meant] : signs) text.replace(QChar(written), QChar(meant));
  return text;
}

}  // namespace qismora::documents
