#include "windows/casestudy/CaseFileMenu.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "windows/casestudy/CaseWords.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

struct FileEntry {
  const char* Name;
  const char* Caption;
  void (CaseDocument::*Run)();
  QKeyCombination Key;
};

constexpr FileEntry fileEntries[] = {
    {"NewCase", QT_TRANSLATE_NOOP("Case", "&New"), &CaseDocument::New, Qt::CTRL | Qt::Key_N},
    {"OpenCase", QT_TRANSLATE_NOOP("Case", "&Open..."), &CaseDocument::Open, Qt::CTRL | Qt::Key_O},
    {"SaveCase", QT_TRANSLATE_NOOP("Case", "&Save"), &CaseDocument::Save, Qt::CTRL | Qt::Key_S},
    {"SaveCaseAs", QT_TRANSLATE_NOOP("Case", "Save &As..."), &CaseDocument::SaveAs,
     Qt::CTRL | Qt::SHIFT | Qt::Key_S},
};

/// The one local file that is dragged; empty for anything else.
QString DraggedFile(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}

/// Opens a dropped case file, anywhere on the window. Without it, a field would insert the path.
class DropFilter : public QObject {
 public:
  DropFilter(QWidget* window, CaseDocument& document) : QObject(window), document_(document) {
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    for (QWidget* child : window->findChildren<QWidget*>()) {
      if (child->acceptDrops()) child->installEventFilter(this);
    }
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop) {
      return false;
    }
    auto* drop = static_cast<QDropEvent*>(event);
    const QString file = DraggedFile(drop->mimeData());
    if (file.isEmpty()) return false;
    drop->acceptProposedAction();
    if (event->type() == QEvent::Drop) {
      // The program that the file comes from waits for the end of the drop, not for the user's answers.
      QTimer::singleShot(0, this, [this, file] { document_.OpenFile(FromQt(file)); });
    }
    return true;
  }

 private:
  CaseDocument& document_;
};

void FillRecent(QMenu* recent, CaseDocument& document) {
  recent->clear();
  int number = 0;
  for (const std::string& path : document.Recent()) {
    const QString name = QFileInfo(ToQt(path)).fileName().replace(QLatin1Char('&'), QStringLiteral("&&"));
    QAction* entry = recent->addAction(QStringLiteral("&%1 %2").arg(++number).arg(Isolated(name)));
    entry->setToolTip(ToQt(path));
    QObject::connect(entry, &QAction::triggered, recent, [&document, path] { document.OpenFile(path); });
  }
  if (number == 0) recent->addAction(CaseWords::tr("No case was saved or opened yet"))->setEnabled(false);
}

}  // namespace

CaseFileMenu::CaseFileMenu(QMenuBar* bar, CaseDocument& document) : QMenu(bar), recent_(new QMenu(this)) {
  menuAction()->setObjectName(QStringLiteral("Case"));
  for (const FileEntry& entry : fileEntries) {
    QAction* action = addAction(QString());
    action->setObjectName(QString::fromLatin1(entry.Name));
    action->setShortcut(entry.Key);
    WhenTriggered(action, bar, [&document, run = entry.Run] { (document.*run)(); });
  }
  addSeparator();
  addMenu(recent_);
  recent_->menuAction()->setObjectName(QStringLiteral("RecentCases"));
  recent_->setToolTipsVisible(true);
  connect(recent_, &QMenu::aboutToShow, recent_,
          [recent = recent_, &document] { FillRecent(recent, document); });
  bar->addMenu(this);
  Translate();
}

void CaseFileMenu::Translate() {
  setTitle(CaseWords::tr("&Case"));
  recent_->setTitle(CaseWords::tr("&Recent"));
  for (QMenu* menu : {static_cast<QMenu*>(this), recent_}) {
    menu->setLayoutDirection(CurrentDirection());
    menu->setFont(FontBesideEnglish(QApplication::font(menu)));
  }
  for (std::size_t i = 0; i < std::size(fileEntries); ++i) {
    actions().at(static_cast<qsizetype>(i))->setText(CaseWords::tr(fileEntries[i].Caption));
  }
}

void TakeDroppedCases(QWidget* window, CaseDocument& document) { new DropFilter(window, document); }

}  // namespace qismora
