#pragma once

#include "base/Ports.h"

class QWidget;

namespace qismora {

// The ports of the running program.

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

/// A box that goes away with the program, and not by a button, counts as unanswered.
class QtMessageBoxes : public MessageBoxes {
 public:
  explicit QtMessageBoxes(const QtProgram& running) : running_(running) {}
  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override;

 private:
  const QtProgram& running_;
};

/// While it lives, message boxes belong to its window, even before the desktop has made that the active one.
class MessageBoxOwner {
 public:
  explicit MessageBoxOwner(QWidget* window);
  ~MessageBoxOwner();
  MessageBoxOwner(const MessageBoxOwner&) = delete;
  MessageBoxOwner& operator=(const MessageBoxOwner&) = delete;
};

/// Opens in the program's directory, or in that of the reports if the program's cannot be written to.
class QtSaveDialog : public SaveDialog {
 public:
  explicit QtSaveDialog(Folders& places) : places_(places) {}
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) override;
  std::optional<std::string> AskCaseToOpen(const std::string& folder) override;
  std::optional<std::string> AskCaseToSave(const std::string& suggestedPath) override;

 private:
  Folders& places_;
};

/// One file for each application, in the user's directory for settings.
class QtSettings : public Settings {
 public:
  std::string Read(const std::string& application, const std::string& section,
                   const std::string& key) override;
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;
};

class SystemFolders : public Folders {
 public:
  std::string Reports() override;
  std::string Application() override;
  void WriteThrough(const std::string& path) override;
};

}  // namespace qismora
