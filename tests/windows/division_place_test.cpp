#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
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
    // At the user's request it stands where he has put it.
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
    // The next start of the program speaks it too.
    QCOMPARE(ChosenLanguage(study_->Store()), std::optional(Language::Urdu));
    QCOMPARE(study_->Find<QAction>("Case")->text(), QStringLiteral("صورت"));
    ChooseLanguage(study_->Store(), Language::English);
  }

  // The sentences above the table grow after the table has its rows.
  void cutsNoRowWhileThereIsSpace() {
    Division()->resize(860, 740);
    Division()->close();
    TypeFamily();
    auto* table = Find<QTableView>("DivisionTable");
    QTRY_COMPARE(table->verticalScrollBar()->maximum(), 0);
    const QRect last = table->visualRect(table->model()->index(table->model()->rowCount() - 1, 0));
    QVERIFY(last.bottom() <= table->viewport()->rect().bottom());
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
    QTest::keyClick(Find("DivisionTable"), Qt::Key_F8);
    QTRY_COMPARE(QApplication::focusWidget(), field);
    OpenWithKey();
    QTRY_COMPARE(QApplication::focusWidget(), Find("DivisionTable"));
    Find("School")->setFocus();
    QTest::keyClick(Division(), Qt::Key_F8);
    OpenWithKey();
    QTRY_COMPARE(QApplication::focusWidget(), Find("School"));
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
