#include "Fonts.h"

#include <QFontDatabase>
#include <QHash>
#include <QRawFont>
#include <stdexcept>

namespace qismora::documents {

namespace {

struct Family {
  const char* Name;
  const char* FilePrefix;
};

constexpr Family Serif{"Noto Serif", "NotoSerif-"};
constexpr Family Sans{"Noto Sans", "NotoSans-"};
constexpr Family Arabic{"Amiri", "Amiri-"};

QString notoFolder_;
QString amiriFolder_;

const Family& FamilyOf(const TextStyle& style, bool arabic) {
  if (arabic) return Arabic;
  return style.Family == Face::Serif ? Serif : Sans;
}

QString FileOf(const TextStyle& style, bool arabic) {
  QString cut = style.Bold ? "Bold" : "Regular";
  if (style.Italic && !arabic) cut = style.Bold ? "BoldItalic" : "Italic";
  return (arabic ? amiriFolder_ : notoFolder_) + "/" + FamilyOf(style, arabic).FilePrefix + cut + ".ttf";
}

void Load(const QString& file) {
  if (QFontDatabase::addApplicationFont(file) < 0) {
    throw std::runtime_error("cannot load the font " + file.toStdString());
  }
}

}  // namespace

void LoadFonts(const QString& notoFolder, const QString& amiriFolder) {
  notoFolder_ = notoFolder;
  amiriFolder_ = amiriFolder;
  for (const Family& family : {Serif, Sans}) {
    for (const char* cut : {"Regular", "Bold", "Italic", "BoldItalic"}) {
      Load(notoFolder + "/" + family.FilePrefix + cut + ".ttf");
    }
  }
  for (const char* cut : {"Regular", "Bold"}) Load(amiriFolder + "/" + Arabic.FilePrefix + cut + ".ttf");
}

QFont FontFor(const TextStyle& style, bool arabic) {
  QFont font(FamilyOf(style, arabic).Name);
  font.setPixelSize(qRound(Points(style.Size * (arabic ? style.ArabicScale : 1.0))));
  font.setBold(style.Bold);
  // Arabic script has no italics; a slanted one only looks broken.
  font.setItalic(style.Italic && !arabic);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::NoFontMerging);
  return font;
}

void CheckGlyphs(const QString& text, const TextStyle& style, bool arabic) {
  static QHash<QString, QRawFont> fonts;
  const QString file = FileOf(style, arabic);
  if (!fonts.contains(file)) fonts.insert(file, QRawFont(file, 10));
  for (const char32_t letter : text.toUcs4()) {
    if (letter == QChar::LineSeparator || fonts[file].supportsCharacter(letter)) continue;
    const QString code = QString::number(static_cast<uint>(letter), 16);
    throw std::runtime_error((file + " has no letter U+" + code + " of \"" + text + "\"").toStdString());
  }
}

}  // namespace qismora::documents
