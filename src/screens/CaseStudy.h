#pragma once

#include <functional>
#include <string>
#include <vector>

#include "case/CaseRecord.h"
#include "case/CaseScreen.h"
#include "screens/AnswerState.h"
#include "screens/CentredFrame.h"
#include "screens/Misreading.h"

namespace qismora {

/// The Case Study screen without its window: the controls as plain values, and the handler of every event. A
/// window shows it and passes events on; a transcript plays it. No failure leaves an event: an unhandled one
/// is reported with its number in a message box, and the program continues.
class CaseStudy : public CaseScreen, public CentredFrame {
 public:
  /// Resets the screen state of the record and runs the start sequence. The saved language is the first view,
  /// an index of Label4.
  CaseStudy(CaseRecord& record, CasePorts& ports, int savedLanguage);

  /// Called to show the main menu, and the program catalogue.
  std::function<void()> ShowMainMenu;
  std::function<void()> ShowCatalogue;
  std::function<void()> HideCatalogue;
  /// Called to hide the screen; it keeps its texts.
  std::function<void()> Hide;

  /// How the load reads the text of Text1(index), if it reads something else than the user sees
  /// (Misreading.h).
  std::string MisreadingOf(int index) const;
  /// The same for all fields that are read differently, a sentence each with caption and text: Gross Estate
  /// 18,40,000 is read as 18.
  std::vector<Message> Misreadings(Grouping grouping) const;

  /// Starts a case as if the screen and the record were new: nothing of the earlier case stays, and nothing
  /// is run. Only the number of executions and the chosen view stay.
  void StartCase(const CaseTexts& texts);
  /// Changes with each case that is started so.
  Property<int> CasesStarted{0};
  /// Whether the heirs consent to bequests above the third. It belongs to the case, but no field shows it.
  Property<bool> HeirsConsent;

  /// How far the answer that is shown can be relied on.
  AnswerStanding Standing() const { return answer_.Standing(); }
  /// The same as a sentence, and as its English words.
  Message AnswerSentence() const { return answer_.Sentence(); }
  Property<std::string> AnswerWords;
  /// As the last load computed it.
  double NetEstate() const { return record_.NetEstate.Value(); }

  /// Changes at the end of each event that may have changed the case.
  Property<int> EventsEnded{0};

  // Heirs and fields
  void Label1_DblClick(int index);
  void Text1_Change(int index);
  void Text1_DblClick(int index);
  void Image37_DblClick(int index);

  // Commands
  void FullReport_Click();
  void Exec_Click();
  void SelectedReport_Click();
  void Resid_Click();
  void Residuaries_Click();
  void AulRad_Click();
  void AulRadd_Click();
  void CreateSaveFullReport_Click();
  void FullReportxx_Click();
  void SaveResults_Click();
  void Image2_Click();
  void TestValues_Click();

  // The view, and the way to other forms
  void Label4_Click(int index);
  void Label13_DblClick();
  void Label6_Click();
  void Image38_Click();
  void About_Click();
  void Back_Click();
  void Form_QueryUnload();

  // Decorations
  void Image2_MouseDown();
  void Image42_Click();
  void Timer1_Timer();
  void FullReportxx_MouseMove();
  void Frame3_MouseMove();
  void Image6_MouseMove();
  void Image4_MouseMove();
  void Image7_MouseMove();
  void Frame111_MouseMove();

  Frame Frame1;
  /// The choice of view: Urdu, English, Arabic.
  Array<Label, 2> Label4;
  /// The name of the program on Frame5.
  Label Label6;

  /// The clear picture.
  Picture Image2;
  // The pictures of the full report button: under the mouse, and at rest.
  static constexpr const char* Image39 = "image39";
  static constexpr const char* Image40 = "image40";
  /// The picture that the full report button shows.
  Property<std::string> FullReportxx{Image40};

  // The caption pictures above the fields. Image9 to Image29 are Image(9) to Image(29).
  Array<Picture, 29> Image;
  Array<Picture, 1> Image30;
  Array<Picture, 22> Image41;
  Array<Frame, 2> Frame4;
  Array<Frame, 2> Frame6;

  /// The interval of the animation's timer in milliseconds; 0 if it is stopped.
  Property<int> Timer1{0};
  Array<Picture, 2> Image42;
  Array<Picture, 1> Image6;
  Array<Picture, 1> Image4;
  Array<Picture, 1> Image7;

 private:
  template <class Body>
  void Event(Body body);
  template <class Body>
  void Command(AnswerOf what, const std::string& name, Body body);

  void Form_Load(int savedLanguage);
  void Comb1_Data();
  void Combo1_Click();
  void ChooseView(int index);
  void ShowUrduCaptions();
  void ShowArabicCaptions();
  void RunHeir(int index);
  std::string KeptFigure(int index) const;
  void ShowFirstResults();
  void WatchCase();
  void ReviewAnswer();

  CaseRecord& record_;
  AnswerState answer_;
  bool reviewing_ = false;
  bool testValues_ = false;
};

}  // namespace qismora
