#include "windows/division/Languages.h"

#include <QCoreApplication>
#include <QTranslator>
#include <memory>

#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

struct LanguageRow {
  Language Which;
  QLocale::Language InQt;
  const char* Code;
  const char* Name;
};

constexpr LanguageRow languages[] = {
    {Language::English, QLocale::English, "en", "English"},
    {Language::Urdu, QLocale::Urdu, "ur", "اردو"},
    {Language::Arabic, QLocale::Arabic, "ar", "العربية"},
};

const LanguageRow& RowOf(Language language) { return languages[static_cast<std::size_t>(language)]; }

constexpr char application[] = "Qismora";
constexpr char section[] = "Division";
constexpr char key[] = "Language";

Language current = Language::English;
bool started = false;

// Qt drops a translator when it is destroyed; this one is dropped with the application.
QTranslator* translator = nullptr;

}  // namespace

QString NameOf(Language language) { return QString::fromUtf8(RowOf(language).Name); }

Language DesktopLanguage() {
  for (const QString& wanted : QLocale::system().uiLanguages()) {
    for (const LanguageRow& row : languages) {
      if (QLocale(wanted).language() == row.InQt) return row.Which;
    }
  }
  return Language::English;
}

std::optional<Language> ChosenLanguage(Settings& store) {
  const std::string chosen = store.Read(application, section, key);
  for (const LanguageRow& row : languages) {
    if (chosen == row.Code) return row.Which;
  }
  return std::nullopt;
}

void ChooseLanguage(Settings& store, std::optional<Language> choice) {
  store.Write(application, section, key, choice ? RowOf(*choice).Code : "");
  started = true;
  SetLanguage(choice.value_or(DesktopLanguage()));
}

void StartLanguage(Settings& store) {
  if (started) return;
  started = true;
  SetLanguage(ChosenLanguage(store).value_or(DesktopLanguage()));
}

void SetLanguage(Language language) {
  if (language == current) return;
  current = language;
  // Removing and installing each announce the change: of the two, only the last may be heard.
  if (language == Language::English) {
    delete translator;
    translator = nullptr;
    return;
  }
  auto* next = new QTranslator(QCoreApplication::instance());
  const QString file =
      QStringLiteral(":/translations/qismora_%1.qm").arg(QLatin1String(RowOf(language).Code));
  if (!next->load(file)) qWarning("the translation %s cannot be read", qPrintable(file));
  QTranslator* before = std::exchange(translator, next);
  QCoreApplication::installTranslator(next);
  delete before;
}

Language CurrentLanguage() { return current; }

QLocale CurrentLocale() { return {RowOf(current).InQt, QLocale::system().territory()}; }

QFont FontOfLanguage(QFont font) {
  QStringList families;
  if (current == Language::Arabic) families.append(QStringLiteral("Amiri"));
  if (current != Language::English) families.append(QStringLiteral("Noto Naskh Arabic"));
  font.setFamilies(families + font.families());
  return font;
}

Qt::LayoutDirection CurrentDirection() {
  return current == Language::English ? Qt::LeftToRight : Qt::RightToLeft;
}

}  // namespace qismora
