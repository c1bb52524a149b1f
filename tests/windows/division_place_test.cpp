#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "DivisionFixture.h"
#include "windows/division/DivisionOpener.h"
#include "windows/division/DivisionPlace.h"
#include "windows/division/DivisionWindow.h"
#include "windows/language/Languages.h"
#include "windows/style/Colours.h"

namespace qismora {

using testing::DivisionFixture;

/// Where the Division window stands, how its parts share it, and where the focus is.
class DivisionPlaceTest : public DivisionFixture {
  Q_OBJECT

 private slots:
  void init() { Start(); }
  void cleanup() { study_.reset(); }

  void comesAndGoesWithCaseStudyAndKeepsItsPlace() {
    Division()->resize(640, 500);
    study_->Form().Hide();
    QVERIFY(!Division()->isVisible());
    study_->Window().show();
    QVERIFY(QTest::qWaitForWindowExposed(&study_->Window()));
    study_->Open();
    OpenWithKey();
    QCOMPARE(Division()->size(), QSize(640, 500));
  }

  // By itself it never covers Case Study and never takes the focus; where the user has closed it, it stays
  // closed.
  void opensBesideByItselfUntilItIsClosed() {
    Division()->move(50, 50);
    Division()->resize(620, 500);
    study_->Open();
    study_->Store().Write("Qismora", "Division", "Open", "yes");
    auto* field = study_->Find<QLineEdit>("Text1(2)");
    field->setFocus();
    Opener().OpenBeside();
    if (!HasRoomBeside(study_->Window())) {
      QVERIFY(Division() == nullptr);  // on a small screen only at the user's request
      return;
    }
    QVERIFY(Division()->isVisible());
    QVERIFY(!Division()->frameGeometry().intersects(study_->Window().frameGeometry()));
    QTRY_VERIFY(study_->Window().isActiveWindow());
    QCOMPARE(QApplication::focusWidget(), field);
    // At the user's request it stands where the user has put it.
    Division()->move(60, 70);
    Division()->hide();
    OpenWithKey();
    QCOMPARE(Division()->pos(), QPoint(60, 70));
    Division()->close();
    Opener().OpenBeside();
    QVERIFY(!Division()->isVisible());
  }

  void remembersSplitterAndLanguage() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    auto* splitter = Find<QSplitter>("DivisionSplitter");
    QTRY_VERIFY(splitter->isVisible());
    Division()->resize(700, 700);
    QWidget* handle = splitter->handle(1);
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, middle);
    QTest::mouseMove(handle, middle + QPoint(0, 60));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, middle + QPoint(0, 60));
    for (QAction* language : Find<QToolButton>("Language")->menu()->actions()) {
      if (language->text() == NameOf(Language::Urdu)) language->trigger();
    }
    QTRY_COMPARE(Division()->layoutDirection(), Qt::RightToLeft);
    QCoreApplication::processEvents();
    const QList<int> sizes = splitter->sizes();
    study_->Open();
    OpenWithKey();
    study_->Type("Text1(2)", QStringLiteral("1"));
    splitter = Find<QSplitter>("DivisionSplitter");
    QTRY_VERIFY(splitter->isVisible());
    QTRY_COMPARE(splitter->sizes(), sizes);
    // The next start of the program uses it too.
    QCOMPARE(ChosenLanguage(study_->Store()), std::optional(Language::Urdu));
    QCOMPARE(study_->Find<QAction>("Case")->text(), QStringLiteral("صورت"));
    ChooseLanguage(study_->Store(), Language::English);
  }

  void cutsNoRowWhileThereIsSpace_data() {
    QTest::addColumn<bool>("everybody");
    QTest::newRow("six heirs") << false;
    QTest::newRow("everybody") << true;
  }
  // At every height and with all notices: those who take and their sum are never cut, an heir without a share
  // only where the tree has to scroll as well, and a tree only where the table has no space to spare. A page
  // that scrolls cuts nothing that would fit the window.
  void cutsNoRowWhileThereIsSpace() {
    QFETCH(const bool, everybody);
    TypeFamily();
    for (int field = 4; everybody && field <= 33; ++field) {
      if ((field > 7 && field < 13) || (field > 21 && field < 30)) continue;
      study_->Form().Text1(field).Text = std::string(1, '1');
    }
    study_->Type("Text1(28)", QStringLiteral("12000"));
    QTRY_VERIFY(Find("HeirsConsent")->isVisible());
    auto* table = Find<QTableView>("DivisionTable");
    auto* tree = static_cast<QScrollArea*>(Find("FamilyTree")->parentWidget()->parentWidget());
    auto* page = static_cast<QScrollArea*>(Division()->centralWidget());
    int pages = 0;
    for (const int width : {860, 640}) {
      for (int height = 1500; height >= 400; height -= 44) {
        Division()->resize(width, height);
        QTest::qWait(10);
        const QByteArray size = QByteArray::number(width) + " x " + QByteArray::number(height);
        const QRect seen = table->viewport()->rect();
        const bool cutsTable = table->verticalScrollBar()->maximum() > 0;
        const bool cutsTree = tree->verticalScrollBar()->maximum() > 0;
        const int window = page->viewport()->height();
        const bool fitsSum =
            table->rowViewportPosition(Row("Sum")) + table->rowHeight(Row("Sum")) <= seen.height();
        QVERIFY2(fitsSum || table->height() >= window, size);
        if (page->verticalScrollBar()->maximum() > 0) {
          ++pages;
          QVERIFY2(!cutsTree || tree->parentWidget()->height() >= window, size);
        } else {
          QVERIFY2(!cutsTable || cutsTree, size);
          const int last = table->model()->rowCount() - 1;
          const int end = table->rowViewportPosition(last) + table->rowHeight(last);
          QVERIFY2(!cutsTree || end + 4 >= seen.height(), size);
        }
      }
    }
    QVERIFY(pages > 0);
  }

  // A comparison beside the amounts of the commands has the most columns. They fit, in every language; on a
  // small screen a scroll bar leads to the rest, and no cell is narrower than its text.
  void aComparisonFitsBesideTheAmountsOfTheCommands() {
    TypeFamily();
    study_->Type("Text1(25)", QStringLiteral("2400000"));
    QTRY_COMPARE(Cell("Sum", 4), QStringLiteral("2,400,000.00"));
    Find<QAction>("Keep")->trigger();
    study_->Type("Text1(3)", QStringLiteral("3"));
    QTRY_VERIFY(Column("Difference") > Column("Case Study"));
    auto* table = Find<QTableView>("DivisionTable");
    for (const Language language : AllLanguages) {
      ChooseLanguage(study_->Store(), language);
      for (const int width : {880, 560}) {
        Division()->resize(width, 820);
        QTest::qWait(20);
        QCOMPARE(table->horizontalScrollBar()->isVisible(), width == 560);
        const QAbstractItemView* view = table;  // names and reasons are wrapped
        for (int column = 1; column + 1 < table->model()->columnCount(); ++column)
          QVERIFY(table->columnWidth(column) >= view->sizeHintForColumn(column));
        QVERIFY(table->horizontalHeader()->sizeHint().height() <= table->horizontalHeader()->height());
      }
    }
    ChooseLanguage(study_->Store(), Language::English);
  }

  void marksTheFocusAtEachTabStopAndKeepsTheChosenRowReadable() {
    TypeFamily();
    Activate();
    auto* table = Find<QTableView>("DivisionTable");
    QTRY_VERIFY(table->hasFocus());
    QVERIFY(table->selectionModel()->hasSelection());
    table->selectRow(Row("Consanguine brother"));
    QTest::qWait(50);  // for the layout
    const QRect row = table->visualRect(table->currentIndex());
    const QImage picture = table->viewport()->grab(row.marginsRemoved({8, 2, 2, 2})).toImage();
    double contrast = 0;
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < picture.height(); ++y) {
        contrast = std::max(contrast, Contrast(picture.pixelColor(x, y), picture.pixelColor(0, 0)));
      }
    }
    QVERIFY2(contrast >= LeastContrast, qPrintable(QString::number(contrast)));

    table->selectRow(Row("Sum"));  // whom the tree does not show
    QList<QWidget*> stops;
    for (QWidget* stop = table; !stops.contains(stop); stop = QApplication::focusWidget()) {
      stops.append(stop);
      const QImage with = Division()->grab().toImage();
      stop->clearFocus();
      QVERIFY2(Division()->grab().toImage() != with, qPrintable(stop->objectName()));
      stop->setFocus(Qt::TabFocusReason);
      QTest::keyClick(stop, Qt::Key_Tab);
    }
    QVERIFY(stops.contains(Find("Notice")));   // for its link
    QVERIFY(!stops.contains(Find("Estate")));  // has none
    QCOMPARE(QApplication::focusWidget(), table);
  }

  void returnsToTheFieldAndToTheWidgetThatHadTheFocus() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    auto* field = study_->Find<QLineEdit>("Text1(16)");
    study_->Type("Text1(16)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Mother") >= 0);
    OpenWithKey();
    QTRY_COMPARE(QApplication::focusWidget(), Find("DivisionTable"));
    study_->Window().showMinimized();
    Activate();
    QTest::keyClick(Find("DivisionTable"), Qt::Key_F8);
    QTRY_COMPARE(QApplication::focusWidget(), field);
    QVERIFY(!study_->Window().isMinimized());
    OpenWithKey();
    QTRY_COMPARE(QApplication::focusWidget(), Find("DivisionTable"));
    Find("School")->setFocus();
    QTest::keyClick(Division(), Qt::Key_F8);
    OpenWithKey();
    QTRY_COMPARE(QApplication::focusWidget(), Find("School"));
  }

  // Where the window is too narrow for all tools, the keyboard leads to the others too.
  void theKeyboardReachesAllToolsOfANarrowWindow() {
    TypeFamily();
    Activate();
    Division()->resize(Division()->minimumSizeHint().width(), 700);
    auto* language = Find("Language");
    QTRY_VERIFY(!language->isVisible());
    Find("DivisionTable")->setFocus();
    for (int i = 0; i < 20 && language != QApplication::focusWidget(); ++i) {
      QWidget* stop = QApplication::focusWidget();
      if (stop->objectName() == QLatin1String("qt_toolbar_ext_button")) {
        QVERIFY(!stop->accessibleName().isEmpty());
        if (!language->isVisible()) QTest::keyClick(stop, Qt::Key_Space);
        QTRY_VERIFY(language->isVisible());
      }
      QTest::keyClick(stop, Qt::Key_Tab, Qt::ShiftModifier);
    }
    QCOMPARE(QApplication::focusWidget(), language);
  }

  // Nothing is cut on a small screen: what has no space scrolls.
  void fitsASmallScreen() {
    for (const char* field : {"Text1(2)", "Text1(3)", "Text1(13)", "Text1(16)", "Text1(22)", "Text1(23)"}) {
      study_->Type(field, QStringLiteral("9"));
    }
    Division()->resize(620, 400);
    QTRY_VERIFY(Division()->width() <= 660);
    QVERIFY(Division()->minimumSizeHint().width() <= 800);
    QVERIFY(Division()->minimumSizeHint().height() <= 560);
  }
};

}  // namespace qismora

int main(int argc, char** argv) {
  return qismora::testing::RunWindowTest<qismora::DivisionPlaceTest>(argc, argv);
}
#include "division_place_test.moc"
