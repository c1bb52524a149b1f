#include "windows/casestudy/CaseFileMenu.h"

#include <QAccessible>
#include <QAction>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

struct MenuRow {
  const char* Name;
  const char* Caption;
  void (CaseDocument::*Run)();
  QKeySequence Key;
};

/// The one local file that is dragged; empty for anything else.
QString DraggedFile(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 && urls.constFirst().isLocalFile() ? urls.constFirst().toLocalFile() : QString();
}

/// A field would take a dropped file for a text.
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
    QAction* entry = recent->addAction(QStringLiteral("&%1 %2").arg(++number).arg(name));
    entry->setToolTip(ToQt(path));
    QObject::connect(entry, &QAction::triggered, recent, [&document, path] { document.OpenFile(path); });
  }
  if (number == 0) recent->addAction(QStringLiteral("No case was saved or opened yet"))->setEnabled(false);
}

}  // namespace

void AddCaseFileMenu(QMenuBar* bar, CaseDocument& document) {
  auto* menu = new QMenu(QStringLiteral("&Case"), bar);
  menu->menuAction()->setObjectName(QStringLiteral("Case"));
  const MenuRow entries[] = {
      {"NewCase", "&New", &CaseDocument::New, QKeySequence::New},
      {"OpenCase", "&Open...", &CaseDocument::Open, QKeySequence::Open},
      {"SaveCase", "&Save", &CaseDocument::Save, QKeySequence::Save},
      {"SaveCaseAs", "Save &As...", &CaseDocument::SaveAs, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
  };
  for (const MenuRow& entry : entries) {
    QAction* action = menu->addAction(QString::fromLatin1(entry.Caption));
    action->setObjectName(QString::fromLatin1(entry.Name));
    action->setShortcut(entry.Key);
    const auto act = [&document, run = entry.Run] { (document.*run)(); };
    // As the other entries: a screen reader that chose one must not wait for an answer.
    QObject::connect(action, &QAction::triggered, bar, [bar, act] {
      if (!QAccessible::isActive()) return act();
      QMetaObject::invokeMethod(bar, act, Qt::QueuedConnection);
    });
  }
  menu->addSeparator();
  auto* recent = menu->addMenu(QStringLiteral("&Recent"));
  recent->menuAction()->setObjectName(QStringLiteral("RecentCases"));
  recent->setToolTipsVisible(true);
  QObject::connect(recent, &QMenu::aboutToShow, recent,
                   [recent, &document] { FillRecent(recent, document); });
  bar->addMenu(menu);
}

void TakeDroppedCases(QWidget* window, CaseDocument& document) { new DropFilter(window, document); }

}  // namespace qismora
