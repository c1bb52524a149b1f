#include "windows/division/Supposition.h"

#include <QAction>
#include <QMenu>
#include <algorithm>

#include "windows/division/DivisionWords.h"
#include "windows/division/Notice.h"

namespace qismora {

void Supposition::SupposeDead(faraid::Kind heir, int heads) {
  const auto known = std::ranges::find(deaths_, heir, &std::pair<faraid::Kind, int>::first);
  if (known == deaths_.end()) {
    deaths_.emplace_back(heir, heads);
  } else {
    known->second += heads;
  }
}

std::vector<SupposedDeath> Supposition::DeathsIn(const DivisionView& asItIs) const {
  std::vector<SupposedDeath> deaths;
  for (const auto& [heir, heads] : deaths_) {
    const DivisionLine* line = asItIs.Find(heir);
    if (line != nullptr) deaths.push_back({heir, std::min(heads, line->Law.Heads), line->Law.Heads});
  }
  return deaths;
}

CaseTexts Supposition::Applied(CaseTexts texts, const DivisionView& asItIs) const {
  for (const SupposedDeath& death : DeathsIn(asItIs))
    texts = WithHeads(texts, death.Heir, death.Of - death.Heads);
  return texts;
}

QString Supposition::Words(const DivisionView& supposed) const {
  if (supposed.Supposed.empty()) return {};
  return QStringLiteral("<b>%1</b> %2 %3")
      .arg(words::Supposition(supposed).toHtmlEscaped(),
           tr("The fields of Case Study are as they were.").toHtmlEscaped(),
           Link(QStringLiteral("back:"), tr("Back to the case (Esc)")));
}

void Supposition::FillMenu(QMenu* menu, const DivisionLine& line,
                           const std::function<void(int heads)>& supposeDead) {
  const int heads = line.Law.Heads;
  const QString name = words::Heir(line.Heir(), heads);
  if (heads == 1) {
    QAction* action = menu->addAction(tr("What if this heir had died before: %1").arg(name), menu,
                                      [supposeDead] { supposeDead(1); });
    action->setShortcut(Qt::Key_Delete);
    return;
  }
  menu->addAction(tr("What if one of them had died before: %1").arg(name), menu,
                  [supposeDead] { supposeDead(1); });
  menu->addAction(tr("What if all of them had died before: %1").arg(name), menu,
                  [supposeDead, heads] { supposeDead(heads); });
}

}  // namespace qismora
