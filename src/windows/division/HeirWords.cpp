#include <QCoreApplication>

#include "faraid/Family.h"
#include "windows/division/DivisionWords.h"
#include "windows/division/TranslationContexts.h"

namespace qismora::words {

namespace {

using faraid::Kind;

/// The names of a kind of heir: of one, of several, and of one within a sentence, where other languages
/// inflect it. The translations of Several, or else of One, are those of pictures/terms.tsv.
struct HeirNames {
  const char* One;
  const char* Several;
  const char* InSentence;
};

// A class II kind counts as one head, so it has no plural.
constexpr HeirNames heirNames[] = {
    {QT_TRANSLATE_NOOP("Heirs", "Wife"), QT_TRANSLATE_NOOP("Heirs", "Wives"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "wife")},
    {QT_TRANSLATE_NOOP("Heirs", "Husband"), nullptr, QT_TRANSLATE_NOOP("HeirsInSentences", "husband")},
    {QT_TRANSLATE_NOOP("Heirs", "Son"), QT_TRANSLATE_NOOP("Heirs", "Sons"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "son")},
    {QT_TRANSLATE_NOOP("Heirs", "Daughter"), QT_TRANSLATE_NOOP("Heirs", "Daughters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "daughter")},
    {QT_TRANSLATE_NOOP("Heirs", "Son's son"), QT_TRANSLATE_NOOP("Heirs", "Sons' sons"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Son's daughter"), QT_TRANSLATE_NOOP("Heirs", "Sons' daughters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "son's daughter")},
    {QT_TRANSLATE_NOOP("Heirs", "Son's son's son"), QT_TRANSLATE_NOOP("Heirs", "Sons' sons' sons"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "son's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Son's son's daughter"), QT_TRANSLATE_NOOP("Heirs", "Sons' sons' daughters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "son's son's daughter")},
    {QT_TRANSLATE_NOOP("Heirs", "Father"), nullptr, QT_TRANSLATE_NOOP("HeirsInSentences", "father")},
    {QT_TRANSLATE_NOOP("Heirs", "Grandfather"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "grandfather")},
    {QT_TRANSLATE_NOOP("Heirs", "Great-grandfather"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "great-grandfather")},
    {QT_TRANSLATE_NOOP("Heirs", "Mother"), nullptr, QT_TRANSLATE_NOOP("HeirsInSentences", "mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Mother's mother"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "mother's mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Mother's mother's mother"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "mother's mother's mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Father's mother"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "father's mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Grandfather's mother"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "grandfather's mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Father's mother's mother"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "father's mother's mother")},
    {QT_TRANSLATE_NOOP("Heirs", "Full brother"), QT_TRANSLATE_NOOP("Heirs", "Full brothers"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "full brother")},
    {QT_TRANSLATE_NOOP("Heirs", "Full sister"), QT_TRANSLATE_NOOP("Heirs", "Full sisters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "full sister")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine sister"), QT_TRANSLATE_NOOP("Heirs", "Consanguine sisters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine sister")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine brother"), QT_TRANSLATE_NOOP("Heirs", "Consanguine brothers"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine brother")},
    {QT_TRANSLATE_NOOP("Heirs", "Uterine sister"), QT_TRANSLATE_NOOP("Heirs", "Uterine sisters"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "uterine sister")},
    {QT_TRANSLATE_NOOP("Heirs", "Uterine brother"), QT_TRANSLATE_NOOP("Heirs", "Uterine brothers"),
     QT_TRANSLATE_NOOP("HeirsInSentences", "uterine brother")},
    {QT_TRANSLATE_NOOP("Heirs", "Full brother's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "full brother's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine brother's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine brother's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Full brother's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "full brother's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine brother's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine brother's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Full uncle"), nullptr, QT_TRANSLATE_NOOP("HeirsInSentences", "full uncle")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine uncle"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine uncle")},
    {QT_TRANSLATE_NOOP("Heirs", "Full uncle's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "full uncle's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine uncle's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine uncle's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Full uncle's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "full uncle's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine uncle's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine uncle's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Full uncle's son's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "full uncle's son's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Consanguine uncle's son's son's son"), nullptr,
     QT_TRANSLATE_NOOP("HeirsInSentences", "consanguine uncle's son's son's son")},
    {QT_TRANSLATE_NOOP("Heirs", "Remainder"), nullptr, QT_TRANSLATE_NOOP("HeirsInSentences", "remainder")},
};
static_assert(std::size(heirNames) == faraid::KindCount + 1);

const HeirNames& NamesOf(Kind kind) { return heirNames[static_cast<std::size_t>(kind)]; }

QString Dead(const SupposedDeath& death) {
  // A list within the sentence, in which no language inflects the names.
  const QString name = CurrentLocale().toLower(Heir(death.Heir, death.Of));
  if (death.Of == 1) return Words::tr("the %1").arg(name);
  if (death.Heads == death.Of)
    return Words::tr("the %1 %2", "all heads of an heir: the 3 daughters").arg(Number(death.Of), name);
  return Words::tr("%1 of %2 %3", "some heads of an heir: 2 of 3 daughters")
      .arg(Number(death.Heads), Number(death.Of), name);
}

}  // namespace

QString Heir(Kind kind, int heads) {
  const HeirNames& names = NamesOf(kind);
  return QCoreApplication::translate("Heirs",
                                     heads > 1 && names.Several != nullptr ? names.Several : names.One);
}

QString CountedHeir(Kind kind, int heads) {
  const QString name = Heir(kind, heads);
  return heads > 1 ? Words::tr("%1 %2", "heads of an heir: 2 daughters").arg(Number(heads), name) : name;
}

QString OneHeir(Kind kind) {
  return QCoreApplication::translate("HeirsInSentences", NamesOf(kind).InSentence);
}

QString Alive(const faraid::Family& family) {
  QStringList heirs;
  for (std::size_t i = 0; i < faraid::KindCount; ++i) {
    const auto heir = static_cast<Kind>(i);
    if (family[heir] > 0) heirs.append(CountedHeir(heir, family[heir]));
  }
  return heirs.join(ListSeparator());
}

QString Supposition(const DivisionView& view) {
  if (view.Supposed.empty()) return {};
  QStringList dead;
  for (const SupposedDeath& death : view.Supposed) dead.append(Dead(death));
  QString all = dead.takeLast();
  if (!dead.isEmpty())
    all = Words::tr("%1 and %2", "the items of a list, the last item").arg(dead.join(ListSeparator()), all);
  return Words::tr("Supposition: as if %1 had died before the deceased.").arg(all);
}

}  // namespace qismora::words
