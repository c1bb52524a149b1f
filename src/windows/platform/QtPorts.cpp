#include "windows/platform/QtPorts.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <algorithm>

#include "base/Files.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"
#include "windows/style/PointerShape.h"

namespace qismora {

namespace {

struct ButtonRow {
  QMessageBox::StandardButton Button;
  Answer Meaning;
};

constexpr ButtonRow answers[] = {
    {QMessageBox::Ok, Answer::Ok},     {QMessageBox::Yes, Answer::Yes},
    {QMessageBox::No, Answer::No},     {QMessageBox::Cancel, Answer::Cancel},
    {QMessageBox::Save, Answer::Save}, {QMessageBox::Discard, Answer::Discard},
};

QMessageBox::StandardButtons Offered(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::SaveDiscardCancel:
      return QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::Information:
      return QMessageBox::Information;
    case BoxStyle::Warning:
      return QMessageBox::Warning;
    case BoxStyle::Critical:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

QWidget* chosenOwner = nullptr;

// The parent of a message box: the window that the user used last, even if another message box has just
// closed and no window is active yet. Without it the message box would open behind a window that stays on
// top.
QWidget* Owner() {
  static QPointer<QWidget> last;
  if (chosenOwner != nullptr) return chosenOwner;
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active->windowType() == Qt::Window) last = active;
  if (last != nullptr && last->isVisible()) return last;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto shown = std::ranges::find_if(windows, [](const QWidget* window) {
    return window->isVisible() && window->windowType() == Qt::Window;
  });
  return shown == windows.end() ? active : *shown;
}

// A window that stays on top would cover a message box of another window, and the program would seem to hang.
void KeepInSight(QDialog& dialog) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const bool onTop = (window->windowFlags() & Qt::WindowStaysOnTopHint) != 0;
    if (onTop && window->isVisible()) return dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
  }
}

constexpr int longestLine = 120;
constexpr int leastWidth = 280;
constexpr int slack = 8;

// The text of a message box has fixed lines, which are not wrapped unless they are very long. The message box
// is wide enough for its title.
void KeepLines(QMessageBox& box) {
  auto* words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (words == nullptr) return;
  int width = leastWidth;
  for (const QString& line : words->text().split(QLatin1Char('\n'))) {
    if (line.size() <= longestLine)
      width = std::max(width, words->fontMetrics().horizontalAdvance(line) + slack);
  }
  words->setMinimumWidth(width);
}

bool CanWrite(const QString& folder) {
  const QFileInfo info(folder);
  return info.isDir() && info.isWritable();
}

QSettings Open(const std::string& application) {
  return {QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Qismora"), ToQt(application)};
}

QString Path(const std::string& section, const std::string& key) {
  return ToQt(section) + QLatin1Char('/') + ToQt(key);
}

/// The user's directory for settings. No settings have this name, so nothing is read.
QDir SettingsFolder() {
  const QString nothing = QStringLiteral("-");
  QDir folder =
      QFileInfo(QSettings(QSettings::NativeFormat, QSettings::UserScope, nothing, nothing).fileName())
          .absoluteDir();
  folder.cdUp();
  return folder;
}

// Whether the files of the settings are ordinary files. Qt would wait for a pipe, and read a device without
// end.
bool AreOrdinary(const std::string& application) {
  const QDir folder = SettingsFolder();
  const QString own = QStringLiteral("Qismora/%1.conf").arg(ToQt(application));
  const QString names[] = {own, own + QStringLiteral(".lock"), QStringLiteral("Qismora.conf")};
  return std::ranges::all_of(names, [&](const QString& name) {
    const QFileInfo found(folder.filePath(name));
    return found.isFile() || !found.exists();
  });
}

// Whether the disk has space for the settings. On a full disk Qt replaces the file by an empty one.
bool HasSpace(const QSettings& store) {
  constexpr int ample = 1 << 16;
  const QDir folder = QFileInfo(store.fileName()).absoluteDir();
  folder.mkpath(QStringLiteral("."));
  QTemporaryFile trial(folder.filePath(QStringLiteral("trial-XXXXXX")));
  return trial.open() && trial.write(QByteArray(ample, ' ')) == ample && trial.flush();
}

}  // namespace

DateTime SystemClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate day = now.date();
  const QTime time = now.time();
  return {day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()};
}

void QtProgram::End() {
  ended_ = true;
  QCoreApplication::exit();
}

MessageBoxOwner::MessageBoxOwner(QWidget* window) { chosenOwner = window; }
MessageBoxOwner::~MessageBoxOwner() { chosenOwner = nullptr; }

Answer QtMessageBoxes::Show(BoxStyle style, BoxButtons buttons, const std::string& text) {
  QMessageBox box(IconOf(style), QString::fromUtf8(ApplicationTitle), ToQtLines(text), Offered(buttons),
                  Owner());
  box.setTextFormat(Qt::PlainText);
  if (DialogsInLanguage::Direction() == Qt::RightToLeft) {
    box.setLayoutDirection(Qt::RightToLeft);
    box.setFont(FontBesideEnglish(box.font()));
  }
  KeepLines(box);
  KeepInSight(box);
  // The default button consents to nothing and loses nothing.
  if (buttons != BoxButtons::Ok) {
    box.setDefaultButton(buttons == BoxButtons::SaveDiscardCancel ? QMessageBox::Save : QMessageBox::No);
  }
  const PointerShape usersTurn(Qt::ArrowCursor);
  const int pressed = box.exec();
  // The end of the desktop session closes the message box as if by its close button.
  if (box.clickedButton() == nullptr || running_.HasEnded()) throw Unanswered();
  return std::ranges::find(answers, pressed, &ButtonRow::Button)->Meaning;
}

namespace {

/// The context of the translations.
class Case {
  Q_DECLARE_TR_FUNCTIONS(Case)
};

QString CaseFilter() {
  return Case::tr("Qismora cases (*.qismora)") + QStringLiteral(";;") + Case::tr("All files (*)");
}

/// The path that the user chooses; none if the dialog is cancelled.
std::optional<std::string> Ask(QFileDialog& dialog) {
  KeepInSight(dialog);
  const PointerShape usersTurn(Qt::ArrowCursor);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQt(dialog.selectedFiles().constFirst());
}

/// The same for a dialog in the language of the division. It is not mirrored, which would turn paths around.
std::optional<std::string> AskInLanguage(QFileDialog& dialog) {
  dialog.setFont(FontBesideEnglish(dialog.font()));
  return Ask(dialog);
}

}  // namespace

std::optional<std::string> QtFileDialogs::AskPath(const std::string& suggestedName,
                                                  const std::string& filter) {
  const QString program = ToQt(folders_.Application());
  const QString words = ToQt(filter.substr(0, filter.find('|')));
  QFileDialog dialog(Owner(), QString(), CanWrite(program) ? program : ToQt(folders_.Reports()), words);
  dialog.setObjectName(QStringLiteral("CommonDialog1"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the command itself asks about replacing
  dialog.setDefaultSuffix(QStringLiteral("txt"));
  dialog.selectFile(ToQt(suggestedName));
  return Ask(dialog);
}

std::optional<std::string> QtFileDialogs::AskCaseToOpen(const std::string& folder) {
  QFileDialog dialog(Owner(), Case::tr("Open case"), ToQt(folder), CaseFilter());
  dialog.setObjectName(QStringLiteral("OpenCaseDialog"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return AskInLanguage(dialog);
}

std::optional<std::string> QtFileDialogs::AskCaseToSave(const std::string& suggestedPath) {
  const QFileInfo suggested(ToQt(suggestedPath));
  QFileDialog dialog(Owner(), Case::tr("Save case"), suggested.path(), CaseFilter());
  dialog.setObjectName(QStringLiteral("SaveCaseDialog"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("qismora"));
  dialog.selectFile(suggested.fileName());
  return AskInLanguage(dialog);
}

std::string QtSettings::Read(const std::string& application, const std::string& section,
                             const std::string& key) {
  if (!AreOrdinary(application)) return {};
  QSettings store = Open(application);
  store.setFallbacksEnabled(false);
  return FromQt(store.value(Path(section, key)).toString());
}

// A value that is already stored is not written again, so that opening a form does not write to the disk.
void QtSettings::Write(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& value) {
  if (!AreOrdinary(application)) return;
  QSettings store = Open(application);
  store.setFallbacksEnabled(false);
  const QString path = Path(section, key);
  if (store.contains(path) && store.value(path).toString() == ToQt(value)) return;
  if (!HasSpace(store)) return;
  store.setValue(path, ToQt(value));
}

std::string SystemFolders::Reports() {
  const QString current = QDir::currentPath();
  if (CanWrite(current)) return FromQt(current);
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QDir().mkpath(documents);
  return FromQt(documents);
}

std::string SystemFolders::Application() { return FromQt(QCoreApplication::applicationDirPath()); }

void SystemFolders::WriteThrough(const std::string& path) { SyncToDisk(path); }

}  // namespace qismora
