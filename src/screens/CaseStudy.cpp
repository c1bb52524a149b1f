#include "screens/CaseStudy.h"

#include "aulradd/AulRadd.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "case/ClearResults.h"
#include "case/LoadCase.h"
#include "casefile/Captions.h"
#include "casefile/CaseTexts.h"
#include "reports/ReportFiles.h"
#include "reports/ReportRuns.h"
#include "residue/ClassII.h"
#include "residue/Residuaries.h"
#include "rules/Rules.h"
#include "screens/Event.h"
#include "screens/Misreading.h"

namespace qismora {

namespace {

/// The rule that a double click on a caption runs; caption 1 is that of the wives or the husband. The
/// daughters' rule runs without its wrapper, so that the case is loaded once; for the others it is loaded
/// twice.
struct Dispatch {
  int Index;
  Rule Run;
};

constexpr Dispatch dispatchTable[] = {
    {SonsField, RunSon},
    {DaughtersField, ShareOfDaughters},
    {GrandSonsField, RunSon},
    {GrandDaughtersField, RunSonsDaughter},
    {GtGrandSonsField, RunSon},
    {GtGrandDaughtersField, RunSonsSonsDaughter},
    {FatherField, RunUltimateFather},
    {GrandFatherField, RunUltimateFather},
    {GtGrandFatherField, RunUltimateFather},
    {MotherField, RunMother},
    {MothersMotherField, RunGrandMother},
    {MothersMothersMotherField, RunGrandMother},
    {FathersMotherField, RunGrandMother},
    {GrandFathersMotherField, RunGrandMother},
    {FathersGrandMotherField, RunGrandMother},
    {FullBrothersField, RunFullBrother},
    {FullSistersField, RunFullSister},
    {ConsSistersField, RunConsSister},
    {ConsBrothersField, RunConsBrother},
    {UterineSistersField, RunUterineSister},
    {UterineBrothersField, RunUterineBrother},
};

constexpr int brightestColour = 0xFFFFFF;

void SetHeirs(CaseScreen& screen, const char* count) {
  for (const int field : HeirFieldIndexes) screen.Text1(field).Text = count;
}

void UntickClassII(CaseScreen& screen) {
  for (int i = 0; i < screen.Check1.Size; ++i) screen.Check1(i).Value = 0;
}

}  // namespace

// An abandoned command must not leave CaseLoaded set.
template <class Body>
void CaseStudy::Event(Body body) {
  GuardedEvent(Ports.Boxes, [&] {
    const bool loaded = record_.CaseLoaded;
    try {
      body();
    } catch (const Unanswered&) {
      record_.CaseLoaded = loaded;
      throw;
    }
  });
  EventsEnded = EventsEnded + 1;
}

// The answer is reviewed only after the command, because the load itself writes into fields.
template <class Body>
void CaseStudy::Command(AnswerOf what, const std::string& name, Body body) {
  Event([&] {
    answer_.Begin(what, name);
    reviewing_ = false;
    const auto end = [&] {
      answer_.End(static_cast<int>(record_.AulRaddState.Value()), record_.NetEstate < 0,
                  ReadScreen(*this, HeirsConsent));
      reviewing_ = true;
      ReviewAnswer();
    };
    try {
      body();
    } catch (const std::exception&) {
      answer_.Stopped(Translatable("The command was not finished."));
      end();
      throw;
    }
    end();
  });
}

CaseStudy::CaseStudy(CaseRecord& record, CasePorts& ports, int savedLanguage)
    : CaseScreen(ports), record_(record) {
  static_cast<ScreenState&>(record) = ScreenState{};

  for (const Caption& caption : Captions()) Label1(caption.Index).Caption = std::string(caption.Words);
  SetHeirs(*this, "0");
  Text1(NameField).Text = std::string(ExampleName);
  for (const ExampleFigure& example : ExampleFigures) Text1(example.Index).Text = std::string(example.Text);
  Text1(NetEstateField).Text = "0";
  for (int i = 0; i < Check1.Size; ++i) Check1(i).Caption = ClassIIRows[static_cast<std::size_t>(i)].Caption;
  for (int i = 0; i < Text1.Size; ++i) {
    Text1(i).Text.WhenChanged([this, i] { Text1_Change(i); });
  }
  Combo1.ListIndex.WhenChanged([this] { Combo1_Click(); });

  ShowFirstResults();
  Frame5.Caption = "Some of our Softwares";
  Label6.Caption = "QISMORA";
  Label6.ForeColor = Green;
  Image2.Visible = true;
  Image42(0).Visible = true;
  for (Picture* under : {&Image6(1), &Image4(1), &Image7(0)}) under->Visible = true;
  Timer1 = 1000;
  for (Picture* over : {&Image6(0), &Image4(0), &Image7(1)}) over->Visible = true;
  Form_Load(savedLanguage);
  WatchCase();
}

void CaseStudy::ShowFirstResults() {
  Label2.Caption = "PROGRAM EXECUTION RESULTS";
  Label3.Caption = "SHARE";
  ShowLongText(*this, false);
  AulRadd.Visible = false;
  AulRad.Enabled = false;
}

void CaseStudy::WatchCase() {
  Watch.LoadCompleted = [this] { answer_.LoadCompleted(); };
  Watch.Stopped = [this](const std::string& reason) { answer_.Stopped(reason); };
  Watch.Distributed = [this] { answer_.Distributed(); };
  Watch.DoctrineApplied = [this] { answer_.DoctrineApplied(); };
  for (int i = 0; i < Check1.Size; ++i) Check1(i).Value.WhenChanged([this] { ReviewAnswer(); });
  reviewing_ = true;
  ReviewAnswer();
}

void CaseStudy::ReviewAnswer() {
  if (!reviewing_) return;
  answer_.FieldsChanged(ReadScreen(*this, HeirsConsent));
  AnswerWords = English(answer_.Sentence());
}

void CaseStudy::StartCase(const CaseTexts& texts) {
  Event([&] {
    reviewing_ = false;
    const Long executions = record_.ExecCount;
    static_cast<ApplicationState&>(record_) = ApplicationState{};
    static_cast<ScreenState&>(record_) = ScreenState{};
    record_.ExecCount = executions;
    ShowFirstResults();
    for (TextBox* text : {&Text2, &Text3}) {
      text->Text = "";
      text->ForeColor = Black;
    }
    StatusBar1.Caption = "";
    Frame5.Visible = true;
    TypeIntoScreen(texts, *this);
    Text1(NetEstateField).Text = "0";
    HeirsConsent = texts.HeirsConsent;
    answer_.Cleared();
    reviewing_ = true;
    ReviewAnswer();
    CasesStarted = CasesStarted + 1;
  });
}

// A double click on a caption clears the results, loads the case, and runs the wrapper of the rule, which
// loads it again.
void CaseStudy::Label1_DblClick(int index) {
  if (index == 0 || (index >= NameField && index <= NetEstateField)) return;
  const bool computes = index != BlankCaption;
  Command(computes ? AnswerOf::OneShare : AnswerOf::Nothing, Join("Share of ", Label1(index).Caption), [&] {
    ShowLongText(*this, false);
    Text2.Text = "";
    ClearResults(record_, *this);
    LoadCase(record_, *this);
    if (record_.InputFailed) {
      record_.InputFailed = false;
      return;
    }
    RunHeir(index);
    StatusBar1.Caption = Join("Share of ", Label1(index).Caption);
    Ports.Boxes.Inform(BoxStyle::Information, "Current data executed successfully.");
    Frame5.Visible = false;
  });
}

void CaseStudy::RunHeir(int index) {
  if (index == SpouseField) {
    (Combo1.ListIndex == Male ? RunWife : RunHusband)(record_, *this);
    return;
  }
  for (const Dispatch& row : dispatchTable) {
    if (row.Index == index) row.Run(record_, *this);
  }
}

void CaseStudy::Text1_Change(int) {
  Image2.BorderStyle = 0;
  ReviewAnswer();
}

// A refused estate is 0 afterwards, and so is the spouse that a switch of gender takes away. Of the others it
// depends on the run before.
std::string CaseStudy::KeptFigure(int index) const {
  if (index == SpouseField) return Join(Combo1.ListIndex == Male ? record_.Wives : record_.Husband);
  if (index == GrossEstateField) return GeneralNumber(record_.GrossEstate);
  return {};
}

std::string CaseStudy::MisreadingOf(int index) const {
  const std::string kept = KeptFigure(index);
  return Misreading(Text1(index).Text.Get(), index, kept.empty() ? "the figure of the run before" : kept);
}

std::vector<Message> CaseStudy::Misreadings(Grouping grouping) const {
  std::vector<Message> sentences;
  for (const Caption& caption : Captions()) {
    const int index = caption.Index;
    if (index == 0 || index == NameField || index == NetEstateField) continue;
    const std::string& text = Text1(index).Text;
    const TypedReading reading = ReadTyped(text, index);
    if (reading.How == Reading::AsItStands) continue;
    sentences.push_back(SentenceOf(reading, {Label1(index).Caption, text, KeptFigure(index)}, grouping));
  }
  return sentences;
}

// A double click in a field marks an heir as alive or dead. A text that is not a number is not changed.
void CaseStudy::Text1_DblClick(int index) {
  try {
    Text1(index).Text = ParseStrict(Text1(index).Text.Get()) == 0 ? "1" : "0";
  } catch (const Failure&) {
    return;
  }
}

void CaseStudy::Image37_DblClick(int) {
  Event([&] { ExplainClassII(*this); });
}

void CaseStudy::FullReport_Click() {
  Command(AnswerOf::AllShares, "All Individual", [&] { RunFullReport(record_, *this); });
}
void CaseStudy::Exec_Click() { SelectedReport_Click(); }
void CaseStudy::SelectedReport_Click() {
  Command(AnswerOf::AllShares, "Execute Selected", [&] { RunSelectedReport(record_, *this); });
}
void CaseStudy::Resid_Click() { Residuaries_Click(); }
void CaseStudy::Residuaries_Click() {
  Command(AnswerOf::AllShares, "Residuaries", [&] { RunResiduaries(record_, *this); });
}
void CaseStudy::AulRad_Click() { AulRadd_Click(); }
void CaseStudy::AulRadd_Click() {
  Command(AnswerOf::AllShares, "Aul/ Radd", [&] { RunAulRadd(record_, *this); });
}
void CaseStudy::CreateSaveFullReport_Click() {
  Command(AnswerOf::AllShares, "Full Report", [&] { CreateSaveFullReport(record_, *this); });
}
void CaseStudy::FullReportxx_Click() { CreateSaveFullReport_Click(); }
void CaseStudy::SaveResults_Click() {
  Event([&] { SaveResults(*this); });
}

// The clear command. Each clear changes the colour of the program's name; after the brightest it is green
// again.
void CaseStudy::Image2_Click() {
  Event([&] {
    Frame5.Visible = true;
    Label2.Caption = "PROGRAM EXECUTION RESULTS";
    record_.AulRaddState = Integer(NoAdjustment);
    Text3.Text = "";
    Text2.Text = "";
    Label3.Caption = "";
    SetHeirs(*this, "0");
    UntickClassII(*this);
    const int next = Label6.ForeColor + 500000;
    Label6.ForeColor = next <= brightestColour ? next : Green;
    answer_.Cleared();
    ReviewAnswer();
  });
}

void CaseStudy::TestValues_Click() {
  Event([&] {
    const bool fill = testValues_;
    testValues_ = !fill;
    SetHeirs(*this, fill ? "1" : "0");
    if (!fill) UntickClassII(*this);
  });
}

void CaseStudy::Label4_Click(int index) {
  Event([&] { ChooseView(index); });
}

void CaseStudy::Label13_DblClick() {
  Event([&] {
    Ports.Boxes.Inform(BoxStyle::Information,
                       Join("Number of executions of this program = ", Label13.Caption));
  });
}

void CaseStudy::Label6_Click() {
  Event([&] {
    Call(HideCatalogue);
    Ports.Boxes.Inform(BoxStyle::Information, "YOU ARE WORKING ON THIS PROGRAM");
  });
}
void CaseStudy::Image38_Click() { Label6_Click(); }

void CaseStudy::About_Click() {
  Event([&] { Call(ShowCatalogue); });
}

void CaseStudy::Back_Click() {
  Event([&] {
    Frame5.Visible = true;
    Call(ShowMainMenu);
    Call(Hide);
  });
}

void CaseStudy::Form_QueryUnload() {
  Event([&] {
    Call(Hide);
    Call(ShowMainMenu);
  });
}

}  // namespace qismora
