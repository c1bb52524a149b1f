#include "screens/QurLaws.h"

#include "screens/Event.h"
#include "shell/LawPages.h"

namespace qismora {

QurLaws::QurLaws(const ShellRecord& shell, MessageBoxes& boxes) : shell_(shell), boxes_(boxes) {
  Label2.Caption = "INHERITANCE BY MUSLIM LAW";
  Label2.ForeColor = HighlightColour;
  Form_Load();
}

void QurLaws::Form_Load() {
  if (const LawPageRow* page = FindLawPage(shell_.LawPage)) {
    Text1.Text = std::string(page->Title);
    Text2.Text = page->Text();
  }
  StatusBar1.Caption = Text1.Text.Get();
  Caption = Text1.Text.Get();
}

void QurLaws::Close_Click() {
  GuardedEvent(boxes_, [&] {
    Call(ShowMainMenu);
    Call(Unload);
  });
}
void QurLaws::Form_Unload() { Close_Click(); }

void QurLaws::Label2_MouseMove() { Label2.ForeColor = Green; }
void QurLaws::Label2_MouseDown() { Label2.ForeColor = Red; }
void QurLaws::Form_MouseMove() { Label2.ForeColor = HighlightColour; }
void QurLaws::Frame3_MouseMove() { Form_MouseMove(); }
void QurLaws::StatusBar1_MouseMove() { Form_MouseMove(); }
void QurLaws::Text2_MouseMove() { Form_MouseMove(); }

}  // namespace qismora
