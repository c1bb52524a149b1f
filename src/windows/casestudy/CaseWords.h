#pragma once

#include <QCoreApplication>

#include "base/Message.h"
#include "base/Ports.h"

namespace qismora {

/// The context of the translations for what stands beside the form of Case Study: the case files, the state
/// of the answer, and the ways to the division. The form itself is English.
class CaseWords {
  Q_DECLARE_TR_FUNCTIONS(Case)

 public:
  /// A message in the current language. Fields have the names of the division there, commands those on their
  /// buttons.
  static QString Of(const Message& message);
};

/// The dialogs of the case files, in the current language.
class CaseDialogs : public MessageBoxes, public FileDialogs {
 public:
  explicit CaseDialogs(CasePorts& ports) : boxes_(ports.Boxes), dialog_(ports.Dialogs) {}

  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override;
  std::optional<std::string> AskPath(const std::string& suggestedName, const std::string& filter) override;
  std::optional<std::string> AskCaseToOpen(const std::string& folder) override;
  std::optional<std::string> AskCaseToSave(const std::string& suggestedPath) override;

 private:
  MessageBoxes& boxes_;
  FileDialogs& dialog_;
};

}  // namespace qismora
