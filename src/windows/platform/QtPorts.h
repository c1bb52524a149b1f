#pragma once

#include "base/Ports.h"

class QWidget;

namespace qismora {

// The implementations of the ports for the case.

class SystemClock : public Clock {
 public:
  DateTime Now() override;
};

/// The program that runs.
class QtProgram : public Program {
 public:
  void End() override;
  bool HasEnded() const { return ended_; }

 private:
  bool ended_ = false;
};

/// A message box that closes without a button, because the program ends, counts as unanswered.
class QtMessageBoxes : public MessageBoxes {
 public:
  explicit QtMessageBoxes(const QtProgram& running) : running_(running) {}
  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override;

 private:
  const QtProgram& running_;
};

/// Makes a window the parent of message boxes during its lifetime, even before the window is active.
class MessageBoxOwner {
 public:
  explicit MessageBoxOwner(QWidget* window);
  ~MessageBoxOwner();
  MessageBoxOwner(const MessageBoxOwner&) = delete;
  MessageBoxOwner& operator=(const MessageBoxOwner&) = delete;
};

/// The dialog opens in the program's directory, or in that of the reports if the program's is not writable.
class QtFileDialogs : public FileDialogs {
 public:
  explicit QtFileDialogs(StandardFolders& folders) : folders_(folders) {}
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) override;
  std::optional<std::string> AskCaseToOpen(const std::string& folder) override;
  std::optional<std::string> AskCaseToSave(const std::string& suggestedPath) override;

 private:
  StandardFolders& folders_;
};

/// One file for each application, in the user's directory for settings.
class QtSettings : public Settings {
 public:
  std::string Read(const std::string& application, const std::string& section,
                   const std::string& key) override;
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;
};

class SystemFolders : public StandardFolders {
 public:
  std::string Reports() override;
  std::string Application() override;
  void WriteThrough(const std::string& path) override;
};

}  // namespace qismora
