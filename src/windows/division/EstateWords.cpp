
#include "windows/division/DivisionWords.h"
#include "windows/division/TranslationContexts.h"

namespace qismora::words {

namespace {

QString OffFor(const QString& summary, const QString& what, faraid::Hundredths amount) {
  if (amount == 0) return summary;
  return Words::tr("%1 − %2 %3", "an estate, what is paid from it, the amount")
      .arg(summary, what, Amount(amount));
}

}  // namespace

std::vector<EstateLine> EstateLines(const DivisionView& view) {
  std::vector<EstateLine> lines = {{Words::tr("Gross estate"), view.Estate.Gross}};
  const auto take = [&](const QString& caption, faraid::Hundredths amount) {
    if (amount > 0) lines.push_back({Words::tr("less %1").arg(caption), amount});
  };
  take(Words::tr("funeral expenses"), view.Estate.Funeral);
  take(Words::tr("debts"), view.Estate.Debts);
  take(Words::tr("bequests"), view.Settlement.Bequests);
  if (view.Settlement.Shortfall > 0) {
    lines.push_back({Words::tr("Shortfall"), view.Settlement.Shortfall});
    return lines;
  }
  lines.push_back({Words::tr("Net estate"), view.Settlement.Net});
  return lines;
}

QString EstateSummary(const DivisionView& view) {
  QString summary = Words::tr("Gross estate %1").arg(Amount(view.Estate.Gross));
  summary = OffFor(summary, Words::tr("funeral expenses"), view.Estate.Funeral);
  summary = OffFor(summary, Words::tr("debts"), view.Estate.Debts);
  return OffFor(summary, Words::tr("bequests"), view.Settlement.Bequests);
}

QString BequestNotice(const DivisionView& view) {
  if (!view.IsReadable() || view.Estate.Bequests == 0) return {};
  const QString asked = Amount(view.Estate.Bequests);
  if (view.Estate.Gross <= view.Estate.Funeral + view.Estate.Debts)
    return Words::tr("Bequests of %1 lapse: funeral expenses and debts leave nothing for them.").arg(asked);
  const QString limit = Amount(view.Settlement.Bequests);
  if (!view.Estate.HeirsConsent) {
    if (!view.BequestsAreCut()) return {};
    return Words::tr(
               "Bequests of %1 are limited to %2, a third of what funeral expenses and debts leave. More "
               "needs the consent of the heirs.")
        .arg(asked, limit);
  }
  QStringList sentences;
  if (view.BequestsAreCut()) {
    sentences.append(Words::tr("Bequests of %1 are limited to %2, all that funeral expenses and debts leave.")
                         .arg(asked, limit));
  }
  if (view.ConsentMatters())
    sentences.append(Words::tr("The heirs consent to bequests of more than a third."));
  return sentences.join(QLatin1Char(' '));
}

}  // namespace qismora::words
