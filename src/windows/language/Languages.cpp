#include "windows/language/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QToolTip>
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

// A destroyed translator removes itself from the application. This one belongs to the application.
QTranslator* translator = nullptr;

constexpr char dialogs[] = "Dialogs";

/// The words of Qt's dialogs and menus that everybody meets here. Qt's catalogue, where there is one, adds
/// the rest.
[[maybe_unused]] constexpr const char* dialogWords[] = {
    QT_TRANSLATE_NOOP("Dialogs", "OK"),
    QT_TRANSLATE_NOOP("Dialogs", "Save"),
    QT_TRANSLATE_NOOP("Dialogs", "Open"),
    QT_TRANSLATE_NOOP("Dialogs", "Discard"),
    QT_TRANSLATE_NOOP("Dialogs", "Cancel"),
    QT_TRANSLATE_NOOP("Dialogs", "&Yes"),
    QT_TRANSLATE_NOOP("Dialogs", "&No"),
    QT_TRANSLATE_NOOP("Dialogs", "&Open"),
    QT_TRANSLATE_NOOP("Dialogs", "&Save"),
    QT_TRANSLATE_NOOP("Dialogs", "Look in:"),
    QT_TRANSLATE_NOOP("Dialogs", "File &name:"),
    QT_TRANSLATE_NOOP("Dialogs", "&File name:"),
    QT_TRANSLATE_NOOP("Dialogs", "Files of type:"),
    QT_TRANSLATE_NOOP("Dialogs", "Save As"),
    QT_TRANSLATE_NOOP("Dialogs", "Name"),
    QT_TRANSLATE_NOOP("Dialogs", "Size"),
    QT_TRANSLATE_NOOP("Dialogs", "Type"),
    QT_TRANSLATE_NOOP("Dialogs", "Date Modified"),
    QT_TRANSLATE_NOOP("Dialogs", "Computer"),
    QT_TRANSLATE_NOOP("Dialogs", "&Print"),
    QT_TRANSLATE_NOOP("Dialogs", "Print"),
    QT_TRANSLATE_NOOP("Dialogs", "Print Preview"),
    QT_TRANSLATE_NOOP("Dialogs", "Printer"),
    QT_TRANSLATE_NOOP("Dialogs", "&Name:"),
    QT_TRANSLATE_NOOP("Dialogs", "P&roperties"),
    QT_TRANSLATE_NOOP("Dialogs", "Location:"),
    QT_TRANSLATE_NOOP("Dialogs", "Type:"),
    QT_TRANSLATE_NOOP("Dialogs", "Output &file:"),
    QT_TRANSLATE_NOOP("Dialogs", "&Options >>"),
    QT_TRANSLATE_NOOP("Dialogs", "&Options <<"),
    QT_TRANSLATE_NOOP("Dialogs", "Print to File (PDF)"),
    QT_TRANSLATE_NOOP("Dialogs", "Local file"),
    QT_TRANSLATE_NOOP("Dialogs", "Write PDF file"),
    QT_TRANSLATE_NOOP("Dialogs", "Fit width"),
    QT_TRANSLATE_NOOP("Dialogs", "Fit page"),
    QT_TRANSLATE_NOOP("Dialogs", "Zoom in"),
    QT_TRANSLATE_NOOP("Dialogs", "Zoom out"),
    QT_TRANSLATE_NOOP("Dialogs", "Portrait"),
    QT_TRANSLATE_NOOP("Dialogs", "Landscape"),
    QT_TRANSLATE_NOOP("Dialogs", "First page"),
    QT_TRANSLATE_NOOP("Dialogs", "Previous page"),
    QT_TRANSLATE_NOOP("Dialogs", "Next page"),
    QT_TRANSLATE_NOOP("Dialogs", "Last page"),
    QT_TRANSLATE_NOOP("Dialogs", "Show single page"),
    QT_TRANSLATE_NOOP("Dialogs", "Show facing pages"),
    QT_TRANSLATE_NOOP("Dialogs", "Show overview of all pages"),
    QT_TRANSLATE_NOOP("Dialogs", "Page setup"),
    QT_TRANSLATE_NOOP("Dialogs", "&Copy"),
    QT_TRANSLATE_NOOP("Dialogs", "Copy &Link Location"),
    QT_TRANSLATE_NOOP("Dialogs", "Select All"),
    QT_TRANSLATE_NOOP("Dialogs", "%1 already exists.\nDo you want to replace it?"),
};

/// Qt's own words. It translates only while a dialog is in the current language, so that the message boxes of
/// the screens keep their English buttons.
class DialogTranslator : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* text, const char* comment, int n) const override {
    if (Open == 0 || translator == nullptr || qstrcmp(context, dialogs) == 0) return {};
    const QString words = translator->translate(dialogs, text);
    return words.isEmpty() ? QTranslator::translate(context, text, comment, n) : words;
  }
  bool isEmpty() const override { return false; }

  int Open = 0;
};

DialogTranslator* dialogTranslator = nullptr;

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
  static const QFont tips = QToolTip::font();
  current = language;
  QToolTip::setFont(FontBesideEnglish(tips));
  if (language == Language::English) {
    delete translator;
    translator = nullptr;
    return;
  }
  auto* next = new QTranslator(QCoreApplication::instance());
  const QString file =
      QStringLiteral(":/translations/qismora_%1.qm").arg(QLatin1String(RowOf(language).Code));
  if (!next->load(file)) qWarning("the translation %s cannot be read", qPrintable(file));
  // The new translator comes first, so that no window is put into English in between.
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

QFont FontBesideEnglish(QFont font) {
  if (current != Language::English) {
    font.setFamilies(QStringList(QStringLiteral("Noto Naskh Arabic")) + font.families());
  }
  return font;
}

Qt::LayoutDirection CurrentDirection() {
  return current == Language::English ? Qt::LeftToRight : Qt::RightToLeft;
}

namespace {

QString InIsolate(char16_t kind, const QString& text) {
  constexpr QChar popIsolate(0x2069);
  return CurrentDirection() == Qt::LeftToRight || text.isEmpty() ? text : QChar(kind) + text + popIsolate;
}

}  // namespace

QString Isolated(const QString& text) { return InIsolate(0x2068, text); }
QString IsolatedFigure(const QString& figure) { return InIsolate(0x2066, figure); }

// Nothing is loaded before the first dialog opens in another language than English. Debian has the catalogues
// of Qt in a package of their own, and none for Urdu.
DialogsInLanguage::DialogsInLanguage() : translates_(current != Language::English) {
  static Language loaded = Language::English;
  if (!translates_) return;
  if (std::exchange(loaded, current) != current) {
    delete dialogTranslator;
    dialogTranslator = new DialogTranslator(QCoreApplication::instance());
    const QString file = QStringLiteral("qtbase_") + QLatin1String(RowOf(current).Code);
    static_cast<void>(dialogTranslator->load(file, QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    QCoreApplication::installTranslator(dialogTranslator);
    // Else the dialog would get this event once it is shown, and Qt would rename its first button.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
  }
  ++dialogTranslator->Open;
}

DialogsInLanguage::~DialogsInLanguage() {
  if (translates_) --dialogTranslator->Open;
}

Qt::LayoutDirection DialogsInLanguage::Direction() {
  const bool translates = dialogTranslator != nullptr && dialogTranslator->Open > 0;
  return translates ? CurrentDirection() : Qt::LeftToRight;
}

}  // namespace qismora
