#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Ports.h"
#include "case/CaseRecord.h"
#include "case/Controls.h"
#include "screens/CentredFrame.h"
#include "shell/ShellRecord.h"
#include "shell/Videos.h"

namespace qismora {

/// The main menu without its window: the controls as plain values, and the handler of every event. It lives
/// for the whole run of the program.
class InhMain : public CentredFrame {
 public:
  /// Reads the settings, and starts the session and the animation. A failure ends this silently; the form
  /// still opens.
  InhMain(CaseRecord& record, ShellRecord& shell, ShellPorts& ports);

  // Called to open the other forms.
  std::function<void()> ShowQurLaws;
  std::function<void()> FocusText5OfQurLaws;
  std::function<void()> ShowCaseStudy;
  std::function<void()> ShowZummy;
  std::function<void()> ShowSession;
  std::function<void()> ShowCatalogue;
  /// Called before the program ends; it asks about a changed case. False keeps the program running.
  std::function<bool()> MayEnd;
  /// Called to hide this form.
  std::function<void()> Hide;

  // The menu
  void Option1_Click(int index);
  void Option1_MouseMove(int index);
  void Frame1_MouseMove();

  // The disclaimer
  void Disclaimer_Click();
  void Label5_Click();
  void Text1_DblClick();

  // Around the menu
  void Image3_Click(int index);
  void Label22_Click();
  void Frame2_DblClick();
  void About_Click();
  void Exitz_Click();
  void Form_QueryUnload();

  /// The exit routine has run.
  bool Ended() const { return shell_.Ended; }

  // The animation
  void MediaPlayer1_EndOfPlay();
  void Frame5_Click();
  void Frame5_DblClick();

  Frame Frame1;
  Label Label1;
  Array<OptionButton, 12> Option1;
  /// Whether the pointer is the wait cursor, while an entry is carried out.
  Property<bool> ShowsWaitCursor;
  TextBox Text1;
  Label Label5;
  Label Label6;
  /// The number of this session.
  Label Label22;
  /// One picture at a time.
  Array<Picture, 5> Image3;
  /// Panel 3: the entry under the mouse.
  Label StatusBar1;

 private:
  template <class Body>
  void Event(Body body);
  template <class Body>
  void Decoration(Body body);

  void Form_Load();
  void ShowPicture(int clicked);
  void RunEntry(int index);
  void RunExit();

  CaseRecord& record_;
  ShellRecord& shell_;
  ShellPorts& ports_;
  Videos videos_;
};

}  // namespace qismora
