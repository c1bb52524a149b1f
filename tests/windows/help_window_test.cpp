#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>

#include "division/Differences.h"
#include "windows/help/HelpWindow.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"

using namespace qismora;

namespace {

const QString docs = QStringLiteral(PROJECT_DIRECTORY "/docs");

HelpPage* PageOf(HelpWindow& window) { return window.findChild<HelpPage*>(QStringLiteral("HelpPage")); }

QSet<QString> AnchorsOf(HelpWindow& window, const QString& page) {
  window.Show(page, {});
  QSet<QString> anchors;
  for (const HelpPage::Heading& heading : PageOf(window)->Headings()) anchors.insert(heading.Anchor);
  return anchors;
}

/// The text at the top of what is in sight.
QString TopOf(const HelpPage& page) { return page.cursorForPosition({4, 12}).block().text(); }

}  // namespace

class HelpWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { SetLanguage(Language::English); }

  // tests/links checks the links between the pages.
  void eachKindOfDifferenceHasAHeading() {
    HelpWindow window(docs);
    const QSet<QString> anchors = AnchorsOf(window, DifferencesPage);
    for (const DifferenceKind& kind : DifferenceKinds()) {
      QVERIFY2(anchors.contains(ToQt(kind.Section)), qPrintable(ToQt(kind.Section)));
    }
    QVERIFY(AnchorsOf(window, GuidePage).contains(KeysAnchor));
  }

  void showsAHeadingAndGoesBack() {
    HelpWindow window(docs);
    window.show();
    window.Show(GuidePage, KeysAnchor);
    HelpPage* page = PageOf(window);
    QTRY_COMPARE(TopOf(*page), QStringLiteral("Keys"));
    window.Show(DifferencesPage, QStringLiteral("10-a-third-of-the-gross-estate"));
    QTRY_COMPARE(TopOf(*page), QStringLiteral("10. A third of the gross estate"));
    page->backward();
    QTRY_COMPARE(TopOf(*page), QStringLiteral("Keys"));
    QCOMPARE(page->source().fileName(), QString::fromLatin1(GuidePage));
    page->forward();
    QTRY_COMPARE(TopOf(*page), QStringLiteral("10. A third of the gross estate"));
  }

  // The pictures of the guide are found beside it and fit the page.
  void showsPictures() {
    HelpWindow window(docs);
    window.show();
    window.Show(GuidePage, {});
    const QImage picture =
        PageOf(window)
            ->document()
            ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("pictures/residuaries.png")))
            .value<QImage>();
    QVERIFY(!picture.isNull());
    QVERIFY(picture.width() <= PageOf(window)->viewport()->width());
  }

  void finds() {
    HelpWindow window(docs);
    window.show();
    window.Show(GuidePage, {});
    auto* words = window.findChild<QLineEdit*>(QStringLiteral("HelpFind"));
    QTest::keyClicks(words, QStringLiteral("Residuaries"));
    QTest::keyClick(words, Qt::Key_Return);
    const int first = PageOf(window)->textCursor().position();
    QCOMPARE(PageOf(window)->textCursor().selectedText().toLower(), QStringLiteral("residuaries"));
    QTest::keyClick(words, Qt::Key_Return);
    QVERIFY(PageOf(window)->textCursor().position() > first);
    // The page that contains them opens, whichever way Awl is written.
    window.Show(DifferencesPage, {});
    words->setText(QStringLiteral("awl"));
    QTest::keyClick(words, Qt::Key_Return);
    QCOMPARE(PageOf(window)->textCursor().selectedText().toLower(), QStringLiteral("aul"));
    words->setText(QStringLiteral("umm al-farrukh"));
    QTest::keyClick(words, Qt::Key_Return);
    QCOMPARE(PageOf(window)->source().fileName(), QString::fromLatin1(DivisionPage));
    QCOMPARE(PageOf(window)->textCursor().selectedText().toLower(), words->text());
    words->setText(QStringLiteral("no such words"));
    QTest::keyClick(words, Qt::Key_Return);
    QVERIFY(window.findChild<QLabel*>(QStringLiteral("HelpFound"))
                ->text()
                .contains(QStringLiteral("no such words")));
  }

  // A page that is not there is named, and what is shown stays.
  void namesAMissingPage() {
    HelpWindow window(docs);
    window.Show(GuidePage, {});
    window.Show(QStringLiteral("missing.md"), {});
    QCOMPARE(PageOf(window)->source().fileName(), QString::fromLatin1(GuidePage));
    QVERIFY(window.findChild<QLabel*>(QStringLiteral("HelpFound"))
                ->text()
                .contains(QStringLiteral("missing.md")));
  }

  void turnsAroundWithTheLanguage() {
    HelpWindow window(docs);
    SetLanguage(Language::Arabic);
    QTRY_COMPARE(window.layoutDirection(), Qt::RightToLeft);
    QCOMPARE(PageOf(window)->layoutDirection(), Qt::LeftToRight);
    QVERIFY(window.windowTitle().contains(QStringLiteral("مساعدة")));
    // The usual font lacks signs of Urdu; the pages are English.
    const QString naskh = QStringLiteral("Noto Naskh Arabic");
    QVERIFY(window.findChild<QLineEdit*>(QStringLiteral("HelpFind"))->font().families().contains(naskh));
    QVERIFY(!PageOf(window)->font().families().contains(naskh));
    QVERIFY(QToolTip::font().families().contains(naskh));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
    QApplication::sendEvent(PageOf(window)->viewport(), &asked);
    auto* menu = PageOf(window)->findChild<QMenu*>();
    QVERIFY(menu != nullptr && menu->actions().constLast()->text().startsWith(QStringLiteral("تحديد الكل")));
    menu->close();
    SetLanguage(Language::English);
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("Help - Qismora"));
  }
};

QTEST_MAIN(HelpWindowTest)
#include "help_window_test.moc"
