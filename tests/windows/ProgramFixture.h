#pragma once

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <memory>

#include "support/FakePorts.h"
#include "windows/ProgramWindows.h"
#include "windows/platform/QtShellPorts.h"
#include "windows/platform/Utf8.h"
#include "windows/style/OutlinedStyle.h"

namespace qismora::testing {

/// The control of that name in a window; the test ends where there is none.
template <class Widget = QWidget>
Widget* Find(QWidget* window, const char* name) {
  auto* found = window->findChild<Widget*>(QString::fromLatin1(name));
  if (found == nullptr) qFatal("There is no %s", name);
  return found;
}

/// Sets all windows in this font, 12 pixels high, whatever the platform's own.
inline void UseFont(const char* name = "DejaVu Sans") {
  QFont font(QString::fromLatin1(name));
  font.setPixelSize(12);
  QApplication::setFont(font);
}

/// The main function of a test of the whole program, for a new user in an empty directory.
template <class Test>
int RunWindowTest(int argc, char** argv) {
  const QTemporaryDir home;
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home.path().toUtf8());
  }
  qputenv("LC_ALL", "C.UTF-8");
  QApplication::setStyle(new OutlinedStyle);
  QApplication application(argc, argv);
  QDir::setCurrent(home.path());
  Test test;
  return QTest::qExec(&test, argc, argv);
}

/// Answers the dialogs for case files from a queue.
class QueuedDialog : public QtFileDialogs {
 public:
  using QtFileDialogs::QtFileDialogs;
  std::optional<std::string> AskCaseToOpen(const std::string& folder) override {
    return Cases.AskCaseToOpen(folder);
  }
  std::optional<std::string> AskCaseToSave(const std::string& path) override {
    return Cases.AskCaseToSave(path);
  }

  FakeFileDialogs Cases;
};

/// The program with its real windows and ports, in a temporary directory or where it is installed. Only its
/// end and the document viewer are replaced.
class ProgramFixture : public QObject {
  Q_OBJECT

 public:
  ProgramFixture() : ProgramFixture(QString()) {}
  explicit ProgramFixture(const QString& binaries)
      : folders_(binaries.isEmpty() ? folder_.filePath(QStringLiteral("bin")) : binaries), dialog_(folders_) {
    QDir(folder_.path()).mkpath(QStringLiteral("bin"));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    for (const char* application : {ApplicationTitle, "Qismora"}) {
      QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/Qismora/") +
                    QString::fromUtf8(application) + QStringLiteral(".conf"));
    }
  }
  ~ProgramFixture() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

  ProgramWindows& Start(const QStringList& pluginFolders = {}) {
    windows_.reset();
    player_ = std::make_unique<QtVideoPlayer>(pluginFolders);
    ports_ = std::make_unique<ShellPorts>(
        ShellPorts{{clock_, boxes_, dialog_, settings_, folders_}, viewer_, *player_, memory_, Ended});
    windows_ = std::make_unique<ProgramWindows>(*ports_, *player_);
    windows_->ShowMainMenu();
    return *windows_;
  }

  /// The offscreen platform would activate the Division window when it opens by itself.
  void KeepDivisionClosed() { settings_.Write("Qismora", "Division", "Open", "no"); }

  QString File(const QString& name) const { return folder_.filePath(QStringLiteral("bin/") + name); }

  void Put(const QString& path, const QByteArray& content) const {
    QFile file(path);
    QDir().mkpath(QFileInfo(path).path());
    if (file.open(QIODevice::WriteOnly)) file.write(content);
  }

  QStringList LogLines() const {
    QFile file(File(QStringLiteral("popuQism.ppl")));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
  }

  QtVideoPlayer& Player() { return *player_; }
  Settings& Store() { return settings_; }
  QueuedDialog& Dialog() { return dialog_; }

  FakeProgram Ended;
  QStringList Opened;

 public slots:
  void open(const QUrl& url) { Opened.append(QFileInfo(url.toLocalFile()).fileName()); }

 private:
  QTemporaryDir folder_;
  SystemClock clock_;
  QtProgram running_;
  QtMessageBoxes boxes_{running_};
  ProgramFolders folders_;
  QueuedDialog dialog_;
  QtSettings settings_;
  QtDocumentViewer viewer_;
  SystemMemory memory_;
  std::unique_ptr<QtVideoPlayer> player_;
  std::unique_ptr<ShellPorts> ports_;
  std::unique_ptr<ProgramWindows> windows_;
};

}  // namespace qismora::testing
