#include "screens/InhMain.h"

#include "base/Text.h"
#include "screens/Event.h"
#include "shell/AppSettings.h"
#include "shell/Documents.h"
#include "shell/SessionLog.h"

namespace qismora {

namespace {

/// What an entry of the menu opens: a law page, a law page with the focus in its text, a document, Case
/// Study.
enum class Target { LawPage, LawPageInFocus, Document, CaseStudy, None };

/// An entry of the menu. The document is the number of its holder.
struct MenuCommand {
  const char* Caption;
  Target Opens;
  int Document = 0;
};

constexpr MenuCommand entries[] = {
    {"Quranic Laws Described", Target::LawPageInFocus},
    {"Rules of Inheritance (.pdf)", Target::Document, 4},
    {"Historical Background (.pdf)", Target::Document, 1},
    {"Indian Acts Considered", Target::LawPage},
    {"Origin and Development (.pdf)", Target::Document, 2},
    {"Exclusion from Inheritance", Target::LawPage},
    {"FIND SHARES - CASE STUDIES", Target::CaseStudy},
    {"D", Target::None},
    {"Rules of 'Aul' && 'Radd' implied", Target::LawPageInFocus},
    {"Schools of Thoughts (.pdf)", Target::Document, 3},
    {"References (.pdf)", Target::Document, 5},
    {"Relations Made Easy (.pdf)", Target::Document, 6},
    {"Aayaat -e- Meeraas (.pdf)", Target::Document, 7},
};

/// The entry that is never shown. It is selected while no command runs, so any other entry can be chosen.
constexpr int restingEntry = 7;

constexpr int lightGreen = 192 + 255 * 0x100 + 192 * 0x10000;
constexpr const char* restingPanel = "Inheritance as per Muslim Law";

constexpr const char* disclaimer =
    "Congratulations User!\r\n\r\n"
    "DOUBLE CLICK TO HIDE THIS DISCLAIMER\r\n"
    "FOR your choice of this product 'Qismora' from the house of 'Brindhaven'. "
    "The subject of Qismora is of international utility. However, such type of Software "
    "is seldom used by individuals. Most people depend fully on the Olemas and the learned "
    "scholars of their respective community. But, it always pays if one has some idea of "
    "the subject by any other means. There are several other benefits of knowing these "
    "important matters of 'Distribution of the left out estate of a deceased Muslim'. This "
    "software has gone continued updating for trusted and reliable results alongwith good "
    "looking and user-friendly getup in Windows 32-bit machines. However, the author does not take "
    "any responsibility for wrong results, if any. This program can be run on any Windows "
    "Version after Windows 95.\r\n\r\n"
    "In spite of all our best efforts, this product may contain some un-experienced bugs. "
    "Any bugs, if identified by any user, will be warmly welcomed.\r\n\r\n"
    "You may not "
    "modify or alter this program in any way. Further, the vendors, authors, proprietors "
    "or our authorised persons shall not be responsible for any loss or damage suffered "
    "directly or indirectly due to use/ misuse/ non-performance of the software or "
    "implementation of the results obtained from this Software. No claims can be made "
    "as to its suitability for a particular purpose.\r\n\r\n"
    "DOUBLE CLICK TO HIDE THIS DISCLAIMER\r\n\r\n\r\n";

}  // namespace

template <class Body>
void InhMain::Event(Body body) {
  GuardedEvent(ports_.Boxes, body);
}

/// Runs a part of the animation. It is only decoration, so its failures show no message box.
template <class Body>
void InhMain::Decoration(Body body) {
  try {
    body();
  } catch (const Failure&) {
    return;
  }
}

InhMain::InhMain(CaseRecord& record, ShellRecord& shell, ShellPorts& ports)
    : record_(record), shell_(shell), ports_(ports), videos_(ports) {
  Frame1.Caption = "INHERITANCE BY MUSLIM LAW";
  Label1.Caption = "INHERITANCE BY MUSLIM LAW";
  for (int i = 0; i < Option1.Size; ++i) Option1(i).Caption = entries[i].Caption;
  Option1(restingEntry).Visible = false;
  Option1(restingEntry).Value = true;
  Text1.Visible = false;
  Label5.Caption = "I agree with the disclaimer terms of the Software";
  Label6.Caption = "Advised to run this program on 800x600 screen resolution";
  StatusBar1.Caption = restingPanel;
  Image3(0).Visible = true;
  ports_.MediaPlayer1.EndOfPlay = [this] { MediaPlayer1_EndOfPlay(); };
  try {
    Form_Load();
  } catch (const Failure&) {
    return;
  }
}

void InhMain::Form_Load() {
  record_.ExecCount = TimesExecuted.Read(ports_.Store);
  shell_.SavedLanguage = ToInteger(LblPressed.Read(ports_.Store));
  ShowPicture(static_cast<int>(LowerImage.Read(ports_.Store).Value()));
  StartSession(shell_, ports_);
  Label22.Caption = Join(shell_.SessionNumber);
  videos_.PlaySecondVideo();
}

// Afterwards the resting entry is selected, so that the same entry can be chosen again.
void InhMain::Option1_Click(int index) {
  Event([&] {
    ShowsWaitCursor = true;
    Option1(index).Value = true;
    shell_.LawPage = Integer(index);
    RunEntry(index);
    Option1(index).Value = false;
    Option1(restingEntry).Value = true;
    ShowsWaitCursor = false;
  });
}

void InhMain::RunEntry(int index) {
  const MenuCommand& entry = entries[index];
  switch (entry.Opens) {
    case Target::LawPage:
      return Call(ShowQurLaws);
    case Target::LawPageInFocus:
      Call(ShowQurLaws);
      return Call(FocusText5OfQurLaws);
    case Target::Document:
      return OpenDocument(entry.Document, ports_);
    case Target::CaseStudy:
      return Call(ShowCaseStudy);
    case Target::None:
      return;
  }
}

void InhMain::Option1_MouseMove(int index) {
  for (int i = 0; i < Option1.Size; ++i) Option1(i).BackColor = i == index ? lightGreen : ButtonFaceColour;
  StatusBar1.Caption = Option1(index).Caption;
}

void InhMain::Frame1_MouseMove() {
  for (int i = 0; i < Option1.Size; ++i) Option1(i).BackColor = ButtonFaceColour;
  StatusBar1.Caption = restingPanel;
}

// The caption after the disclaimer differs from the first one. Fixed wording; do not correct.
void InhMain::Disclaimer_Click() {
  Event([&] {
    const bool show = !Text1.Visible;
    Text1.Visible = show;
    Label5.Caption = show ? "Disclaimer Terms:" : "I agree with the dislaimer terms in the Software";
    Text1.Text = disclaimer;
  });
}
void InhMain::Label5_Click() { Disclaimer_Click(); }
void InhMain::Text1_DblClick() { Disclaimer_Click(); }

void InhMain::Image3_Click(int index) {
  Event([&] { ShowPicture(index); });
}

// A click on a picture shows the next one. The setting stores the picture that was clicked.
void InhMain::ShowPicture(int clicked) {
  Image3(clicked).Visible = false;  // a number that names no picture fails here and is not kept
  const int next = (clicked + 1) % Image3.Size;
  for (int i = 0; i < Image3.Size; ++i) Image3(i).Visible = i == next;
  LowerImage.Write(ports_.Store, Join(clicked));
}

void InhMain::Label22_Click() {
  Event([&] { Call(ShowSession); });
}

void InhMain::Frame2_DblClick() {
  Event([&] {
    Call(ShowZummy);
    Call(Hide);
  });
}

void InhMain::About_Click() {
  Event([&] { Call(ShowCatalogue); });
}

void InhMain::Exitz_Click() { RunExit(); }
void InhMain::Form_QueryUnload() { RunExit(); }

void InhMain::RunExit() {
  if (MayEnd && !MayEnd()) return;
  Event([&] { Inhp(shell_, record_, ports_); });
}

void InhMain::MediaPlayer1_EndOfPlay() {
  Decoration([&] { videos_.PlayFirstVideo(); });
}
void InhMain::Frame5_Click() {
  Decoration([&] { videos_.PlayOther(); });
}
void InhMain::Frame5_DblClick() {
  Decoration([&] { videos_.PlayAgain(); });
}

}  // namespace qismora
