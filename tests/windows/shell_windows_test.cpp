#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <utility>

#include "base/Files.h"
#include "shell/SessionLog.h"
#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"
#include "windows/RunningProgram.h"

namespace qismora {

using testing::Find;
using testing::MessageBoxSpy;
using testing::ProgramFixture;

namespace {

/// A double click as a mouse makes it.
void DoubleClick(QWidget* widget) {
  QTest::mouseClick(widget, Qt::LeftButton);
  QTest::mouseDClick(widget, Qt::LeftButton);
}

}  // namespace

class ShellWindowsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramFixture>();
    windows_ = &program_->Start();
    menu_ = &windows_->MainMenu();
    QVERIFY(QTest::qWaitForWindowActive(menu_));
  }
  void cleanup() {
    boxes_.Watch();
    boxes_.Press(QMessageBox::NoButton);
    QCOMPARE(boxes_.Take(), QStringList());
    program_.reset();
  }

  void aPageIsReadAndLeft() {
    for (const bool byCloseButton : {false, true}) {  // the same entry can be chosen again
      Choose(0);
      QTRY_VERIFY(windows_->Laws() != nullptr);
      QWidget* laws = windows_->Laws();
      QVERIFY(QTest::qWaitForWindowActive(laws));
      QVERIFY(Find<QPlainTextEdit>(laws, "Text2")->hasFocus());
      Choose(5);
      const QString title = QStringLiteral("EXCLUSION RULES OF INHERITANCE");
      QTRY_COMPARE(laws->windowTitle(), title);
      QCOMPARE(windows_->Laws(), laws);
      QCOMPARE(Find<QLineEdit>(laws, "Text1")->text(), title);
      QCOMPARE(Find<QLabel>(laws, "StatusBar1.Panel1")->text(), title);
      byCloseButton ? static_cast<void>(laws->close()) : Find<QAction>(laws, "Close")->trigger();
      QTRY_VERIFY(windows_->Laws() == nullptr);
      QVERIFY(QTest::qWaitForWindowActive(menu_));
    }
    QCOMPARE(program_->Ended.Ends, 0);
  }

  void aHiddenCaseKeepsItsTextsAndAClosedOneIsReset() {
    Choose(6);
    QTRY_VERIFY(windows_->Study() != nullptr);
    QWidget* study = windows_->Study();
    Find<QLineEdit>(study, "Text1(2)")->setText(QStringLiteral("3"));
    Find<QAction>(study, "Resid")->trigger();
    const Long loaded = windows_->Record().ExecCount;
    QVERIFY(loaded > 0);
    boxes_.Take();
    Find<QAction>(study, "Back")->trigger();
    QVERIFY(!study->isVisible());
    QVERIFY(QTest::qWaitForWindowActive(menu_));

    Choose(6);
    QTRY_VERIFY(study->isVisible());
    QCOMPARE(windows_->Study(), study);
    QCOMPARE(Find<QLineEdit>(study, "Text1(2)")->text(), QStringLiteral("3"));
    boxes_.Press(QMessageBox::Discard);
    study->close();
    QCOMPARE(boxes_.Take().size(), 1);
    QTRY_VERIFY(windows_->Study() == nullptr);
    QVERIFY(QTest::qWaitForWindowActive(menu_));
    QCOMPARE(program_->Ended.Ends, 0);

    Choose(6);
    QTRY_VERIFY(windows_->Study() != nullptr);
    QCOMPARE(Find<QLineEdit>(windows_->Study(), "Text1(2)")->text(), QStringLiteral("0"));
    QCOMPARE(windows_->Record().Sons, Integer(3));
    QCOMPARE(Find<QAbstractButton>(windows_->Study(), "Label13")->text(), QString::number(loaded.Value()));
  }

  void arrowsWalkTheMenuAndOnlyReturnAndSpaceChoose() {
    Option(5)->setFocus();
    QTest::keyClick(Option(5), Qt::Key_Down);
    QVERIFY(Option(6)->hasFocus());
    QTest::keyClick(Option(6), Qt::Key_Down);
    QVERIFY2(Option(8)->hasFocus(), "the resting entry is passed over");
    QTest::keyClick(Option(8), Qt::Key_Up);
    QTest::keyClick(Option(6), Qt::Key_Up);
    QVERIFY(Option(5)->hasFocus());
    QApplication::processEvents();
    QVERIFY(windows_->Laws() == nullptr && windows_->Study() == nullptr);
    QTest::keyClick(Option(5), Qt::Key_Return);
    QTRY_VERIFY(windows_->Laws() != nullptr);
    windows_->Laws()->close();
    QTRY_VERIFY(windows_->Laws() == nullptr);
    QTest::keyClick(Option(5), Qt::Key_Space);
    QTRY_VERIFY(windows_->Laws() != nullptr);
  }

  void hoveringColoursTheEntryAndNamesIt() {
    auto* panel = Find<QLabel>(menu_, "StatusBar1.Panel3");
    for (const int entry : {3, 8}) {
      QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
      QApplication::sendEvent(Option(entry), &enter);
    }
    QCOMPARE(menu_->Form().Option1(3).BackColor.Get(), ButtonFaceColour);
    QCOMPARE(panel->text(), QStringLiteral("Rules of 'Aul' & 'Radd' implied"));
    const QImage look = Option(8)->grab().toImage();
    QCOMPARE(look.pixelColor(look.width() - 3, look.height() / 2), QColor(192, 255, 192));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(Option(8), &leave);
    QCOMPARE(panel->text(), QStringLiteral("Inheritance as per Muslim Law"));
    QVERIFY(Option(8)->grab().toImage().pixelColor(look.width() - 3, look.height() / 2) !=
            QColor(192, 255, 192));
  }

  void theDisclaimerCoversTheMenuUntilADoubleClickOrEscape() {
    auto* text = Find<QPlainTextEdit>(menu_, "Text1");
    auto* agree = Find<QAbstractButton>(menu_, "Label5");
    Option(3)->setFocus();
    Find<QAction>(menu_, "Disclaimer")->trigger();
    QVERIFY(text->isVisible() && text->hasFocus() && !Option(0)->isVisible());
    QCOMPARE(agree->text(), QStringLiteral("Disclaimer Terms:"));
    DoubleClick(text->viewport());
    QVERIFY(!text->isVisible() && Option(0)->isVisible() && Option(3)->hasFocus());
    QCOMPARE(agree->text(), QStringLiteral("I agree with the dislaimer terms in the Software"));
    QTest::mouseClick(agree, Qt::LeftButton);
    QVERIFY(text->isVisible());
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!text->isVisible());
  }

  void aClickStepsThePictureAndAnotherMenuRemembersIt() {
    QTest::mouseClick(Find(menu_, "Image3"), Qt::LeftButton);
    menu_ = &program_->Start().MainMenu();
    QVERIFY(Find(menu_, "Image3(2)")->isVisible() && !Find(menu_, "Image3(1)")->isVisible());
  }

  void aLineOfTheLogIsSelectedByMouseAndKeys() {
    for (int i = 1; i <= 3; ++i) {
      AppendLine(FromQt(program_->File(QStringLiteral("popuQism.ppl"))),
                 SessionLine(Integer(i), {2024, 3, i, 8, 0, 0}, {2024, 3, i, 8, 0, 10 * i}, Long(10 * i)));
    }
    QTest::mouseClick(Find(menu_, "Label22"), Qt::LeftButton);
    QTRY_VERIFY(windows_->Log() != nullptr);
    auto* grid = Find<QTableWidget>(windows_->Log(), "MSFlexGrid1");
    auto* selected = Find<QLabel>(windows_->Log(), "Label2");
    QCOMPARE(grid->horizontalHeaderItem(3)->text(), QStringLiteral("Session Length"));
    QCOMPARE(grid->item(1, 0)->text(), QStringLiteral("3"));
    QCOMPARE(grid->currentRow(), 1);
    const QPoint second = grid->visualItemRect(grid->item(2, 1)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, second);
    QCOMPARE(selected->text().simplified(), QStringLiteral("2 02/03/2024 08:00:00 02/03/2024 08:00:20 20"));
    QTest::keyClick(grid, Qt::Key_Up);
    QVERIFY(selected->text().startsWith(QStringLiteral("3     03/03/2024 08:00:00")));
    windows_->Log()->close();
    QVERIFY(menu_->isVisible());
    QCOMPARE(program_->Ended.Ends, 0);
  }

  void aMissingLogIsReported() {
    QTest::mouseClick(Find(menu_, "Label22"), Qt::LeftButton);
    QTRY_COMPARE(boxes_.Count(), 1);
    QCOMPARE(boxes_.Take(), QStringList{QStringLiteral("Error 53\nFile not found")});
    QVERIFY(windows_->Log()->isVisible());
    QCOMPARE(Find<QTableWidget>(windows_->Log(), "MSFlexGrid1")->rowCount(), 0);
    QCOMPARE(boxes_.Owner(), QStringLiteral("Session"));
    QVERIFY(!boxes_.WasOnTop());
  }

  // The case stays on top of all windows, but not of a message box, whichever window that belongs to.
  void noMessageBoxIsCoveredByTheCase() {
    Choose(6);
    QTRY_VERIFY(windows_->Study() != nullptr);
    Choose(11);
    QTRY_COMPARE(boxes_.Count(), 1);
    QVERIFY(boxes_.Take().constFirst().contains(QStringLiteral("is missing")));
    QVERIFY(boxes_.WasOnTop());
    QTRY_VERIFY(menu_->cursor().shape() == Qt::ArrowCursor);
  }

  void theResourcesOpenByADoubleClickInPlaceOfTheMenu() {
    DoubleClick(Find(menu_, "Frame2"));
    QTRY_VERIFY(windows_->Resources() != nullptr);
    QWidget* resources = windows_->Resources();
    QVERIFY(resources->isVisible() && !menu_->isVisible());
    QTest::mouseClick(Find(resources, "cmdLCM"), Qt::LeftButton);
    QCOMPARE(windows_->Record().LcmResult, Long(1));
    Find<QAction>(resources, "Back")->trigger();
    QVERIFY(menu_->isVisible() && !resources->isVisible());
    QCOMPARE(program_->Ended.Ends, 0);
  }

  void everyWayOutWritesOneLine_data() {
    QTest::addColumn<QString>("way");
    for (const char* way :
         {"entry", "close button of the menu", "close button of the resources", "end of the session"}) {
      QTest::newRow(way) << way;
    }
  }
  void everyWayOutWritesOneLine() {
    QFETCH(QString, way);
    windows_->Record().ExecCount = Long(9);
    if (way == QLatin1String("entry")) {
      Find<QAction>(menu_, "Exitz")->trigger();
    } else if (way == QLatin1String("close button of the menu")) {
      menu_->close();
    } else if (way == QLatin1String("close button of the resources")) {
      DoubleClick(Find(menu_, "Frame2"));
      QTRY_VERIFY(windows_->Resources() != nullptr);
      windows_->Resources()->close();
    } else {
      raise(SIGTERM);
    }
    QTRY_COMPARE(program_->Ended.Ends, 1);
    menu_->close();
    Find<QAction>(menu_, "Exitz")->trigger();
    QCOMPARE(program_->Ended.Ends, 1);
    QCOMPARE(program_->LogLines().size(), 1);
    QCOMPARE(program_->Store().Read("Qismora", "Inheritance", "TimesExecuted"), std::string("9"));
    QCOMPARE(Find<QAbstractButton>(&program_->Start().MainMenu(), "Label22")->text(), QStringLiteral("2"));
  }

  void anUnansweredQuestionIsNoConsent_data() {
    QTest::addColumn<bool>("closed");
    QTest::newRow("terminated") << false;
    QTest::newRow("windows closed by the end of the session") << true;
  }
  // The question about the will is open when the program ends: the report that waits for its answer is not
  // written.
  void anUnansweredQuestionIsNoConsent() {
    QFETCH(const bool, closed);
    program_.reset();
    boxes_.Leave();
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    {
      RunningProgram program(folder.path());
      program.Windows.ShowMainMenu();
      program.Windows.MainMenu().Form().ShowCaseStudy();
      Find<QLineEdit>(program.Windows.Study(), "Text1(28)")->setText(QStringLiteral("9000"));
      auto* save = Find<QAction>(program.Windows.Study(), "CreateSaveFullReport");
      QTimer::singleShot(0, save, &QAction::trigger);
      bool asked = false;
      QTimer end;
      connect(&end, &QTimer::timeout, &end, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        // Windows that are closed may ask about the changed case.
        if (box->button(QMessageBox::Discard)) return box->button(QMessageBox::Discard)->click();
        if (std::exchange(asked, true)) return;
        closed ? QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit))
               : static_cast<void>(raise(SIGTERM));
      });
      end.start(5);
      QApplication::exec();
      QVERIFY(asked);
    }
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("popuQism.ppl")));
  }

  // In a build the program's files lie beside it; installed, they lie under share, and the log of a user who
  // cannot write there goes to the user's data directory.
  void directoriesOfABuildAndOfAnInstalledProgram() {
    const QTemporaryDir prefix;
    const QString bin = prefix.filePath(QStringLiteral("bin"));
    QDir(prefix.path()).mkpath(QStringLiteral("bin"));
    QDir(prefix.path()).mkpath(QStringLiteral("documents"));
    ProgramFolders folders(bin);
    QCOMPARE(ToQt(folders.Application()), bin);
    QCOMPARE(ToQt(folders.Log()), bin);
    QCOMPARE(ToQt(folders.Documents()), prefix.filePath(QStringLiteral("documents")));
    QDir(prefix.path()).mkpath(QStringLiteral("share/qismora/documents"));
    QCOMPARE(ToQt(folders.Application()), prefix.filePath(QStringLiteral("share/qismora")));
    QCOMPARE(ToQt(folders.Documents()), prefix.filePath(QStringLiteral("share/qismora/documents")));
    const QString own = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/qismora");
    QCOMPARE(ToQt(folders.Log()), own);  // for root too, who may write to the program's folder
    QCOMPARE(ToQt(ProgramFolders(QStringLiteral("/nowhere/bin")).Log()), own);
    QVERIFY(QFileInfo(own).isWritable());
    QVERIFY_THROWS_EXCEPTION(FileFailure,
                             folders.WriteThrough(FromQt(prefix.filePath(QStringLiteral("missing")))));
  }

  void theCatalogueBelongsToTheWindowThatOpensIt() {
    Choose(6);
    QTRY_VERIFY(windows_->Study() != nullptr);
    Find<QAction>(windows_->Study(), "About")->trigger();
    QVERIFY(windows_->Catalogue() != nullptr);
    QCOMPARE(windows_->Catalogue()->parentWidget(), windows_->Study());
    QVERIFY(Find<QLabel>(windows_->Catalogue(), "Used by this program")->text() != QLatin1String("0 MiB"));
    QTest::mouseClick(Find(windows_->Study(), "Label6"), Qt::LeftButton);
    QTRY_COMPARE(boxes_.Count(), 1);
    QCOMPARE(boxes_.Take(), QStringList{QStringLiteral("YOU ARE WORKING ON THIS PROGRAM")});
    QTRY_VERIFY(windows_->Catalogue() == nullptr);
  }

  void theMenuKeepsItsSize() {
    const QSize size = menu_->size();
    menu_->resize(1000, 700);
    QTRY_COMPARE(menu_->size(), size);
  }

  void aVideoPlaysUnlessAPartOfItIsDamagedOrMissing_data() {
    QTest::addColumn<QString>("part");
    for (const char* part : {"none", "brindhaven1.avi", "qismora_video.so", "backend"}) {
      QTest::newRow(part) << part;
    }
  }
  // Whatever is damaged or missing would end the program if it were played or loaded. The damaged files keep
  // their length.
  void aVideoPlaysUnlessAPartOfItIsDamagedOrMissing() {
    QFETCH(const QString, part);
    const QDir built = QFileInfo(QStringLiteral(QISMORA_PROGRAM)).dir();
    const QString video = QStringLiteral("brindhaven1.avi");
    for (const QString& name : {video, QStringLiteral("qismora_video.so")}) {
      QFile file(built.filePath(name));
      if (!file.open(QIODevice::ReadOnly)) QSKIP("built without videos or their plugin");
      QByteArray content = file.readAll();
      if (part == name) content.replace(content.size() / 2, 4096, QByteArray(4096, 'x'));
      program_->Put(program_->File(name), content);
    }
    const QStringList pluginFolders = QCoreApplication::libraryPaths();
    const auto restore = qScopeGuard([&] { QCoreApplication::setLibraryPaths(pluginFolders); });
    if (part == QLatin1String("backend")) QCoreApplication::setLibraryPaths({});
    menu_ = &program_->Start({program_->File({})}).MainMenu();
    QVERIFY2(!program_->Player().IsLoaded(), "the window is painted first");
    QVERIFY(QTest::qWaitForWindowActive(menu_));
    auto* panel = Find(menu_, "Frame5");
    const QImage blank = panel->grab().toImage();
    bool tried = false;  // in the queue after the attempt to play
    QTimer::singleShot(0, this, [&] { tried = true; });
    QTRY_VERIFY(tried);
    const bool plays = part == QLatin1String("none");
    QCOMPARE(program_->Player().IsLoaded(), plays);
    QFile::remove(program_->File(video));
    QVERIFY(QFile::copy(built.filePath(video), program_->File(video)));
    QTest::mouseDClick(panel, Qt::LeftButton);  // plays it again
    QCOMPARE(program_->Player().IsLoaded(), plays || part == video);
    if (program_->Player().IsLoaded()) QTRY_VERIFY(panel->grab().toImage() != blank);
  }

 private:
  QRadioButton* Option(int index) {
    return Find<QRadioButton>(menu_, qPrintable(QStringLiteral("Option1(%1)").arg(index)));
  }

  void Choose(int entry) {
    menu_->activateWindow();
    QTest::mouseClick(Option(entry), Qt::LeftButton);
  }

  MessageBoxSpy boxes_;
  std::unique_ptr<ProgramFixture> program_;
  ProgramWindows* windows_ = nullptr;
  InhMainWindow* menu_ = nullptr;
};

}  // namespace qismora

int main(int argc, char** argv) {
  return qismora::testing::RunWindowTest<qismora::ShellWindowsTest>(argc, argv);
}

#include "shell_windows_test.moc"
