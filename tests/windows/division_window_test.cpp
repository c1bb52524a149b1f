#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "DivisionFixture.h"
#include "casefile/CaseFile.h"
#include "windows/division/DivisionTableView.h"
#include "windows/division/DivisionWindow.h"
#include "windows/division/FamilyTreeView.h"
#include "windows/help/HelpWindow.h"

namespace qismora {

using testing::DivisionFixture;

class DivisionWindowTest : public DivisionFixture {
  Q_OBJECT

 private slots:
  void init() { Start(); }
  void cleanup() { study_.reset(); }

  void followsEveryKeystroke() {
    QCOMPARE(Find<QLabel>("Headline")->text(), QStringLiteral("Type who survives and what is left."));
    study_->Type("Text1(2)", QStringLiteral("1"));
    QTRY_COMPARE(Cell("Son", 4), QStringLiteral("10,000.00"));
    study_->Type("Text1(16)", QStringLiteral("1"));
    QTRY_COMPARE(Cell("Mother", 2), QStringLiteral("1/6"));
    QCOMPARE(Cell("Sum", 4), QStringLiteral("10,000.00"));
    study_->Type("Text1(22)", QStringLiteral("2"));
    QTRY_VERIFY(Row("Full brothers") > Row("Sum"));
    study_->Form().Check1(4).Value = 1;
    QTRY_VERIFY(Row("Full uncle") > Row("Sum"));
    study_->Type("Text1(1)", QStringLiteral("1"));
    QTRY_COMPARE(Cell("Wife", 2), QStringLiteral("1/8"));
    study_->Find<QComboBox>("Combo1")->setCurrentIndex(Female);
    QTRY_COMPARE(Cell("Husband", 2), QStringLiteral("1/4"));
    // Nothing of it presses a command, nor counts as an execution.
    QCOMPARE(study_->TextOf("Label13"), QStringLiteral("0"));
  }

  // A command changes many fields, and the window reads them once.
  void anEventMayChangeManyFieldsForOneUpdate() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Son") >= 0);
    study_->Form().Text1(2).Text = "2";
    study_->Form().Text1(3).Text = "1";
    QVERIFY(Row("Daughter") < 0);
    QTRY_VERIFY(Row("Daughter") >= 0);
    QVERIFY(Row("Sons") >= 0);
  }

  void opensByMenuLineAndKeyAndLeadsBack() {
    Division()->close();
    QTest::mouseClick(study_->Find<QToolButton>("DivisionLine"), Qt::LeftButton);
    QTRY_VERIFY(Division()->isVisible());
    QTRY_VERIFY(Division()->isActiveWindow());
    QTest::keyClick(Division(), Qt::Key_F8);
    QTRY_VERIFY(study_->Window().isActiveWindow());
    Division()->close();
    study_->Find<QAction>("Division")->trigger();
    QTRY_VERIFY(Division()->isVisible());
    QVERIFY(Division()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  }

  void printsThatDebtsExceedTheEstate() {
    study_->Type("Text1(27)", QStringLiteral("99999"));
    QTRY_VERIFY(!Find<QTableView>("DivisionTable")->isVisible());
    QVERIFY(Find<QAction>("PrintDivision")->isEnabled());
    QVERIFY(!Find<QAction>("FourSchools")->isEnabled());
  }

  void namesUnreadableFieldsAndLeadsToThem() {
    study_->Type("Text1(3)", QStringLiteral("two"));
    auto* faults = Find<QLabel>("Unreadable");
    QTRY_VERIFY(faults->isVisible());
    QVERIFY(faults->text().contains(QStringLiteral("is not a whole number")));
    QVERIFY(!Find<QTableView>("DivisionTable")->isVisible());
    QVERIFY(!Find<QAction>("PrintDivision")->isEnabled());
    auto* field = study_->Find<QLineEdit>("Text1(3)");
    Activate();
    faults->setFocus(Qt::TabFocusReason);  // marks the first link
    QTest::keyClick(faults, Qt::Key_Return);
    QTRY_COMPARE(QApplication::focusWidget(), field);
    // By the mouse: the link begins behind the stripe.
    study_->Find<QLineEdit>("Text1(2)")->setFocus();
    Activate();
    QTest::mouseClick(faults, Qt::LeftButton, {}, QPoint(40, faults->height() / 2));
    QTRY_VERIFY(study_->Window().isActiveWindow());
    QTRY_COMPARE(QApplication::focusWidget(), field);
    study_->Type("Text1(3)", QStringLiteral("2"));
    QTRY_VERIFY(!faults->isVisible());
    QTRY_VERIFY(Find<QTableView>("DivisionTable")->isVisible());
  }

  void marksTheExampleFiguresUntilTheyAreTyped() {
    QVERIFY(Find<QLabel>("Examples")->isVisible());
    study_->Type("Text1(25)", QStringLiteral("1200"));
    study_->Type("Text1(26)", QStringLiteral("0"));
    study_->Type("Text1(27)", QStringLiteral("0"));
    study_->Type("Text1(28)", QStringLiteral("0"));
    QTRY_VERIFY(Find<QLabel>("Examples")->text().contains(QStringLiteral("opens: Name of the deceased.")));
    study_->Type("Text1(24)", QStringLiteral("Zaynab"));
    QTRY_VERIFY(!Find<QLabel>("Examples")->isVisible());
  }

  void asksForTheConsentOfTheHeirsWhereItMatters() {
    auto* consent = Find<QCheckBox>("HeirsConsent");
    study_->Type("Text1(2)", QStringLiteral("1"));
    QVERIFY(!consent->isVisible());
    study_->Type("Text1(28)", QStringLiteral("8000"));
    QTRY_VERIFY(consent->isVisible());
    QVERIFY(Find<QLabel>("Bequests")->isVisible());
    QTRY_COMPARE(Cell("Son", 4), QStringLiteral("8,400.00"));
    QTest::keyClick(consent, Qt::Key_Space);
    QTRY_COMPARE(Cell("Son", 4), QStringLiteral("4,600.00"));
    QVERIFY(consent->isVisible());
    QVERIFY(!Find<QLabel>("Bequests")->isVisible());  // the check box says it
  }

  void theConsentIsSavedOpenedAndForgottenWithTheCase() {
    auto* consent = Find<QCheckBox>("HeirsConsent");
    study_->Type("Text1(2)", QStringLiteral("1"));
    study_->Type("Text1(28)", QStringLiteral("8000"));
    QTRY_VERIFY(consent->isVisible());
    QTest::keyClick(consent, Qt::Key_Space);
    CaseDocument& document = study_->Window().Document();
    const std::string file = FromQt(QDir::current().filePath(QStringLiteral("consent.qismora")));
    const CaseTexts consented = ReadScreen(study_->Form(), study_->Form().HeirsConsent);
    QVERIFY(consented.HeirsConsent);
    SystemFolders folders;
    SaveCaseFile(folders, file, consented);
    study_->Boxes.Press(QMessageBox::Discard);
    document.New();
    QCOMPARE(study_->Boxes.Take().size(), 1);
    QTRY_VERIFY(!consent->isChecked());
    QVERIFY(document.OpenFile(file));
    QTRY_VERIFY(consent->isChecked());
    QTRY_COMPARE(Cell("Son", 4), QStringLiteral("4,600.00"));
    // What is ticked here has changed the case.
    QTest::keyClick(consent, Qt::Key_Space);
    QVERIFY(document.IsChanged());
  }

  // The commands have no line for a grandfather in the text of Aul.
  void cannotHideThatTheCommandsAnswerOtherwise() {
    for (const auto& [field, heads] : {std::pair("Text1(1)", "1"), std::pair("Text1(3)", "2"),
                                       std::pair("Text1(14)", "1"), std::pair("Text1(16)", "1")}) {
      study_->Type(field, QString::fromLatin1(heads));
    }
    auto* notice = Find<QLabel>("Notice");
    QTRY_VERIFY(notice->isVisible());
    emit notice->linkActivated(QStringLiteral("differs:8. A grandfather in the Aul text"));
    QTRY_VERIFY(HelpIsShown());
    QVERIFY(!Cell("Grandfather", 6).isEmpty());
    QVERIFY(Cell("Grandfather", 6).startsWith(QStringLiteral("≠")));
  }

  void showsTheFourSchoolsAndRemembersTheChosenOne() {
    study_->Type("Text1(14)", QStringLiteral("1"));
    study_->Type("Text1(22)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Full brother") > Row("Sum"));
    auto* schools = Find<QComboBox>("School");
    schools->setFocus();
    QTest::keyClick(schools, Qt::Key_Down);
    QTRY_COMPARE(Cell("Full brother", 2), QStringLiteral("1/2"));
    Activate();
    QTest::keyClick(Division(), Qt::Key_4, Qt::ControlModifier);
    QTRY_COMPARE(Cell("Full brother", 1), QStringLiteral("–"));
    QVERIFY(Cell("Full brother", 2).startsWith(QStringLiteral("1/2")));
    QVERIFY(Cell("Full brother", 5).contains(QStringLiteral("Hanafi: excluded by the grandfather")));
    study_->Open();
    OpenWithKey();
    QCOMPARE(Find<QComboBox>("School")->currentText(), QStringLiteral("Maliki"));
  }

  // A scroll bar takes width from the sentences, which wrap and would need it then.
  void nothingScrollsOnceThereIsRoomForAll() {
    TypeFamily();
    auto* table = Find<DivisionTableView>("DivisionTable");
    for (int width = 500; width < 700; width += 5) {
      Division()->resize(width, 300);
      QTRY_VERIFY(table->verticalScrollBar()->maximum() > 0 || table->height() >= table->FullHeight());
      Division()->resize(width, 1000);
      QTRY_VERIFY(table->height() >= table->FullHeight());
      QTRY_COMPARE(table->verticalScrollBar()->maximum(), 0);
    }
  }

  void comparesWithTheDivisionThatIsKept() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    study_->Type("Text1(16)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Mother") >= 0);
    Find<QAction>("Keep")->trigger();
    study_->Type("Text1(2)", QStringLiteral("0"));
    // Before, and the difference; who is no longer alive has a line as well.
    QTRY_COMPARE(CellDifference("Son"), QStringLiteral("−8,333.33"));
    QCOMPARE(CellBefore("Son"), QStringLiteral("8,333.33"));
    QCOMPARE(CellDifference("Mother"), QStringLiteral("+8,333.33"));
    Find<QAction>("Keep")->trigger();
    QTRY_VERIFY(Row("Son") < 0);
  }

  void triesWhatWouldBeIfAnHeirHadDiedBefore() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    study_->Type("Text1(22)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Full brother") > Row("Sum"));
    auto* table = Find<QTableView>("DivisionTable");
    table->selectRow(Row("Son"));
    Activate();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Delete);
    QTRY_COMPARE(Cell("Full brother", 4), QStringLiteral("10,000.00"));
    QVERIFY(Find<QLabel>("Supposition")->isVisible());
    QVERIFY(Find<QLabel>("Supposition")
                ->text()
                .contains(QStringLiteral("Supposition: as if the son had died before the deceased.")));
    Find<QAction>("CopyDivision")->trigger();
    QVERIFY(QApplication::clipboard()->text().startsWith(
        QStringLiteral("Supposition: as if the son had died before the deceased.")));
    QVERIFY(Find<QLabel>("DivisionState")->text().startsWith(QStringLiteral("Copied.")));
    QCOMPARE(study_->TextOf("Text1(2)"), QStringLiteral("1"));
    QTest::keyClick(table, Qt::Key_Escape);
    QTRY_COMPARE(Cell("Son", 4), QStringLiteral("10,000.00"));
    QVERIFY(!Find<QLabel>("Supposition")->isVisible());
    QVERIFY(Find<QLabel>("DivisionState")->text().startsWith(QStringLiteral("Hanafi law")));
  }

  // Nobody is supposed dead in a case that has just been started, nor where nobody of them is alive.
  void aSuppositionEndsWithItsCase() {
    auto* words = Find<QLabel>("Supposition");
    const auto suppose = [&] {
      study_->Type("Text1(2)", QStringLiteral("1"));
      study_->Type("Text1(16)", QStringLiteral("1"));
      QTRY_VERIFY(Row("Son") >= 0);
      Find<QTableView>("DivisionTable")->selectRow(Row("Son"));
      QTest::keyClick(Find("DivisionTable"), Qt::Key_Delete);
      QTRY_VERIFY(words->isVisible());
    };
    suppose();
    CaseTexts other;
    other.Field(2) = "1";
    study_->Form().StartCase(other);
    QTRY_VERIFY(!words->isVisible());
    QCOMPARE(Cell("Son", 2), QStringLiteral("1"));
    suppose();
    study_->Type("Text1(2)", QStringLiteral("x"));
    QTRY_VERIFY(!words->isVisible());
    study_->Type("Text1(2)", QStringLiteral("2"));
    QTRY_VERIFY(words->isVisible());
    study_->Type("Text1(2)", QStringLiteral("0"));
    QTRY_VERIFY(!words->isVisible());
    QVERIFY(Find<QLabel>("DivisionState")->text().endsWith(QStringLiteral("as they stand now")));
  }

  void speaksRowsAsSentencesAndTheTreeAsText() {
    study_->Type("Text1(2)", QStringLiteral("1"));
    study_->Type("Text1(22)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Full brother") >= 0);
    auto* table = Find<QTableView>("DivisionTable");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(table);
    QCOMPARE(accessible->role(), QAccessible::Table);
    QAccessibleInterface* cell = accessible->tableInterface()->cellAt(Row("Son"), 0);
    QVERIFY(cell->text(QAccessible::Name).startsWith(QStringLiteral("Son: ")));
    QVERIFY(cell->text(QAccessible::Name).contains(QStringLiteral("10,000.00")));
    QVERIFY(cell->text(QAccessible::Name).contains(QStringLiteral("Quran 4:11")));
    const QString tree = Find("FamilyTree")->accessibleDescription();
    QVERIFY(tree.contains(QStringLiteral("Full brother: yields to a son")));
  }

  // The parts of the bar that are too narrow for a name have it below.
  void namesEveryPartOfTheEstate() {
    TypeFamily();
    auto* bar = Find("EstateBar");
    Division()->resize(900, 700);
    QTRY_VERIFY(bar->width() > 800);
    const int without = bar->height();
    const int line = bar->fontMetrics().height();
    Division()->resize(460, 700);
    QTRY_COMPARE_GE(bar->height(), without + line);
    Division()->resize(900, 700);
    QTRY_COMPARE(bar->height(), without);
  }

  // Of a tree that has no room the deceased is seen first, in the middle of the family.
  void showsTheDeceasedOfATallTree() {
    for (const char* field : {"Text1(2)", "Text1(4)", "Text1(6)", "Text1(13)", "Text1(14)", "Text1(15)"})
      study_->Type(field, QStringLiteral("1"));
    QTRY_VERIFY(Row("Great-grandfather") >= 0);
    Division()->resize(700, 480);
    auto* tree = Find<FamilyTreeView>("FamilyTree");
    QTRY_VERIFY(tree->visibleRegion().boundingRect().top() > 0);
    QTRY_VERIFY(tree->visibleRegion().contains(tree->PlaceOfDeceased()));
  }

  void treeAndTableChooseTheSameHeir_data() {
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
  }
  // By the keyboard: the tree leads through the heirs, and the row goes along.
  void treeAndTableChooseTheSameHeir() {
    QFETCH(const bool, mirrored);
    if (mirrored) Division()->setLayoutDirection(Qt::RightToLeft);
    study_->Type("Text1(2)", QStringLiteral("1"));
    study_->Type("Text1(13)", QStringLiteral("1"));
    QTRY_VERIFY(Row("Father") >= 0);
    auto* tree = Find("FamilyTree");
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Left);
    QCOMPARE(Find<QTableView>("DivisionTable")->currentIndex().row(), Row("Father"));
    QVERIFY(tree->accessibleName().contains(QStringLiteral("Father: 1/6")));
    QTest::keyClick(tree, Qt::Key_Right);
    QCOMPARE(Find<QTableView>("DivisionTable")->currentIndex().row(), Row("Son"));
  }

 private:
  static bool HelpIsShown() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (dynamic_cast<HelpWindow*>(window) != nullptr && window->isVisible()) return true;
    }
    return false;
  }
};

}  // namespace qismora

int main(int argc, char** argv) {
  return qismora::testing::RunWindowTest<qismora::DivisionWindowTest>(argc, argv);
}
#include "division_window_test.moc"
