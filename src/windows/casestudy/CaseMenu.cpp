#include "windows/casestudy/CaseMenu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "windows/style/PointerShape.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

enum class BarPlace { Bar, Hidden, Menu, UnderMenu };

struct BarEntry {
  const char* Name;
  const char* Caption;
  BarPlace Where;
  void (CaseStudy::*Run)();
  Qt::Key Key;
};

constexpr Qt::Key noKey = Qt::Key_unknown;

// The hidden entries are fixed controls that the menu does not offer.
constexpr BarEntry barEntries[] = {
    {"Back", "&Back", BarPlace::Bar, &CaseStudy::Back_Click, noKey},
    {"AulRaddxx", "±Aul&Radd", BarPlace::Hidden, nullptr, noKey},
    {"TestValues", "&TestValues", BarPlace::Hidden, &CaseStudy::TestValues_Click, noKey},
    {"CaseAnalysis", "Case &Analysis", BarPlace::Menu, nullptr, noKey},
    {"FullReport", "&All Individual", BarPlace::UnderMenu, &CaseStudy::FullReport_Click, noKey},
    {"Exec", "Execute &Selected", BarPlace::UnderMenu, &CaseStudy::Exec_Click, noKey},
    {"Resid", "&Residuaries", BarPlace::UnderMenu, &CaseStudy::Resid_Click, Qt::Key_F5},
    {"AulRad", "Au&l && Radd", BarPlace::UnderMenu, &CaseStudy::AulRad_Click, noKey},
    {"CreateSaveFullReport", "&Full Report", BarPlace::Bar, &CaseStudy::CreateSaveFullReport_Click, noKey},
    {"SaveResults", "&Save Results", BarPlace::Bar, &CaseStudy::SaveResults_Click, noKey},
    {"About", "A&bout", BarPlace::Bar, &CaseStudy::About_Click, noKey},
};

}  // namespace

void FillCaseMenu(QMenuBar* bar, CaseStudy& form, Binder& binder) {
  QMenu* menu = nullptr;
  for (const BarEntry& entry : barEntries) {
    const QString caption = QString::fromUtf8(entry.Caption);
    if (entry.Where == BarPlace::Menu) menu = new QMenu(caption, bar);
    QAction* action = entry.Where == BarPlace::Menu ? menu->menuAction() : new QAction(caption, bar);
    action->setObjectName(QString::fromLatin1(entry.Name));
    action->setVisible(entry.Where != BarPlace::Hidden);
    if (entry.Key != noKey) action->setShortcut(entry.Key);
    if (auto run = entry.Run) {
      WhenTriggered(action, bar, [&form, run] {
        const PointerShape busy(Qt::WaitCursor);
        (form.*run)();
      });
    }
    if (action->objectName() == QLatin1String("AulRad")) binder.Enabled(form.AulRad, action);
    (entry.Where == BarPlace::UnderMenu ? static_cast<QWidget*>(menu) : bar)->addAction(action);
  }
}

}  // namespace qismora
