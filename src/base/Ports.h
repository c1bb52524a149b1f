#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <string>

namespace qismora {

// The ports through which the core reaches the operating system. Each has one real implementation in
// windows/platform/ and one fake for tests in tests/support/.

struct DateTime {
  int Year = 0;
  int Month = 0;
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;

  bool operator==(const DateTime&) const = default;
};

/// The local date and time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() = 0;
};

/// The icon and the buttons of a message box, and the button that was pressed.
enum class BoxStyle { Plain, Information, Warning, Critical };
enum class BoxButtons { Ok, YesNo, YesNoCancel, SaveDiscardCancel };
enum class Answer { Ok, Yes, No, Cancel, Save, Discard };

/// Thrown by a message box that ended without an answer, because the program, the desktop session or the
/// display ended. Nobody has agreed to anything, so the command that asked is abandoned. It is not a Failure,
/// so no handler for failures catches it.
class Unanswered : public std::exception {
 public:
  const char* what() const noexcept override { return "a message box ended unanswered"; }
};

/// Modal message boxes. CRLF separates the lines of a text; the title is the application's.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  /// The answer of the user. Throws Unanswered if there is none.
  virtual Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) = 0;

  void Inform(BoxStyle style, const std::string& text) { Show(style, BoxButtons::Ok, text); }
};

/// The dialogs that ask for the path of a file to save or to open. No value if the user cancels.
class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  virtual std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) = 0;

  /// The path of a case file to open. The dialog starts in this folder.
  virtual std::optional<std::string> AskCaseToOpen(const std::string& folder) {
    static_cast<void>(folder);
    return std::nullopt;
  }
  /// The path under which to save a case. The dialog asks before a file is replaced.
  virtual std::optional<std::string> AskCaseToSave(const std::string& suggestedPath) {
    static_cast<void>(suggestedPath);
    return std::nullopt;
  }
};

/// The per-user settings: texts addressed by application, section and key. A missing setting is empty.
class Settings {
 public:
  virtual ~Settings() = default;
  virtual std::string Read(const std::string& application, const std::string& section,
                           const std::string& key) = 0;
  virtual void Write(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) = 0;
};

/// The folders of the files, without a separator at the end.
class StandardFolders {
 public:
  virtual ~StandardFolders() = default;
  /// The folder of the reports: the current one, or the user's documents if that cannot be written to.
  virtual std::string Reports() = 0;
  /// The folder of the program's own files.
  virtual std::string Application() = 0;
  /// The folder of the session log: the program's, or the user's data if that cannot be written to.
  virtual std::string Log() { return Application(); }
  /// The folder of the documents that come with the program.
  virtual std::string Documents() { return Application() + "/documents"; }
  /// Synchronizes a file or a directory to the disk, as far as the platform can. A disk error is a failure.
  virtual void WriteThrough(const std::string& path) { static_cast<void>(path); }
};

/// The platform's viewer of documents. False if the platform cannot open the file.
class DocumentViewer {
 public:
  virtual ~DocumentViewer() = default;
  virtual bool Open(const std::string& path) = 0;
};

/// Plays videos. It shows nothing if it cannot play.
class VideoPlayer {
 public:
  virtual ~VideoPlayer() = default;
  virtual void SetFile(const std::string& path) = 0;
  virtual void Play() = 0;

  /// Called when a video has been played to its end.
  std::function<void()> EndOfPlay;
};

/// Memory in bytes: of the machine, and of this program.
struct MemoryFigures {
  double Total = 0;
  double Free = 0;
  double UsedHere = 0;
};

/// The memory of the machine.
class MemoryMeter {
 public:
  virtual ~MemoryMeter() = default;
  virtual MemoryFigures Read() = 0;
};

/// The running program.
class Program {
 public:
  virtual ~Program() = default;
  virtual void End() = 0;
};

/// The outcome of a command that saves: the path, and the reason if the file was not saved.
struct SaveOutcome {
  std::string Path;
  std::string Reason;

  bool Saved() const { return Reason.empty(); }
};

/// The ports that a case needs.
struct CasePorts {
  Clock& Time;
  MessageBoxes& Boxes;
  FileDialogs& Dialogs;
  Settings& Store;
  StandardFolders& Folders;
  /// Called when a command has saved a file or has failed to, but not when the user cancelled.
  std::function<void(const SaveOutcome&)> SaveEnded = {};
};

/// All ports, for the screens around the case.
struct ShellPorts : CasePorts {
  DocumentViewer& Viewer;
  VideoPlayer& MediaPlayer1;
  MemoryMeter& clsMemory;
  Program& Running;
};

/// The title of the application: of its message boxes, and of two settings.
inline constexpr const char* ApplicationTitle = "Islamic Laws of Inheritance";

}  // namespace qismora
