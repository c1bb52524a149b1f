// What the Case Study screen looks like: the captions by gender and view, and the decorations.

#include "base/Text.h"
#include "casefile/Captions.h"
#include "screens/CaseStudy.h"
#include "shell/AppSettings.h"

namespace qismora {

namespace {

/// The views, in the order of their captions, Label4.
enum View { UrduView, EnglishView, ArabicView };
constexpr const char* viewCaptions[] = {"Urd ", "E", "Arabic "};

}  // namespace

void CaseStudy::Form_Load(int savedLanguage) {
  for (int i = 0; i < Label4.Size; ++i) Label4(i).Caption = viewCaptions[i];
  Label13.Caption = Join(record_.ExecCount);
  Comb1_Data();
  Frame1.Caption = Join("When deceased is a ", Combo1.Text());
  ChooseView(savedLanguage >= 0 && savedLanguage < Label4.Size ? savedLanguage : UrduView);
  FullReportxx = Image40;
}

void CaseStudy::Comb1_Data() {
  Combo1.List = {"Male", "Female"};
  Combo1.ListIndex = Male;
}

// The gender was switched. Wives and husband exclude each other. The typed count stays, and the next load
// reads it for the other spouse.
void CaseStudy::Combo1_Click() {
  const bool male = Combo1.ListIndex == Male;
  Frame1.Caption = Join("Informations of the deceased ", Combo1.Text());
  Label1(SpouseField).Caption = std::string(CaptionOf(SpouseField, !male));
  (male ? record_.Husband : record_.Wives) = Integer(0);
  if (Label4(ArabicView).BorderStyle == 1) {
    ShowArabicCaptions();
    Image41(Male).Visible = male;
    Image41(Female).Visible = !male;
  } else {
    ShowUrduCaptions();
    Image30(Male).Visible = male;
    Image30(Female).Visible = !male;
  }
  answer_.GenderSwitched();
  ReviewAnswer();
  EventsEnded = EventsEnded + 1;
}

// The first two of Image41, and the two of Image30, are the captions of the spouse by the deceased's gender.
void CaseStudy::ShowUrduCaptions() {
  for (int i = 9; i <= 29; ++i) Image(i).Visible = true;
  for (int i = 0; i < Image41.Size; ++i) Image41(i).Visible = false;
}

void CaseStudy::ShowArabicCaptions() {
  for (int i = 9; i <= 29; ++i) Image(i).Visible = false;
  for (int i = 0; i < Image41.Size; ++i) Image41(i).Visible = true;
  Image41(Female).Visible = false;
}

// Choosing a view also sets the gender to male. The English view shows the same caption pictures as the Urdu
// view, without the panels over the class II check boxes.
void CaseStudy::ChooseView(int index) {
  const bool urdu = index == UrduView;
  const bool arabic = index == ArabicView;
  for (int i = 0; i < Frame4.Size; ++i) Frame4(i).Visible = urdu;
  for (int i = 0; i < Frame6.Size; ++i) Frame6(i).Visible = arabic;
  Combo1.ListIndex = Male;
  Image41(Male).Visible = arabic;
  if (!arabic) Image41(Female).Visible = false;
  Image30(Male).Visible = !arabic;
  if (arabic) Image30(Female).Visible = false;
  if (arabic) {
    ShowArabicCaptions();
  } else {
    ShowUrduCaptions();
  }
  for (int i = 0; i < Label4.Size; ++i) {
    Label4(i).BorderStyle = i == index ? 1 : 0;
    Label4(i).ForeColor = i == index ? DarkRed : ButtonTextColour;
  }
  LblPressed.Write(Ports.Store, Join(index));
}

void CaseStudy::Image2_MouseDown() { Image2.BorderStyle = 1; }
void CaseStudy::Image42_Click() { Timer1 = Timer1 == 1000 ? 0 : 1000; }

// The pictures take turns in the order 2, 1, 0, one a second.
void CaseStudy::Timer1_Timer() {
  const int next = Image42(2).Visible ? 1 : Image42(1).Visible ? 0 : 2;
  for (int i = 0; i < Image42.Size; ++i) Image42(i).Visible = i == next;
}

void CaseStudy::FullReportxx_MouseMove() { FullReportxx = Image39; }
void CaseStudy::Frame3_MouseMove() { FullReportxx = Image40; }
void CaseStudy::Image6_MouseMove() { Image6(0).Visible = false; }
void CaseStudy::Image4_MouseMove() { Image4(0).Visible = false; }
void CaseStudy::Image7_MouseMove() { Image7(1).Visible = false; }

// When the mouse moves over the frame, all hover decorations end.
void CaseStudy::Frame111_MouseMove() {
  Image7(1).Visible = true;
  Image4(0).Visible = true;
  Image6(0).Visible = true;
  FullReportxx = Image40;
}

}  // namespace qismora
