#pragma once

#include <functional>

#include "base/Ports.h"
#include "case/Controls.h"
#include "screens/CentredFrame.h"
#include "shell/ShellRecord.h"

namespace qismora {

/// The form of the law pages without its window. It shows the page that LawPage selects. A number without a
/// page leaves the texts unchanged.
class QurLaws : public CentredFrame {
 public:
  QurLaws(const ShellRecord& shell, MessageBoxes& boxes);

  std::function<void()> ShowMainMenu;
  /// Called to close the form; the next one is loaded again.
  std::function<void()> Unload;

  /// Shows the page that LawPage selects. The menu calls it again while the form is open.
  void Form_Load();

  void Close_Click();
  /// The close button.
  void Form_Unload();

  void Label2_MouseMove();
  void Label2_MouseDown();
  void Form_MouseMove();
  void Frame3_MouseMove();
  void StatusBar1_MouseMove();
  void Text2_MouseMove();

  /// The title of the window.
  Property<std::string> Caption{"Quranic Laws"};
  TextBox Text1;
  TextBox Text2;
  TextBox Text5;
  Label Label2;
  /// Panel 1.
  Label StatusBar1;

 private:
  const ShellRecord& shell_;
  MessageBoxes& boxes_;
};

}  // namespace qismora
