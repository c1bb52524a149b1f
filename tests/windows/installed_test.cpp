// The program where it is installed, run by a user who cannot write there: installed_test PREFIX
#include <QProcess>
#include <QRadioButton>
#include <QTest>

#include "windows/MessageBoxSpy.h"
#include "windows/ProgramFixture.h"
#include "windows/style/OutlinedStyle.h"

namespace qismora {

using testing::MessageBoxSpy;
using testing::ProgramFixture;

namespace {

/// Whether the program has a file open or loaded.
bool Uses(qint64 process, const QString& file) {
  const QString folder = QStringLiteral("/proc/%1/").arg(process);
  for (const QFileInfo& open :
       QDir(folder + QStringLiteral("fd")).entryInfoList(QDir::Files | QDir::System)) {
    if (open.symLinkTarget() == file) return true;
  }
  QFile maps(folder + QStringLiteral("maps"));
  return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(file.toUtf8() + '\n');
}

}  // namespace

class InstalledTest : public QObject {
  Q_OBJECT

 public:
  explicit InstalledTest(const QString& prefix)
      : binaries_(prefix + QStringLiteral("/bin")),
        plugin_(prefix + QStringLiteral("/lib/qismora/qismora_video.so")),
        share_(prefix + QStringLiteral("/share/qismora")) {}

 private slots:
  void initTestCase() {
    for (const QString& folder : {binaries_, share_, share_ + QStringLiteral("/documents")}) {
      const QFileInfo info(folder);
      QVERIFY2(info.isDir() && !info.isWritable(), qPrintable(folder));
    }
    QVERIFY(QDir::setCurrent(share_));
  }
  void cleanup() { QCOMPARE(boxes_.Take(), QStringList()); }

  void everyDocumentIsThere() {
    ProgramFixture home(binaries_);
    QWidget& menu = home.Start().MainMenu();
    for (const int entry : {1, 2, 4, 9, 10, 11, 12}) {
      menu.findChild<QRadioButton*>(QStringLiteral("Option1(%1)").arg(entry))->click();
      QTRY_COMPARE(home.Opened.size(), 1);
      QTRY_COMPARE(boxes_.Count(), 1);
      QFile file(share_ + QStringLiteral("/documents/") + home.Opened.takeFirst());
      QVERIFY(boxes_.Take().constFirst().endsWith(file.fileName()));
      QVERIFY2(file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-", qPrintable(file.fileName()));
    }
  }

  // The installed program itself.
  void theProgramPlaysItsVideoAndLogsItsSession() {
    QProcess program;
    program.start(binaries_ + QStringLiteral("/qismora"), {});
    QVERIFY(program.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(Uses(program.processId(), plugin_), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(Uses(program.processId(), share_ + QStringLiteral("/brindhaven1.avi")), 10000);
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QFile log(QDir::homePath() + QStringLiteral("/.local/share/qismora/popuQism.ppl"));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().startsWith(" 1 "));
  }

 private:
  QString binaries_;
  QString plugin_;
  QString share_;
  MessageBoxSpy boxes_;
};

}  // namespace qismora

int main(int argc, char** argv) {
  if (argc < 2) qFatal("usage: installed_test PREFIX");
  // A new user.
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  QApplication::setStyle(new qismora::OutlinedStyle);
  QApplication application(argc, argv);
  qismora::InstalledTest test(QString::fromLocal8Bit(argv[1]));
  return QTest::qExec(&test, QStringList{QString::fromLocal8Bit(argv[0])});
}

#include "installed_test.moc"
