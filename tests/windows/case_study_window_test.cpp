#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QWheelEvent>
#include <optional>

#include "CaseStudyFixture.h"
#include "windows/widgets/PictureWidgets.h"

using qismora::testing::CaseStudyFixture;

namespace {

const QString executed = QStringLiteral("Current data executed successfully.");

}  // namespace

class CaseStudyWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { fixture_.emplace(); }
  void cleanup() {
    QCOMPARE(fixture_->Boxes.Take(), QStringList());
    fixture_.reset();
  }

  // A wife, a son and a daughter, from the keyboard to the distribution.
  void PlaysAWorkedCase() {
    for (const char* heir : {"Text1(1)", "Text1(2)", "Text1(3)"}) fixture_->Type(heir, "1");
    fixture_->Type("Text1(25)", "24000");
    for (const char* field : {"Text1(26)", "Text1(27)", "Text1(28)"}) fixture_->Type(field, "0");
    QTest::keyClick(&fixture_->Window(), Qt::Key_F5);
    auto* report = fixture_->Find<QPlainTextEdit>("Text3");
    QTRY_VERIFY(report->isVisible());
    QVERIFY(!fixture_->Find("Frame5")->isVisible());
    QVERIFY(!fixture_->Find("Text2")->isVisible());
    const QString text = report->toPlainText();
    for (const char* line : {"WIFE (1) = 3000  (1/8)\n", "RESIDUE (Balance) = 21000 (7/8)\n",
                             "SONS (1) = 14000 (14/24)\n", "DAUGHTERS (1) = 7000 (7/24)\n"}) {
      QVERIFY2(text.contains(QString::fromUtf8(line)), line);
    }
    QVERIFY(!text.contains('\r'));
    QCOMPARE(fixture_->TextOf("Label2"), QString("SHARES AS RESIDUARY (ASABA')"));
    QCOMPARE(fixture_->TextOf("Label13"), QString("1"));
    QCOMPARE(fixture_->Find<QLineEdit>("Text1(29)")->text(), QString("24000"));
  }

  void OneHeir_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"mouse", "on top", "Return", "Space", "menu", "press", "from the field"}) {
      QTest::newRow(way) << QString::fromLatin1(way);
    }
  }
  // Every way to compute the share of one heir: mouse, keys, context menu, screen reader.
  void OneHeir() {
    QFETCH(const QString, way);
    fixture_->Type("Text1(16)", "1");
    QWidget* caption = fixture_->Find("Label1(16)");
    if (way == "mouse") fixture_->DoubleClick("Label1(16)");
    if (way == "on top") fixture_->DoubleClickAt("Image18");
    if (way == "Return") fixture_->Key("Label1(16)", Qt::Key_Return);
    if (way == "Space") fixture_->Key("Label1(16)", Qt::Key_Space);
    if (way == "menu") ChooseFromMenu(caption, 0);
    if (way == "from the field")
      QTest::keyClick(fixture_->Find("Text1(16)"), Qt::Key_Return, Qt::ControlModifier);
    if (way == "press") {
      QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(caption);
      QCOMPARE(accessible->role(), QAccessible::Button);
      accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    QTRY_COMPARE(fixture_->Boxes.Count(), 1);
    QCOMPARE(fixture_->Boxes.Take(), QStringList(executed));
    QVERIFY(fixture_->Find("Text2")->isVisible());
    QCOMPARE(fixture_->TextOf("Label2"), QString("MOTHER'S SHARE"));
    QCOMPARE(fixture_->TextOf("Label3"), QString("3333  (1/3)"));
    QCOMPARE(fixture_->TextOf("StatusBar1.Panel1"), QString("Share of Mother"));
    QCOMPARE(fixture_->TextOf("Label13"), QString("2"));
  }

  void FieldsToggle() {
    auto* sons = fixture_->Find<QLineEdit>("Text1(2)");
    fixture_->Type("Text1(2)", "3");
    fixture_->DoubleClick("Text1(2)");
    QCOMPARE(sons->text(), QString("0"));
    fixture_->Key("Text1(2)", Qt::Key_F2);
    QCOMPARE(sons->text(), QString("1"));
    ChooseFromMenu(sons, -1);
    QTRY_COMPARE(sons->text(), QString("0"));
    sons->undo();
    QCOMPARE(sons->text(), QString("1"));
    fixture_->Type("Text1(2)", "1,000");
    QVERIFY(sons->toolTip().startsWith("Read as 1\n"));
    fixture_->Key("Text1(2)", Qt::Key_F2);
    QVERIFY(!sons->toolTip().startsWith("Read"));
    fixture_->DoubleClick("Text1(24)");
    QCOMPARE(fixture_->Find<QLineEdit>("Text1(24)")->text(), QString("ABDULLAH"));
    // A click into a field selects the 0, so that the next key replaces it; the arrows move on.
    QTest::mouseClick(fixture_->Find("Text1(3)"), Qt::LeftButton);
    QTest::keyClicks(fixture_->Find("Text1(3)"), "2");
    QCOMPARE(fixture_->Find<QLineEdit>("Text1(3)")->text(), QString("2"));
    QTest::keyClick(fixture_->Find("Text1(3)"), Qt::Key_Down);
    QVERIFY(fixture_->Find("Text1(4)")->hasFocus());
  }

  // What stays where no number was typed is what the last run has left.
  void HintsFollowTheRuns() {
    fixture_->Type("Text1(25)", "none");
    const QWidget* estate = fixture_->Find("Text1(25)");
    QVERIFY(estate->accessibleDescription().endsWith(": 0 stays."));
    fixture_->Type("Text1(25)", "18600");
    fixture_->DoubleClick("Label1(3)");
    QCOMPARE(fixture_->Boxes.Take(), QStringList(executed));
    fixture_->Type("Text1(25)", "none");
    QVERIFY(estate->accessibleDescription().endsWith(": 18600 stays."));
    QVERIFY(estate->toolTip().startsWith(estate->accessibleDescription()));
  }

  void PastedTexts_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("taken");
    const QString estate = "Text1(25)";
    const QString name = "Text1(24)";
    QTest::newRow("from a spreadsheet") << estate << "\t24000 \r\n"
                                        << "24000";
    QTest::newRow("from a web page") << estate << QString::fromUtf8("\u00A024000\u202F") << "24000";
    QTest::newRow("two cells") << estate << "24000\n18600"
                               << "24000 18600";
    QTest::newRow("a line break alone") << estate << "\n"
                                        << "";
    QTest::newRow("Arabic digits") << estate << QString::fromUtf8("\u200F٢٤٠٠٠٫٥") << "24000.5";
    QTest::newRow("Persian and Urdu digits") << estate << QString::fromUtf8("۲۴۰۵۶") << "24056";
    QTest::newRow("two lines") << name << "Abdul\r\nKarim\n"
                               << "Abdul Karim";
    const QString urdu = QString::fromUtf8("علی\u200Cرضا ۲");
    QTest::newRow("Urdu") << name << urdu << urdu;
    QTest::newRow("reversed") << name << QString::fromUtf8("Ali\u202Etxt.\u0007") << "Alitxt.";
  }
  void PastedTexts() {
    QFETCH(const QString, field);
    QFETCH(const QString, text);
    QFETCH(const QString, taken);
    auto* widget = fixture_->Find<QLineEdit>(qPrintable(field));
    QGuiApplication::clipboard()->setText(text);
    widget->clear();
    QTest::keySequence(widget, QKeySequence::Paste);
    QCOMPARE(widget->text(), taken);
    widget->clear();
    ChooseFromMenu(widget, 5);
    QTRY_COMPARE(widget->text(), taken);
    widget->clear();
    QMimeData dragged;
    dragged.setText(text);
    QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &enter);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(widget, &drop);
    QCOMPARE(widget->text(), taken);
    widget->setText(text);
    QCOMPARE(widget->text(), text);
  }

  // An Arabic keyboard sends keys or, on many desktops, commits its text as an input method.
  void TypedDigits() {
    const QString five = QString::fromUtf8("٥");
    for (const char* field : {"Text1(2)", "Text1(24)"}) {
      auto* widget = fixture_->Find<QLineEdit>(field);
      widget->clear();
      QKeyEvent key(QEvent::KeyPress, 0x665, {}, five);
      QApplication::sendEvent(widget, &key);
      QInputMethodEvent commit;
      commit.setCommitString(five);
      QApplication::sendEvent(widget, &commit);
      QCOMPARE(widget->text(), widget == fixture_->Find("Text1(2)") ? QString("55") : five + five);
    }
  }

  void GenderAndView() {
    auto* gender = fixture_->Find<QComboBox>("Combo1");
    fixture_->Find("Text1(2)")->setFocus();
    QWheelEvent passing({3, 3}, gender->mapToGlobal(QPointF(3, 3)), {}, {0, -120}, {}, {}, {}, false);
    QApplication::sendEvent(gender, &passing);
    QCOMPARE(gender->currentIndex(), 0);
    QTest::keyClick(gender, Qt::Key_Down);
    QCOMPARE(fixture_->TextOf("Label1(1)"), QString("Husband"));
    QCOMPARE(fixture_->Find("Text1(1)")->accessibleName(), QString("Husband"));
    QCOMPARE(fixture_->Find<QGroupBox>("Frame1")->title(), QString("Informations of the deceased Female"));
    QVERIFY(fixture_->Find("Image30(1)")->isVisible());

    fixture_->Click("Label4(2)");
    QCOMPARE(gender->currentIndex(), 0);
    QVERIFY(fixture_->Find("Image41(5)")->isVisible() && !fixture_->Find("Image12")->isVisible());
    QVERIFY(fixture_->Find("Frame6(1)")->isVisible() && !fixture_->Find("Frame4(1)")->isVisible());
    QWidget* arabic = fixture_->Find("Label4(2)");
    QCOMPARE(arabic->grab().toImage().pixelColor(0, 0), arabic->palette().color(QPalette::WindowText));

    fixture_->Open();
    QVERIFY2(fixture_->Find("Frame6(0)")->isVisible(), "the view is saved");
    fixture_->Key("Label4(1)", Qt::Key_Space);
    QVERIFY(!fixture_->Find("Frame6(0)")->isVisible());
    QVERIFY(fixture_->Find("Image9")->isVisible());
  }

  // The panels over the captions of class II answer a question by a double click, and tick by a click.
  void ClassIIPanels() {
    fixture_->Click("Label4(0)");
    auto* third = fixture_->Find<QCheckBox>("Check1(4)");
    QWidget* panel = fixture_->Find("Image37(1)");
    const QPoint line(10, panel->height() * 3 / 8);
    QTRY_VERIFY(!static_cast<qismora::PictureButton*>(panel)->PictureRect().isEmpty());
    QTest::mouseClick(panel, Qt::LeftButton, {}, QPoint(panel->width() - 2, line.y()));
    QVERIFY2(!third->isChecked(), "beside the captions nothing is ticked");
    QTest::mouseClick(panel, Qt::LeftButton, {}, line);
    QVERIFY(third->isChecked());
    QTest::mouseClick(panel, Qt::LeftButton, {}, line);
    QTest::mouseDClick(panel, Qt::LeftButton, {}, line);
    QVERIFY(third->isChecked());
    QCOMPARE(fixture_->TextOf("Label2"), QString("CLASS II RESIDUARY (ASABA')"));
    fixture_->Key("Image37(1)", Qt::Key_Return);
    QVERIFY(third->isChecked());
    QTRY_COMPARE(fixture_->Boxes.Count(), 2);
    for (const QString& text : fixture_->Boxes.Take()) QVERIFY(text.contains("WE ARE CLASS II RESIDUARIES"));
    QVERIFY(third->rect().right() > panel->mapTo(&fixture_->Window(), QPoint()).x() -
                                        third->mapTo(&fixture_->Window(), QPoint()).x());
  }

  // Whatever the fields contain, a command ends and the window keeps working.
  void UnusualTexts() {
    fixture_->Boxes.Press(QMessageBox::No);
    for (const QString& text : {QString(400, '9'), QString::fromUtf8("عبد الله ٣"), QString::fromUtf8("👪👪"),
                                QString(QChar(0xD83D)), QString("<b>1</b>&amp;")}) {
      for (const char* field : {"Text1(1)", "Text1(7)", "Text1(24)", "Text1(25)", "Text1(28)"}) {
        fixture_->Find<QLineEdit>(field)->setText(text);
        fixture_->DoubleClick("Label1(3)");
        fixture_->Find<QAction>("Resid")->trigger();
        fixture_->DoubleClick(field);
      }
    }
    fixture_->Boxes.Take();
    QVERIFY(fixture_->TextOf("Label13").toInt() > 0);
    QCOMPARE(fixture_->Window().size(), QSize(799, 599));
    fixture_->Click("Image2");
    QCOMPARE(fixture_->Find<QLineEdit>("Text1(7)")->text(), QString("0"));
  }

  void WillsAreAsked() {
    for (const auto& [button, left] : {std::pair(QMessageBox::No, "6200"), {QMessageBox::Yes, "9000"}}) {
      fixture_->Type("Text1(28)", "9000");
      fixture_->Boxes.Press(button);
      fixture_->DoubleClick("Label1(3)");
      QCOMPARE(fixture_->Boxes.Take().size(), 2);
      QCOMPARE(fixture_->Find<QLineEdit>("Text1(28)")->text(), QString(left));
    }
  }

  void ClearBringsFrame5() {
    fixture_->DoubleClick("Label1(3)");
    fixture_->Boxes.Take();
    QWidget* cover = fixture_->Find("Frame5");
    QVERIFY(!cover->isVisible());
    QCOMPARE(fixture_->Find("Text2")->focusPolicy(), Qt::StrongFocus);
    fixture_->Find<QCheckBox>("Check1(7)")->click();
    const QColor green = fixture_->Find("Label6")->palette().color(QPalette::WindowText);
    fixture_->Key("Image2", Qt::Key_Return);
    QVERIFY(cover->isVisible());
    QVERIFY(!fixture_->Find<QCheckBox>("Check1(7)")->isChecked());
    QCOMPARE(fixture_->Find("Text2")->focusPolicy(), Qt::NoFocus);
    QVERIFY(fixture_->Find("Label6")->palette().color(QPalette::WindowText) != green);
    for (const char* name : {"Text2", "Label3"}) {
      const QWidget* under = fixture_->Find(name);
      QVERIFY2(cover->geometry().contains(under->geometry()), name);
    }
  }

  // The command of Aul is shown only while the shares exceed the estate.
  void AulComesAndGoes() {
    QVERIFY(!fixture_->Find("AulRadd")->isVisible());
    QTest::keyClick(fixture_->Find("Combo1"), Qt::Key_Down);
    fixture_->Type("Text1(1)", "1");
    fixture_->Type("Text1(23)", "2");
    fixture_->Type("Text1(16)", "1");
    fixture_->Find<QAction>("Resid")->trigger();
    QVERIFY(fixture_->Boxes.Take().join(QString()).contains("APPLY 'AUL' DOCTRINE"));
    QVERIFY(fixture_->Find("AulRadd")->isVisible());
    QVERIFY(!fixture_->Find<QAction>("AulRad")->isEnabled());
    QTest::keyClick(&fixture_->Window(), Qt::Key_F6);
    QVERIFY(fixture_->Find<QPlainTextEdit>("Text3")->toPlainText().contains("HUSBAND"));
  }

  void SavesWhatIsShown() {
    fixture_->DoubleClick("Label1(3)");
    fixture_->Boxes.Take();
    fixture_->Boxes.Leave();
    QTimer typist;
    connect(&typist, &QTimer::timeout, this, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      QCOMPARE(dialog->objectName(), QString("CommonDialog1"));
      dialog->setDirectory(QDir::current());
      dialog->selectFile("daughters");
      QTest::keyClick(dialog, Qt::Key_Return);
    });
    typist.start(5);
    fixture_->Find<QAction>("SaveResults")->trigger();
    QFile file("daughters.txt");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readLine().startsWith("DAUGHTERS' SHARE\r\n"));
  }

  // In the status bar and to a screen reader, with path and reason; a long path does not widen the window.
  void SavesAreReported() {
    const auto* panel = fixture_->Find<QLabel>("StatusBar1.Panel2");
    const QSize size = fixture_->Window().size();
    auto* save = fixture_->Find<QAction>("CreateSaveFullReport");
    save->trigger();
    QVERIFY(fixture_->Boxes.Take().constLast().contains("saved successfully"));
    QCOMPARE(panel->text(), "Saved: " + QDir::currentPath() + "/abdullah.txt");
    const QString name = QString(150, 'a') + " / 2026";
    fixture_->Find<QLineEdit>("Text1(24)")->setText(name);
    save->trigger();
    const QString said = "Not saved (this is no file name): " + QDir::currentPath() + '/' + name + ".txt";
    QCOMPARE(panel->text(), said);
    QCOMPARE(panel->toolTip(), said);
    const QAccessibleInterface* read =
        QAccessible::queryAccessibleInterface(fixture_->Find("StatusBar1.Panel2"));
    QCOMPARE(read->text(QAccessible::Name), said);
    QCOMPARE(read->role(), QAccessible::Notification);
    QCOMPARE(fixture_->Window().size(), size);
    QVERIFY(panel->geometry().left() > fixture_->Find("StatusBar1.Panel1")->geometry().left());
    fixture_->Find<QLineEdit>("Text1(24)")->setText("Abdullah");
    QCOMPARE(panel->text(), "Full reports are saved in " + QDir::currentPath());
  }

  void Animation() {
    fixture_->Form().Timer1_Timer();
    QVERIFY(fixture_->Find("Image42(2)")->isVisible() && !fixture_->Find("Image42(0)")->isVisible());
    auto* timer = fixture_->Find<QTimer>("Timer1");
    QVERIFY(timer->isActive());
    fixture_->Click("Image42(2)");
    QVERIFY(!timer->isActive());
    fixture_->MoveTo("Image7(1)", QPoint(5, 5));
    QVERIFY(!fixture_->Find("Image7(1)")->isVisible());
    fixture_->MoveTo("Frame111", QPoint(2, 2));
    QVERIFY(fixture_->Find("Image7(1)")->isVisible());
  }

  void ThePointerShowsAReportBeingMade() {
    int waiting = 0;
    fixture_->Form().Text3.Text.WhenChanged([&] {
      const QCursor* shape = QGuiApplication::overrideCursor();
      waiting += shape != nullptr && shape->shape() == Qt::WaitCursor ? 1 : 0;
    });
    fixture_->Find<QAction>("Exec")->trigger();
    QVERIFY(waiting > 0);
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
  }

  void ReportsGoToTheDocumentsWhereTheFolderIsClosed() {
    // A directory of the process table cannot be written to, not even by root.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QStringLiteral("/proc/self")));
    const std::string folder = qismora::SystemFolders().Reports();
    fixture_->Open();
    QVERIFY(QDir::setCurrent(before));
    auto* panel = fixture_->Find<QLabel>("StatusBar1.Panel2");
    QVERIFY(panel->toolTip().endsWith(QString::fromStdString(folder)));
    QCOMPARE(panel->accessibleName(), panel->toolTip());
    QCOMPARE(QString::fromStdString(folder),
             QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QVERIFY(QFileInfo(QString::fromStdString(folder)).isWritable());
  }

  void CentredWhenMaximized() {
    QWidget& window = fixture_->Window();
    const QWidget* frame = fixture_->Find("Frame111");
    const QSize normal = window.size();
    window.showMaximized();
    QTRY_VERIFY2(window.width() > 800 && window.height() > 600, "the screen is larger");
    QTRY_COMPARE(frame->geometry(), QRect((window.width() - 800) / 2, (window.height() - 600) / 2, 800, 600));
    window.showNormal();
    QTRY_COMPARE(window.size(), normal);
    QTRY_COMPARE(frame->pos(), QPoint(0, 0));
    const QSize answer = fixture_->Find("Frame5")->size();
    window.resize(normal + QSize(100, 50));
    QTRY_COMPARE(fixture_->Find("Frame5")->size(), answer + QSize(100, 50));
  }

 private:
  /// Opens the context menu as the menu key does and takes the entry of that number; -1 is the last.
  void ChooseFromMenu(QWidget* widget, int entry) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(widget, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QAction* action = entry < 0 ? menu->actions().constLast() : menu->actions().at(entry);
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
  }

  std::optional<CaseStudyFixture> fixture_;
};

int main(int argc, char** argv) { return qismora::testing::RunWindowTest<CaseStudyWindowTest>(argc, argv); }

#include "case_study_window_test.moc"
