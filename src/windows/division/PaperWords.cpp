#include "windows/division/PaperWords.h"

#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/TranslationContexts.h"
#include "windows/platform/Utf8.h"

namespace qismora {

QString DateOnPaper(const QDate& date) { return CurrentLocale().toString(date, QLocale::LongFormat); }

QList<PaperFact> FactsOnPaper(const DivisionView& view, const QDate& date) {
  const QString name = ToQt(view.Name).simplified();
  const QString gender = view.Gender == Male ? Paper::tr("a man") : Paper::tr("a woman");
  return {
      {words::Deceased(view.Gender),
       name.isEmpty() ? gender : Paper::tr("%1, %2", "a name, a man or a woman").arg(Isolated(name), gender)},
      {Paper::tr("Date"), DateOnPaper(date)},
      {Paper::tr("School"), words::SchoolLaw(view.School)}};
}

// Who settles the debts needs to know who is alive, and that they do not owe them.
QStringList NothingLeft(const DivisionView& view) {
  QStringList sentences = {
      Paper::tr("Funeral expenses and debts are paid before the heirs (%1). Nobody receives "
                "anything from this estate, and no heir owes what it lacks.")
          .arg(words::SourceOf(faraid::Source::Quran4_11))};
  const QString alive = words::Alive(view.Family);
  if (!alive.isEmpty()) sentences.append(Paper::tr("Alive: %1.", "a list of heirs").arg(alive));
  return sentences;
}

// Where heads with equal shares cannot all have the same, the law does not say who takes the hundredth. They
// may be of one line or of two, as a mother and a grandfather with a sixth each.
QString NoteOnHundredths(const DivisionView& view) {
  const auto sharesAlike = [](const DivisionLine& one, const DivisionLine& other) {
    return one.Law.Heads > 0 && other.Law.Heads > 0 &&
           one.Law.Share / one.Law.Heads == other.Law.Share / other.Law.Heads;
  };
  const auto least = [](const DivisionLine& line) {
    return line.Amount.Each + (line.Amount.HeadsWithOneMore == line.Law.Heads ? 1 : 0);
  };
  const auto most = [](const DivisionLine& line) {
    return line.Amount.Each + (line.Amount.HeadsWithOneMore > 0 ? 1 : 0);
  };
  const bool differ = std::ranges::any_of(view.Takers, [&](const DivisionLine& one) {
    return std::ranges::any_of(view.Takers, [&](const DivisionLine& other) {
      return sharesAlike(one, other) && most(one) > least(other);
    });
  });
  return differ ? Paper::tr(
                      "Amounts that cannot be divided evenly differ by one hundredth. The heirs agree who "
                      "takes it.")
                : QString();
}

// For a reader who has only this page: which report has other figures, and that they do not count here.
QString NoteOnOtherReport(const DivisionView& view) {
  if (!view.Own || view.Differs.None()) return {};
  const QString other =
      view.Own->Outcome == OwnOutcome::Figures
          ? Paper::tr(
                "Another report of the program, the full report file of Case Study, gives other amounts for "
                "this family. They are not part of this page. The reason:")
          : Paper::tr(
                "Another report of the program, the full report file of Case Study, gives no amounts for this "
                "family. It is not part of this page. The reason:");
  QStringList sentences = {
      Paper::tr("This page divides by classical %1.", "law of a school").arg(words::SchoolLaw(view.School)),
      other};
  for (const DifferenceKind* kind : view.Differs.Kinds) sentences.append(words::DifferenceSentence(*kind));
  return sentences.join(QLatin1Char(' '));
}

}  // namespace qismora
