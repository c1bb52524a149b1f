#include "case/LoadCase.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "case/ResiduaryFlags.h"

namespace qismora {

namespace {

enum class Grade { Soft, Hard };

/// A kind of heir: the field of its count, where the count is stored, the largest count that is accepted, the
/// message about a count outside the limits, and whether the field then takes the focus.
struct CountRow {
  int Field;
  Integer CaseRecord::*Count;
  int Most;
  const char* Message;
  bool TakesFocus = false;
};

constexpr CountRow wivesRow = {SpouseField, &CaseRecord::Wives, 4, "Check number of Wives.", true};
constexpr CountRow husbandRow = {SpouseField, &CaseRecord::Husband, 1,
                                 "Enter 1 or 0 against Husband's Status.", true};

constexpr CountRow descendantRows[] = {
    {SonsField, &CaseRecord::Sons, 100, "Check number of Sons, should be limited reasonably.", true},
    {DaughtersField, &CaseRecord::Daughters, 100, "Check number of Daughters, should be limited reasonably."},
    {GrandSonsField, &CaseRecord::GrandSons, 100,
     "Check number of grand Sons, should be limited reasonably."},
    {GrandDaughtersField, &CaseRecord::GrandDaughters, 100,
     "Check number of grand daughters, should be limited reasonably."},
    {GtGrandSonsField, &CaseRecord::GtGrandSons, 100,
     "Check number of great grand Sons, should be limited reasonably."},
    {GtGrandDaughtersField, &CaseRecord::GtGrandDaughters, 100,
     "Check number of great grand daughters, should be limited reasonably."},
};

// The mother is counted like the grandparents, up to 20.
constexpr CountRow otherRows[] = {
    {FatherField, &CaseRecord::Father, 1, "For Father write 1 if alive, or 0 if dead."},
    {GrandFatherField, &CaseRecord::GrandFather, 20,
     "Check number of grand Fathers, should be limited reasonably."},
    {GtGrandFatherField, &CaseRecord::GtGrandFather, 20,
     "Check number of great grand Fathers, should be limited reasonably."},
    {MotherField, &CaseRecord::Mother, 20, "Check number of Mothers, should be limited reasonably."},
    {MothersMotherField, &CaseRecord::MothersMother, 20,
     "Check number of grandmothers, should be limited reasonably."},
    {MothersMothersMotherField, &CaseRecord::MothersMothersMother, 20,
     "Check number of great grandmothers, should be limited reasonably."},
    {FathersMotherField, &CaseRecord::FathersMother, 20,
     "Check number of Father's mothers, should be limited reasonably."},
    {GrandFathersMotherField, &CaseRecord::GrandFathersMother, 20,
     "Check number of grand Father's mothers, should be limited reasonably."},
    {FathersGrandMotherField, &CaseRecord::FathersGrandMother, 20,
     "Check number of Father's grandmothers, should be limited reasonably."},
    {FullBrothersField, &CaseRecord::FullBrothers, 100,
     "Check number of full brothers, should be limited reasonably."},
    {FullSistersField, &CaseRecord::FullSisters, 100,
     "Check number of full sisters, should be limited reasonably."},
    {ConsSistersField, &CaseRecord::ConsSisters, 100,
     "Check number of consanguine sisters (Souteli/ Alati), should be limited reasonably."},
    {ConsBrothersField, &CaseRecord::ConsBrothers, 100,
     "Check number of consanguine brothers (Soutela/ Alati Bhai), should be limited reasonably."},
    {UterineSistersField, &CaseRecord::UterineSisters, 100,
     "Check number of Uterine sisters (Maa Shareek/ Akhyafi Bahan), should be limited reasonably."},
    {UterineBrothersField, &CaseRecord::UterineBrothers, 100,
     "Check number of Uterine Brothers (From same mother but different father), should be limited reasonably."},
};

Integer Converted(Double typed, Integer) { return RoundTo<Integer>(typed); }
Long Converted(Double typed, Long) { return RoundTo<Long>(typed); }
Double Converted(Double typed, Double) { return typed; }

/// A text that is not a number does not change the stored value: an empty field is not a zero.
template <class Number>
void ReadField(const CaseScreen& screen, int index, Number& field) {
  if (const std::optional<Double> typed = ReadNumber(screen.Text1(index).Text.Get())) {
    field = Converted(*typed, field);
  }
}

/// Shows the message that stops the load.
void Refuse(const CaseScreen& screen, BoxStyle style, const std::string& message) {
  screen.Ports.Boxes.Inform(style, message);
  if (screen.Watch.Stopped) screen.Watch.Stopped(message);
}

/// Reads and checks one count; false if it is refused. The stored count is checked, so a stale one is checked
/// as well.
bool ReadCount(CaseRecord& c, CaseScreen& screen, const CountRow& row, Grade grade = Grade::Soft) {
  Integer& count = c.*row.Count;
  ReadField(screen, row.Field, count);
  if (count >= 0 && count <= row.Most) return true;
  Refuse(screen, BoxStyle::Warning, row.Message);
  if (row.TakesFocus) screen.Text1(row.Field).SetFocus();
  if (grade == Grade::Hard) c.InputFailed = true;
  return false;
}

/// Wills may take a third of the gross estate (the limit of a third: report of Sad ibn Abi Waqqas). More
/// needs the consent of the heirs. Each load asks for it. If the answer is No, the wills are reduced to the
/// third.
void AskAboutWills(CaseRecord& c, CaseScreen& screen, Double third) {
  const Answer answer = screen.Ports.Boxes.Show(
      BoxStyle::Warning, BoxButtons::YesNo,
      Join("Check for the sum of Will(s), it must be positive but NOT more than one third of\r\n"
           "the gross estate (",
           GeneralNumber(c.GrossEstate),
           "). Wills (Wasiyyat) more than 33¹/ ³% is not valid.\r\n\r\n"
           "HOWEVER, if sum of Will(s) is more than one third, then state whether all the\r\n"
           "claimants agree to disburse the excess WILL?\r\n\r\n"
           "If you respond in NO, the program will take WILL equal to 1/3 of gross estate."));
  if (answer != Answer::No) return;
  c.Wills = RoundTo<Long>(third);
  screen.Text1(WillsField).Text = F(c.Wills);
}

/// Reads the estate and what is paid from it before the heirs. Returns the message about a refused figure, or
/// null. The debts are compared with the gross estate alone, not with what the funeral expenses leave.
const char* ReadEstate(CaseRecord& c, CaseScreen& screen) {
  ReadField(screen, GrossEstateField, c.GrossEstate);
  if (c.GrossEstate < 0) return "No estate wealth for inheritance.";

  ReadField(screen, FuneralField, c.FuneralExp);
  if (c.FuneralExp > c.GrossEstate || c.FuneralExp < 0) {
    return "No estate wealth left for inheritance, after funerals.";
  }
  ReadField(screen, DebtsField, c.Debts);
  if (c.Debts > c.GrossEstate || c.Debts < 0) {
    return "No estate wealth left for inheritance, after payment of debts.";
  }
  ReadField(screen, WillsField, c.Wills);
  const Double third = Double(1.0) / 3.0 * c.GrossEstate;
  if (c.Wills > third || c.Wills < 0) AskAboutWills(c, screen, third);
  return nullptr;
}

void ReadCase(CaseRecord& c, CaseScreen& screen) {
  c.ExecCount += Long(1);
  screen.Label13.Caption = Join(c.ExecCount);

  const CountRow& spouse = screen.Combo1.ListIndex == Male ? wivesRow : husbandRow;
  if (!ReadCount(c, screen, spouse, Grade::Hard)) return;
  for (const CountRow& row : descendantRows) {
    if (!ReadCount(c, screen, row)) return;
  }
  if (c.GrandDaughters > 0 || c.GtGrandDaughters > 0) {
    c.AsabaGrandSons = c.GrandSons;
    c.AsabaGtGrandSons = c.GtGrandSons;
  }
  for (const CountRow& row : otherRows) {
    if (!ReadCount(c, screen, row)) return;
  }
  ReadClassIIChecks(c, screen);
  if (const char* refusal = ReadEstate(c, screen)) {
    c.GrossEstate = 0;
    Refuse(screen, BoxStyle::Information, refusal);
    return;
  }

  c.NetEstate = c.GrossEstate - (c.Debts + c.FuneralExp + c.Wills);
  screen.Text1(NetEstateField).Text = F(c.NetEstate);
  if (screen.Watch.LoadCompleted) screen.Watch.LoadCompleted();

  screen.Text3.ForeColor = Black;
  screen.Text2.ForeColor = Black;
  if (!(c.NetEstate < 0)) return;
  screen.Ports.Boxes.Inform(BoxStyle::Critical,
                            "NET ESTATE IS NEGATIVE, THE PROGRAM WILL GIVE PROPRTIONATE\r\n"
                            "NEGATIVE SHARES TO COMPENSATE FOR THE DEFICIT.");
  screen.Text3.ForeColor = Red;
  screen.Text2.ForeColor = Red;
}

}  // namespace

void LoadCase(CaseRecord& c, CaseScreen& screen) {
  try {
    ReadCase(c, screen);
  } catch (const Failure& failure) {
    if (failure.Number == Overflow) {
      Refuse(screen, BoxStyle::Warning, "Check for high values of Debts/ Wills (Legacies)/ Funeral expenses");
    } else {
      Refuse(screen, BoxStyle::Plain, Join(failure.Number, CRLF, failure.Description()));
    }
    c.InputFailed = true;
  }
}

void ReadClassIIChecks(CaseRecord& c, CaseScreen& screen) {
  c.Res(ClassIITicked) = false;
  for (int i = 0; i < c.ClassIIFlag.Size; ++i) {
    const bool ticked = screen.Check1(i).Value == 1;
    c.ClassIIFlag(i) = Integer(ticked ? 1 : 0);
    if (ticked) c.Res(ClassIITicked) = true;
  }
}

}  // namespace qismora
