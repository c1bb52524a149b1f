#pragma once

#include <QFont>
#include <QLocale>
#include <QString>
#include <Qt>
#include <array>
#include <optional>

#include "base/Ports.h"

namespace qismora {

// The language of the division, its paper and the help. The screens of the program itself are English.

enum class Language { English, Urdu, Arabic };

inline constexpr std::array<Language, 3> AllLanguages = {Language::English, Language::Urdu, Language::Arabic};

/// The language's name in the language itself, for a choice.
QString NameOf(Language language);

/// The language of the desktop, English where it is none of the three.
Language DesktopLanguage();

/// The language that the user has chosen; nothing where it follows the desktop.
std::optional<Language> ChosenLanguage(Settings& store);
/// Remembers the choice and switches to the language; nothing follows the desktop again.
void ChooseLanguage(Settings& store, std::optional<Language> choice);

/// Switches to the chosen language. To be called before the first text that may be translated is shown; it
/// does nothing when called again.
void StartLanguage(Settings& store);

/// Switches to a language. Every window receives QEvent::LanguageChange.
void SetLanguage(Language language);
Language CurrentLanguage();

/// How the current language writes numbers and dates, as the user's region has it: 18,40,000.50 in India.
QLocale CurrentLocale();
/// A font with the families before it that set the current language well. For Urdu that is Naskh, since
/// Qt 6.4 misplaces the joined letters of Nastaliq.
QFont FontOfLanguage(QFont font);
/// The same for widgets that hold English beside it: English keeps its font.
QFont FontBesideEnglish(QFont font);
/// The direction of a window or a text in the current language.
Qt::LayoutDirection CurrentDirection();
/// Keeps what the user has typed, or a name, in its own direction within a sentence of the other.
QString Isolated(const QString& text);
/// Keeps a signed figure from the left to the right, or the sign would stand behind it.
QString IsolatedFigure(const QString& figure);

/// During its lifetime, dialogs are in the current language: the words that they have from Qt, and their
/// direction. All other dialogs belong to the screens of the program, which are English.
class DialogsInLanguage {
 public:
  DialogsInLanguage();
  ~DialogsInLanguage();
  DialogsInLanguage(const DialogsInLanguage&) = delete;
  DialogsInLanguage& operator=(const DialogsInLanguage&) = delete;

  /// The direction of a dialog that is made now.
  static Qt::LayoutDirection Direction();

 private:
  bool translates_;
};

}  // namespace qismora
