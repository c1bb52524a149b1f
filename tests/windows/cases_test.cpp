// The state of the answer and the case files on the real windows, with real clicks and keys.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTest>

#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"
#include "windows/language/Languages.h"

namespace qismora {

using testing::Find;
using testing::MessageBoxSpy;
using testing::ProgramFixture;

class CasesTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { testing::UseFont(); }
  void init() {
    program_ = std::make_unique<ProgramFixture>();
    program_->KeepDivisionClosed();
    windows_ = &program_->Start();
    OpenStudy();
  }
  void cleanup() {
    SetLanguage(Language::English);
    boxes_.Watch();
    boxes_.Press(QMessageBox::NoButton);
    QCOMPARE(boxes_.Take(), QStringList());
    program_.reset();
  }

  void theStateIsAlwaysInSight() {
    QCOMPARE(State(), QStringLiteral("No answer yet."));
    Type("Text1(2)", "1");
    Type("Text1(25)", "24000");
    QTest::keyClick(study_, Qt::Key_F5);
    QCOMPARE(State(), QStringLiteral("Answer of Residuaries: final."));
    Type("Text1(2)", "12");
    QCOMPARE(State(), QStringLiteral("Fields have changed since the answer of Residuaries."));
    Type("Text1(2)", "101");
    QTest::keyClick(study_, Qt::Key_F5);
    QVERIFY(
        State().startsWith(QStringLiteral("Refused: these figures are not your case. Check number of Sons")));
    QCOMPARE(boxes_.Take().size(), 1);
    auto* state = Find<QLabel>(study_, "AnswerState");
    QVERIFY(state->visibleRegion().boundingRect().width() > study_->width() / 2);
    QVERIFY(!state->geometry().intersects(study_->statusBar()->geometry()));
    study_->Document().New();  // asks, and is closed: nothing is lost
    QCOMPARE(boxes_.Take().size(), 1);
    QVERIFY(Find<QLineEdit>(study_, "Text1(2)")->text() == QLatin1String("101"));
  }

  // Nothing of the state is clipped in any language. Where its end is cut, Tab leads to it and Return shows
  // all of it.
  void aLongStateCanBeReadWhole() {
    auto* state = Find<QLabel>(study_, "AnswerState");
    Type("Text1(3)", "40000");
    Key(Qt::Key_F5, Qt::NoModifier);
    boxes_.Take();
    for (const Language language : AllLanguages) {
      SetLanguage(language);
      QTRY_VERIFY(state->height() >= state->fontMetrics().tightBoundingRect(state->text()).height());
    }
    SetLanguage(Language::English);
    QVERIFY(state->text().endsWith(QStringLiteral("Funeral expenses")));
    QFont font = state->font();
    font.setPixelSize(2 * font.pixelSize());
    state->setFont(font);
    for (int i = 0; i < 100 && study_->focusWidget() != state; ++i) Key(Qt::Key_Tab, Qt::NoModifier);
    QCOMPARE(study_->focusWidget(), state);
    QTest::keyClick(state, Qt::Key_Return);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    Type("Text1(3)", "1");
    Key(Qt::Key_F5, Qt::NoModifier);
    boxes_.Take();
    QCOMPARE(state->focusPolicy(), Qt::NoFocus);
  }

  // What the commands call final may differ from classical law; the state leads to the division.
  void aFinalAnswerThatDiffersIsMarked() {
    for (const auto& [field, text] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Text1(1)", "1"},
                                                                    {"Text1(3)", "2"},
                                                                    {"Text1(14)", "1"},
                                                                    {"Text1(16)", "1"},
                                                                    {"Text1(25)", "24000"},
                                                                    {"Text1(26)", "0"},
                                                                    {"Text1(27)", "0"},
                                                                    {"Text1(28)", "0"}}) {
      Type(field, text);
    }
    Key(Qt::Key_F5, Qt::NoModifier);
    boxes_.Take();
    Key(Qt::Key_F6, Qt::NoModifier);
    QCOMPARE(State(), QStringLiteral("Answer of Aul/ Radd: final. The division differs: F8."));
    QVERIFY(Find<QLabel>(study_, "AnswerState")->font().bold());
  }

  // The commands ask about the wills themselves; the division goes by its own check box.
  void anAnswerWithAnotherConsentIsMarked() {
    Type("Text1(2)", "1");
    Type("Text1(25)", "24000");
    Type("Text1(26)", "0");
    Type("Text1(27)", "0");
    Type("Text1(28)", "12000");
    const QString final = QStringLiteral("Answer of Residuaries: final.");
    boxes_.Press(QMessageBox::Yes);
    Key(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(State(), final + QStringLiteral(" The division differs: F8."));
    study_->Form().HeirsConsent = true;
    QCOMPARE(State(), final);
    study_->Form().HeirsConsent = false;
    boxes_.Press(QMessageBox::No);
    Key(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(State(), final);
    boxes_.Take();
    Type("Text1(3)", "x");  // which the commands pass over
    Key(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(State(), final + QStringLiteral(" The division differs: F8."));
  }

  // Whatever stops a load, the figures on the screen are not those of the case; the state says so with the
  // reason of the message box, until a load has succeeded.
  void aRefusalIsSaid() {
    Type("Text1(2)", "1");
    Type("Text1(25)", "24000");
    Type("Text1(13)", "2");
    Key(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(State(),
             QStringLiteral("Refused: these figures are not your case. ") + boxes_.Take().constFirst());
    QVERIFY(Find<QLabel>(study_, "AnswerState")->font().bold());
    Type("Text1(13)", "1");
    QCOMPARE(State(), QStringLiteral("Refused; fields have changed since. Choose Residuaries (F5)."));
    Key(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(State(), QStringLiteral("Answer of Residuaries: final."));
  }

  void whatIsReadDifferentlyIsSaidInWords() {
    auto* readings = Find<QLabel>(study_, "Readings");
    QVERIFY(!readings->isVisible());
    Type("Text1(25)", "18,40,000");
    QVERIFY(readings->isVisible());
    QCOMPARE(readings->text(), QStringLiteral("Gross Estate 18,40,000 is read as 18"));
    Type("Text1(3)", "x");
    const QString first = QStringLiteral("Daughters x is not read: the figure of the run before stays");
    QCOMPARE(readings->text(), first + QStringLiteral(", and 1 more"));
    QVERIFY(readings->fontMetrics().horizontalAdvance(first) < readings->width());
    QVERIFY(readings->toolTip().endsWith(QStringLiteral("; Gross Estate 18,40,000 is read as 18")));
    Type("Text1(25)", "1840000");
    Type("Text1(3)", "2");
    QVERIFY(!readings->isVisible());
  }

  // The form itself is English, and so are its message boxes.
  void wordsBesideTheFormFollowTheLanguage() {
    Type("Text1(2)", "101");
    Type("Text1(25)", "18,40,000");
    SetLanguage(Language::Arabic);
    auto* readings = Find<QLabel>(study_, "Readings");
    QTRY_VERIFY(readings->text().startsWith(Isolated(QStringLiteral("إجمالي التركة"))));
    QVERIFY(readings->text().contains(QStringLiteral("18,40,000")));
    QCOMPARE(State(), QStringLiteral("لا جواب بعد."));
    QCOMPARE(Title(), QStringLiteral("غير محفوظة"));
    QCOMPARE(Find<QAction>(study_, "SaveCase")->text(), QStringLiteral("&حفظ"));
    QCOMPARE(Find<QAction>(study_, "Division")->text(), QStringLiteral("القسمة"));
    QCOMPARE(Find<QAction>(study_, "Help")->text(), QStringLiteral("مساعدة"));
    QCOMPARE(Find<QAction>(study_, "Resid")->text(), QStringLiteral("&Residuaries"));

    QTest::keyClick(study_, Qt::Key_F5);
    QCOMPARE(boxes_.Take(),
             QStringList({QStringLiteral("Check number of Sons, should be limited reasonably.")}));
    QVERIFY(boxes_.Buttons().constFirst().contains(QStringLiteral("OK")));
    QVERIFY(State().startsWith(QStringLiteral("مرفوض")));
    QVERIFY(State().contains(QStringLiteral("Check number of Sons")));
    study_->Document().New();
    QCOMPARE(boxes_.Take().size(), 1);
    const QString buttons = boxes_.Buttons().join(QLatin1Char(' '));
    QVERIFY2(buttons.contains(QStringLiteral("إلغاء")), qPrintable(buttons));
    SetLanguage(Language::English);
    QTRY_COMPARE(Find<QAction>(study_, "SaveCase")->text(), QStringLiteral("&Save"));
    QVERIFY(State().startsWith(QStringLiteral("Refused")));
  }

  void casesAreSavedOpenedAndStarted() {
    const QString file = program_->File(QStringLiteral("zayd.qismora"));
    QCOMPARE(Title(), QString());
    Type("Text1(24)", "Zayd");
    Type("Text1(2)", "2");
    QCOMPARE(Title(), QStringLiteral("Not saved"));
    InDialog(file);
    Key(Qt::Key_S);
    QCOMPARE(Title(), QStringLiteral("zayd.qismora"));
    Type("Text1(2)", "3");
    QCOMPARE(Title(), QStringLiteral("zayd.qismora, changed"));
    Key(Qt::Key_S);
    QVERIFY(Content(file).contains("Sons = 3\n"));

    Key(Qt::Key_N);
    QCOMPARE(Title(), QString());
    for (const char* field : {"Text1(2)", "Text1(25)", "Text1(26)", "Text1(27)", "Text1(28)"}) {
      QCOMPARE(Find<QLineEdit>(study_, field)->text(), QStringLiteral("0"));
    }
    QCOMPARE(Find<QLineEdit>(study_, "Text1(24)")->text(), QString());

    InDialog(file);
    Key(Qt::Key_O);
    QCOMPARE(Find<QLineEdit>(study_, "Text1(2)")->text(), QStringLiteral("3"));
    QCOMPARE(Find<QLineEdit>(study_, "Text1(24)")->text(), QStringLiteral("Zayd"));
    const QString other = program_->File(QStringLiteral("umar.qismora"));
    InDialog(other);
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Title(), QStringLiteral("umar.qismora"));

    // The recent files outlive the window.
    study_->close();
    QTRY_VERIFY(windows_->Study() == nullptr);
    OpenStudy();
    auto* recent = Find<QAction>(study_, "RecentCases")->menu();
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 2);
    QVERIFY(recent->actions().at(0)->text().endsWith(QStringLiteral("umar.qismora")));
    recent->actions().at(1)->trigger();
    QCOMPARE(Title(), QStringLiteral("zayd.qismora"));
  }

  void whatCannotBeOpenedChangesNothing_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("words");
    QTest::newRow("damaged") << QByteArray("Sons = 1\nDaugthers = 1\n")
                             << "Line 2: \"Daugthers\" is not a caption of the Case Study screen.";
    QTest::newRow("missing") << QByteArray() << "was not opened";
  }
  void whatCannotBeOpenedChangesNothing() {
    QFETCH(QByteArray, content);
    QFETCH(QString, words);
    const QString file = program_->File(QStringLiteral("bad.qismora"));
    if (!content.isEmpty()) program_->Put(file, content);
    Type("Text1(2)", "7");
    windows_->OpenCase(FromQt(file));
    const QStringList told = boxes_.Take();
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.constFirst().contains(words), qPrintable(told.constFirst()));
    QCOMPARE(Find<QLineEdit>(study_, "Text1(2)")->text(), QStringLiteral("7"));
    QCOMPARE(Title(), QStringLiteral("Not saved"));
    boxes_.Press(QMessageBox::Discard);
    study_->close();
    boxes_.Take();
  }

  // Saving in the place of a file whose lines are not all known would lose them.
  void linesOfANewerVersionAreNamedAndKept() {
    const QString file = program_->File(QStringLiteral("new.qismora"));
    program_->Put(file, "Qismora case = 2\nSons = 1\nUnborn = 1\n");
    windows_->OpenCase(FromQt(file));
    QVERIFY(boxes_.Take().constFirst().contains(QStringLiteral("Line 3: Unborn = 1")));
    const QString copy = program_->File(QStringLiteral("copy.qismora"));
    InDialog(copy);
    Key(Qt::Key_S);
    QVERIFY(Content(file).contains("Unborn"));
    QVERIFY(Content(copy).contains("Sons = 1"));
  }

  void aDroppedFileOpens() {
    const QString file = program_->File(QStringLiteral("dropped.qismora"));
    program_->Put(file, "Sons = 4\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    data.setText(file);                                 // as file managers add it
    auto* field = Find<QLineEdit>(study_, "Text1(3)");  // which takes dropped texts
    for (QWidget* place : {static_cast<QWidget*>(study_), static_cast<QWidget*>(field)}) {
      study_->Document().New();
      QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(place, &enter);
      QVERIFY(enter.isAccepted());
      QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(place, &drop);
      QTRY_COMPARE(Find<QLineEdit>(study_, "Text1(2)")->text(), QStringLiteral("4"));
      QCOMPARE(field->text(), QStringLiteral("0"));
    }
  }

  void aChangedCaseIsNotClosedUnasked_data() {
    QTest::addColumn<bool>("exit");
    QTest::newRow("Case Study") << false;
    QTest::newRow("the program, while Case Study is hidden") << true;
  }
  void aChangedCaseIsNotClosedUnasked() {
    QFETCH(bool, exit);
    const auto leave = [&] {
      if (exit) {
        Find<QAction>(&windows_->MainMenu(), "Exitz")->trigger();
      } else {
        study_->close();
      }
    };
    const QString file = program_->File(QStringLiteral("kept.qismora"));
    Type("Text1(2)", "2");
    if (exit) Find<QAction>(study_, "Back")->trigger();
    boxes_.Press(QMessageBox::Cancel);
    leave();
    QCOMPARE(boxes_.Take().size(), 1);
    QVERIFY(windows_->Study() != nullptr);
    QCOMPARE(program_->Ended.Ends, 0);
    QCOMPARE(Find<QLineEdit>(study_, "Text1(2)")->text(), QStringLiteral("2"));

    // A save that is given up is no answer either.
    boxes_.Press(QMessageBox::Save);
    leave();
    QCOMPARE(program_->Ended.Ends, 0);
    InDialog(file);
    leave();
    boxes_.Take();
    QVERIFY(Content(file).contains("Sons = 2\n"));
    if (exit) {
      QCOMPARE(program_->Ended.Ends, 1);
    } else {
      QTRY_VERIFY(windows_->Study() == nullptr);
    }
  }

  void theExampleAloneIsNotAskedAbout() {
    QTest::keyClick(study_, Qt::Key_F5);
    boxes_.Take();
    study_->close();
    QTRY_VERIFY(windows_->Study() == nullptr);
  }

 private:
  void OpenStudy() {
    windows_->MainMenu().Form().ShowCaseStudy();
    study_ = windows_->Study();
    QVERIFY(QTest::qWaitForWindowActive(study_));
  }

  void Type(const char* field, const char* text) {
    study_->activateWindow();
    auto* widget = Find<QLineEdit>(study_, field);
    QTest::mouseClick(widget, Qt::LeftButton);
    widget->selectAll();
    QTest::keyClicks(widget, QString::fromLatin1(text));
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers with = Qt::ControlModifier) {
    study_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(study_));
    QTest::keyClick(study_, key, with);
  }

  /// The next dialog for case files is answered with this file.
  void InDialog(const QString& file) { program_->Dialog().Cases.Paths.push_back(FromQt(file)); }

  static QByteArray Content(const QString& file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
  }
  QString State() const { return Find<QLabel>(study_, "AnswerState")->text(); }
  QString Title() const { return Find<QLabel>(study_, "CaseTitle")->text(); }

  MessageBoxSpy boxes_;
  std::unique_ptr<ProgramFixture> program_;
  ProgramWindows* windows_ = nullptr;
  CaseStudyWindow* study_ = nullptr;
};

}  // namespace qismora

int main(int argc, char** argv) { return qismora::testing::RunWindowTest<qismora::CasesTest>(argc, argv); }

#include "cases_test.moc"
