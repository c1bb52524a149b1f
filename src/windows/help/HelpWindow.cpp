#include "windows/help/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QSet>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QTextBlock>
#include <QToolBar>
#include <QWindow>

#include "windows/language/Languages.h"
#include "windows/platform/QtPorts.h"

namespace qismora {

namespace {

/// The context of the translations.
class Help {
  Q_DECLARE_TR_FUNCTIONS(Help)
};

constexpr QSize windowSize{1000, 720};
constexpr int margin = 16;

constexpr struct {
  const char* Name;
  const char* Caption;
  const char* Page;
  const char* Anchor;
  Qt::Key Key;
} entries[] = {
    {"HelpGuide", QT_TRANSLATE_NOOP("Help", "User's &guide"), GuidePage, "", Qt::Key_unknown},
    {"HelpDifferences", QT_TRANSLATE_NOOP("Help", "Where Qismora &differs"), DifferencesPage, "",
     Qt::Key_unknown},
    {"HelpDivision", QT_TRANSLATE_NOOP("Help", "The division and its &law"), DivisionPage, "",
     Qt::Key_unknown},
    {"HelpKeys", QT_TRANSLATE_NOOP("Help", "All &keys"), GuidePage, KeysAnchor, Qt::Key_F1},
};

QPointer<HelpWindow> help;

void StartSavedLanguage() {
  QtSettings store;
  StartLanguage(store);
}

/// Finds the words in any case. The commands of Case Study write Aul, classical books Awl.
QRegularExpression Pattern(const QString& words) {
  static const QRegularExpression awl(QStringLiteral("a[uw]l"), QRegularExpression::CaseInsensitiveOption);
  return QRegularExpression(QRegularExpression::escape(words).replace(awl, QStringLiteral("a[uw]l")),
                            QRegularExpression::CaseInsensitiveOption);
}

/// Its title follows the language.
class HelpMenu : public QMenu {
 public:
  explicit HelpMenu(QMenuBar* bar) : QMenu(Help::tr("&Help"), bar) {}

 protected:
  void changeEvent(QEvent* event) override {
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) setTitle(Help::tr("&Help"));
  }
};

}  // namespace

QString AnchorOf(const QString& heading) {
  QString anchor;
  for (const QChar sign : heading.trimmed().toLower()) {
    if (sign.isLetterOrNumber() || sign == QLatin1Char('-') || sign == QLatin1Char('_')) anchor += sign;
    if (sign == QLatin1Char(' ')) anchor += QLatin1Char('-');
  }
  return anchor;
}

QString HelpFolder() {
  QString binaries = QCoreApplication::applicationDirPath();
  for (const char* folder : {"/../share/doc/qismora", "/../docs", "/../../docs", "/../../../docs"}) {
    QString path = QDir::cleanPath(binaries + QLatin1String(folder));
    if (QFileInfo::exists(path + QLatin1Char('/') + QLatin1String(GuidePage))) return path;
  }
  return binaries;
}

void ShowHelp(const QString& page, const QString& anchor, QWidget* from) {
  StartSavedLanguage();
  if (help == nullptr) {
    help = new HelpWindow(HelpFolder());
    help->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, help, &QWidget::close);
  }
  // The help stays above the window from which it was opened, even if that stays on top of all others.
  if (from != nullptr && from->window()->windowHandle() != nullptr) {
    // Only a dialog is kept above its parent by the window manager.
    const Qt::WindowFlags flags = Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint |
                                  (from->window()->windowFlags() & Qt::WindowStaysOnTopHint);
    if (help->windowFlags() != flags) help->setWindowFlags(flags);
    help->winId();
    help->windowHandle()->setTransientParent(from->window()->windowHandle());
  }
  help->Show(page, anchor);
  help->setWindowState(help->windowState() & ~Qt::WindowMinimized);
  help->show();
  help->raise();
  help->activateWindow();
}

// The menu stands on English screens. Its words are those of the language once it is opened, so that a start
// of the program loads no translation.
void AddHelpMenu(QMenuBar* bar) {
  auto* menu = new HelpMenu(bar);
  menu->menuAction()->setObjectName(QStringLiteral("Help"));
  for (const auto& entry : entries) {
    QAction* action = menu->addAction(QString::fromUtf8(entry.Caption));
    action->setObjectName(QString::fromLatin1(entry.Name));
    if (entry.Key != Qt::Key_unknown) action->setShortcut(entry.Key);
    QObject::connect(action, &QAction::triggered, bar, [bar, &entry] {
      ShowHelp(QString::fromLatin1(entry.Page), QString::fromLatin1(entry.Anchor), bar);
    });
  }
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] {
    StartSavedLanguage();
    menu->setLayoutDirection(CurrentDirection());
    menu->setFont(FontBesideEnglish(QApplication::font(menu)));
    const QList<QAction*> actions = menu->actions();
    for (qsizetype i = 0; i < actions.size(); ++i) actions[i]->setText(Help::tr(entries[i].Caption));
  });
  bar->addMenu(menu);
}

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  document()->setDocumentMargin(margin);
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    NameHeadings();
    if (url.hasFragment()) scrollToAnchor(url.fragment());
  });
}

// Qt's Markdown reader does not name headings, so links could not find them.
void HelpPage::NameHeadings() {
  headings_.clear();
  QSet<QString> taken;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == 0) continue;
    const QString plain = AnchorOf(block.text());
    QString anchor = plain;
    for (int i = 1; taken.contains(anchor); ++i) anchor = QStringLiteral("%1-%2").arg(plain).arg(i);
    taken.insert(anchor);
    headings_.append({block.text(), anchor, level});
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat named;
    named.setAnchor(true);
    named.setAnchorNames({anchor});
    cursor.mergeCharFormat(named);
  }
}

// A picture that is wider than the page is scaled down to it.
QVariant HelpPage::loadResource(int type, const QUrl& name) {
  QVariant content = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return content;
  QImage picture = content.canConvert<QImage>() && !content.value<QImage>().isNull()
                       ? content.value<QImage>()
                       : QImage::fromData(content.toByteArray());
  // A picture in a list is indented.
  const int widest = std::max(200, viewport()->width() - 7 * margin);
  if (picture.width() > widest) picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
  return picture;
}

void HelpPage::contextMenuEvent(QContextMenuEvent* event) {
  const DialogsInLanguage ours;
  QMenu* menu = createStandardContextMenu(event->pos());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setLayoutDirection(CurrentDirection());
  menu->setFont(FontBesideEnglish(menu->font()));
  menu->popup(event->globalPos());
}

HelpWindow::HelpWindow(const QString& pages) : folder_(pages), page_(new HelpPage(this)) {
  setObjectName(QStringLiteral("HelpWindow"));
  page_->setObjectName(QStringLiteral("HelpPage"));
  page_->setSearchPaths({folder_});
  setCentralWidget(page_);
  auto* dock = new QDockWidget(this);
  dock->setObjectName(QStringLiteral("HelpContents"));
  dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
  list_ = new QListWidget(dock);
  dock->setWidget(list_);
  addDockWidget(Qt::LeftDockWidgetArea, dock);
  resizeDocks({dock}, {windowSize.width() / 4}, Qt::Horizontal);
  BuildToolBar();
  connect(page_, &QTextBrowser::anchorClicked, this, &HelpWindow::Follow);
  connect(page_, &QTextBrowser::sourceChanged, this, [this] { ListHeadings(); });
  connect(list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
    page_->scrollToAnchor(item->data(Qt::UserRole).toString());
  });
  connect(list_, &QListWidget::itemClicked, list_, &QListWidget::itemActivated);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  Translate();
  const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  resize(windowSize.boundedTo(screen()->availableSize() - QSize(0, titleBar)));
}

void HelpWindow::BuildToolBar() {
  QToolBar* bar = addToolBar(QString());
  bar->setObjectName(QStringLiteral("HelpBar"));
  bar->setMovable(false);
  back_ = bar->addAction(QString(), page_, &QTextBrowser::backward);
  back_->setShortcuts(QKeySequence::Back);
  forward_ = bar->addAction(QString(), page_, &QTextBrowser::forward);
  forward_->setShortcuts(QKeySequence::Forward);
  for (QAction* action : {back_, forward_}) action->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
  bar->addSeparator();
  for (const auto& entry : entries) {
    pages_.append(bar->addAction(QString(), this, [this, &entry] {
      Show(QString::fromLatin1(entry.Page), QString::fromLatin1(entry.Anchor));
    }));
  }
  bar->addSeparator();
  words_ = new QLineEdit(bar);
  words_->setObjectName(QStringLiteral("HelpFind"));
  words_->setClearButtonEnabled(true);
  bar->addWidget(words_);
  next_ = bar->addAction(QString(), this, [this] { Find(false); });
  next_->setShortcut(QKeySequence::FindNext);
  previous_ = bar->addAction(QString(), this, [this] { Find(true); });
  previous_->setShortcut(QKeySequence::FindPrevious);
  connect(words_, &QLineEdit::returnPressed, next_, &QAction::trigger);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, words_, [this] {
    words_->setFocus(Qt::ShortcutFocusReason);
    words_->selectAll();
  });
  found_ = new QLabel(this);
  found_->setObjectName(QStringLiteral("HelpFound"));
  statusBar()->addWidget(found_, 1);
}

void HelpWindow::Translate() {
  setLayoutDirection(CurrentDirection());
  setFont(FontBesideEnglish(QApplication::font()));
  // The pages are English in every language.
  for (QWidget* english : {static_cast<QWidget*>(page_), static_cast<QWidget*>(list_)}) {
    english->setLayoutDirection(Qt::LeftToRight);
    english->setFont(QApplication::font(english));
  }
  setWindowTitle(Help::tr("Help - Qismora"));
  setAccessibleName(Help::tr("Help"));
  page_->setAccessibleName(Help::tr("Page"));
  list_->setAccessibleName(Help::tr("Headings of the page"));
  findChild<QDockWidget*>()->setWindowTitle(Help::tr("Contents"));
  back_->setText(Help::tr("Back"));
  forward_->setText(Help::tr("Forward"));
  for (qsizetype i = 0; i < pages_.size(); ++i) {
    pages_[i]->setText(Help::tr(entries[i].Caption).remove(QLatin1Char('&')));
  }
  words_->setPlaceholderText(Help::tr("Find (Ctrl+F)"));
  words_->setAccessibleName(Help::tr("Find"));
  next_->setText(Help::tr("Next"));
  previous_->setText(Help::tr("Previous"));
}

void HelpWindow::Show(const QString& page, const QString& anchor) {
  QUrl url = QUrl::fromLocalFile(folder_ + QLatin1Char('/') + page);
  if (!QFileInfo(url.toLocalFile()).isReadable()) {
    found_->setText(Help::tr("%1 is not installed.").arg(QDir::toNativeSeparators(url.toLocalFile())));
    return;
  }
  found_->clear();
  if (!anchor.isEmpty()) url.setFragment(anchor);
  page_->setSource(url, QTextDocument::MarkdownResource);
}

// Links between the pages are opened in this window, all others by the desktop.
void HelpWindow::Follow(const QUrl& link) {
  const QUrl target = page_->source().resolved(link);
  if (!target.isLocalFile()) {
    QDesktopServices::openUrl(target);
    return;
  }
  const QFileInfo file(target.toLocalFile());
  if (file.suffix() == QLatin1String("md") && file.absolutePath() == QFileInfo(folder_).absoluteFilePath())
    return Show(file.fileName(), target.fragment());
  if (!file.isReadable()) {
    found_->setText(Help::tr("%1 is not installed.").arg(QDir::toNativeSeparators(file.filePath())));
    return;
  }
  QDesktopServices::openUrl(target);
}

void HelpWindow::ListHeadings() {
  list_->clear();
  for (const HelpPage::Heading& heading : page_->Headings()) {
    auto* item = new QListWidgetItem(
        QString(qsizetype{3} * (heading.Level - 1), QChar(QChar::Nbsp)) + heading.Title, list_);
    item->setData(Qt::UserRole, heading.Anchor);
    item->setToolTip(heading.Title);
  }
}

void HelpWindow::Find(bool backward) {
  if (words_->text().isEmpty()) return words_->setFocus(Qt::ShortcutFocusReason);
  const QRegularExpression wanted = Pattern(words_->text());
  const auto how = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  found_->clear();
  if (page_->find(wanted, how)) return;
  // Continue from the other end.
  const QTextCursor before = page_->textCursor();
  page_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  if (page_->find(wanted, how)) return found_->setText(Help::tr("Continued from the other end of the page."));
  page_->setTextCursor(before);
  for (const char* name : {GuidePage, DifferencesPage, DivisionPage}) {
    const QString page = QString::fromLatin1(name);
    QFile file(folder_ + QLatin1Char('/') + page);
    if (page == page_->source().fileName() || !file.open(QIODevice::ReadOnly) ||
        !QString::fromUtf8(file.readAll()).contains(wanted)) {
      continue;
    }
    Show(page, {});
    if (page_->find(wanted)) return found_->setText(Help::tr("Found on another page."));
  }
  found_->setText(Help::tr("No page contains \"%1\".").arg(words_->text()));
}

void HelpWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Translate();
}

}  // namespace qismora
