#include "division/OwnAnswer.h"

#include <algorithm>
#include <string_view>

#include "aulradd/AulRadd.h"
#include "case/CaseRecord.h"
#include "case/ResiduaryFlags.h"
#include "casefile/HeirFields.h"
#include "residue/Residuaries.h"

namespace qismora {

namespace {

using faraid::Kind;

// Ports that ask nobody and change nothing.

class NoClock : public Clock {
 public:
  DateTime Now() override { return {}; }
};

/// Answers the question about the wills and keeps the last message that refuses a figure or the estate.
class SilentBoxes : public MessageBoxes {
 public:
  explicit SilentBoxes(Answer aboutWills) : aboutWills_(aboutWills) {}

  Answer Show(BoxStyle style, BoxButtons buttons, const std::string& text) override {
    if (buttons != BoxButtons::Ok) return aboutWills_;
    // The critical message warns of a net estate below 0; the run continues.
    if (style == BoxStyle::Critical) return Answer::Ok;
    Refusal = text;
    Refused = style == BoxStyle::Information ? OwnOutcome::EstateRefused : OwnOutcome::FigureRefused;
    return Answer::Ok;
  }

  std::string Refusal;
  /// What the last message has refused; without one, a failure.
  OwnOutcome Refused = OwnOutcome::Failed;

 private:
  Answer aboutWills_;
};

class NoDialogs : public FileDialogs {
 public:
  std::optional<std::string> AskPath(const std::string&, const std::string&) override { return {}; }
};

class NoSettings : public Settings {
 public:
  std::string Read(const std::string&, const std::string&, const std::string&) override { return {}; }
  void Write(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

class NoFolders : public StandardFolders {
 public:
  std::string Reports() override { return {}; }
  std::string Application() override { return {}; }
};

/// A new record and a new screen with the case.
struct OwnCase {
  explicit OwnCase(const CaseTexts& texts) : Boxes(texts.HeirsConsent ? Answer::Yes : Answer::No) {
    TypeIntoScreen(texts, Screen);
    // As in the full report, the sufficiency test shows no message.
    Record.ReportToFile = true;
  }

  NoClock Time;
  SilentBoxes Boxes;
  NoDialogs Dialogs;
  NoSettings Store;
  NoFolders Folders;
  CasePorts Ports{Time, Boxes, Dialogs, Store, Folders};
  CaseRecord Record;
  CaseScreen Screen{Ports};
};

/// Where the record has the count of a kind, its fixed share, and the residue per head.
struct KindFields {
  Kind Heir;
  Integer CaseRecord::*Count;
  Double CaseRecord::*Share = nullptr;
  Double CaseRecord::*ResiduePerHead = nullptr;
};

using C = CaseRecord;

// Without the ultimate father and the true grandmother, who are one heir each in the record. The residue of
// male descendants is in one field for all generations (ReadDescendants).
constexpr KindFields kindFields[] = {
    {Kind::Wives, &C::Wives, &C::WifeShare},
    {Kind::Husband, &C::Husband, &C::HusbandShare},
    {Kind::Sons, &C::Sons},
    {Kind::Daughters, &C::Daughters, &C::DaughterShare},
    {Kind::SonsSons, &C::GrandSons, nullptr, &C::EqualSonsSonResidue},
    {Kind::SonsDaughters, &C::GrandDaughters, &C::SonsDaughterShare, &C::SonsDaughterResidue},
    {Kind::SonsSonsSons, &C::GtGrandSons, nullptr, &C::LowerSonsSonResidue},
    {Kind::SonsSonsDaughters, &C::GtGrandDaughters, &C::SonsSonsDaughterShare},
    {Kind::Mother, &C::Mother, &C::MotherShare},
    {Kind::FullBrothers, &C::FullBrothers, &C::FullBrotherShare, &C::FullBrotherResidue},
    {Kind::FullSisters, &C::FullSisters, &C::FullSisterShare, &C::FullSisterResidue},
    {Kind::ConsanguineSisters, &C::ConsSisters, &C::ConsSisterShare, &C::ConsSisterResidue},
    {Kind::ConsanguineBrothers, &C::ConsBrothers, &C::ConsBrotherShare, &C::ConsBrotherResidue},
    {Kind::UterineSisters, &C::UterineSisters, &C::UterineSisterShare},
    {Kind::UterineBrothers, &C::UterineBrothers, &C::UterineBrotherShare},
};

constexpr KindFields fathers[] = {
    {Kind::Father, &C::Father},
    {Kind::Grandfather, &C::GrandFather},
    {Kind::GreatGrandfather, &C::GtGrandFather},
};

/// A grandmother, and her initials in the name of the group.
struct GrandmotherName {
  std::string_view Name;
  Kind Heir;
  Integer CaseRecord::*Count;
};

constexpr GrandmotherName grandmothers[] = {
    {"MM", Kind::MothersMother, &C::MothersMother},
    {"MMM", Kind::MothersMothersMother, &C::MothersMothersMother},
    {"FM", Kind::FathersMother, &C::FathersMother},
    {"FFM", Kind::GrandfathersMother, &C::GrandFathersMother},
    {"FMM", Kind::FathersMothersMother, &C::FathersGrandMother},
};

/// Reads the shares of a record that the commands have filled.
class Shares {
 public:
  Shares(const CaseRecord& record, OwnAnswer& answer) : c_(record), answer_(answer) {}

  void Read() {
    for (const KindFields& fields : kindFields) {
      if (fields.Share != nullptr)
        Add(fields.Heir, c_.*fields.Count, Adjusted(fields.Heir, c_.*fields.Share));
    }
    ReadGrandmothers();
    // The text of Aul has a line for the father alone, none for a grandfather.
    if (answer_.Applied == Doctrine::NotApplied || c_.Father > 0) {
      AddToUltimateFather(Adjusted(Kind::Father, c_.FatherShare));
    }
    if (answer_.Applied == Doctrine::NotApplied) ReadResidue();
  }

 private:
  void Add(Kind kind, Integer heads, double together) {
    if (heads <= 0) return;
    OwnShare& share = answer_.Shares[static_cast<std::size_t>(kind)];
    share.Together += together;
    share.Each = share.Together / static_cast<double>(heads.Value());
  }
  void AddPerHead(Kind kind, Integer heads, Double each) {
    Add(kind, heads, each.Value() * static_cast<double>(heads.Value()));
  }

  /// A fixed share as the last text shows it, after Aul or Radd. Radd leaves the spouse the plain share.
  double Adjusted(Kind kind, Double share) const {
    const bool plain = answer_.Applied == Doctrine::NotApplied ||
                       (answer_.Applied == Doctrine::RaddApplied && faraid::Spouses.Has(kind));
    return plain ? share.Value() : share.Value() * c_.AulFactor.Value();
  }

  void AddToUltimateFather(double amount) {
    for (const KindFields& father : fathers) {
      if (c_.*father.Count <= 0) continue;
      Add(father.Heir, c_.*father.Count, amount);
      return;
    }
  }

  /// The women of the group share its amount equally.
  void ReadGrandmothers() {
    if (c_.GrandMotherCount <= 0) return;
    const double each =
        Adjusted(Kind::MothersMother, c_.GrandMotherShare) / static_cast<double>(c_.GrandMotherCount.Value());
    std::string_view group = c_.GrandMotherGroup;
    while (!group.empty()) {
      const std::string_view name = group.substr(0, group.find('+'));
      for (const GrandmotherName& row : grandmothers) {
        if (row.Name == name) AddPerHead(row.Heir, c_.*row.Count, each);
      }
      group.remove_prefix(std::min(name.size() + 1, group.size()));
    }
  }

  void ReadResidue() {
    if (c_.SonAmount != 0) ReadDescendants();
    for (const KindFields& fields : kindFields) {
      if (fields.ResiduePerHead != nullptr) {
        AddPerHead(fields.Heir, c_.*fields.Count, c_.*fields.ResiduePerHead);
      }
    }
    AddToUltimateFather(c_.FatherResidue.Value());
    for (int i = 0; i < c_.ClassIIFlag.Size; ++i) {
      if (c_.ClassIIFlag(i) == 0) continue;
      Add(ClassIIKind(i), Integer(1), c_.ClassIIResidue.Value());
      return;
    }
  }

  /// The male descendants who take the residue, and the women beside them, who have half of what a man has.
  /// The conditions are those of the residuary distribution.
  void ReadDescendants() {
    if (c_.Res(SonsWithDaughters)) return Give(Kind::Sons, Kind::Daughters);
    if (c_.Sons > 0) return Give(Kind::Sons);
    if (c_.Res(SonsDaughterWithSonsSonBesideDaughters) || c_.Res(SonsDaughterWithSonsSon)) {
      return Give(Kind::SonsSons, Kind::SonsDaughters);
    }
    if (c_.Res(SonsDaughterWithLowerSonsSon)) return Give(Kind::SonsSonsSons, Kind::SonsDaughters);
    if (c_.GrandSons > 0) return Give(Kind::SonsSons);
    if (c_.Res(SonsSonsDaughterWithSonsSonsSon)) return Give(Kind::SonsSonsSons, Kind::SonsSonsDaughters);
    Give(Kind::SonsSonsSons);
  }
  void Give(Kind men, Kind women = Kind::Remainder) {
    for (const KindFields& fields : kindFields) {
      if (fields.Heir == men) AddPerHead(men, c_.*fields.Count, c_.SonAmount);
      if (fields.Heir == women) AddPerHead(women, c_.*fields.Count, c_.SonAmount / 2);
    }
  }

  const CaseRecord& c_;
  OwnAnswer& answer_;
};

/// Runs the two commands and returns their outcome.
OwnOutcome Run(OwnCase& own, OwnAnswer& answer) {
  CaseRecord& c = own.Record;
  RunResiduaries(c, own.Screen);
  if (!own.Boxes.Refusal.empty()) return own.Boxes.Refused;
  if (c.AulRaddState == NoAdjustment) {
    // If a residuary takes, the report begins with the text of the sharers.
    return c.ResiduaryReport.starts_with(c.SummaryText) ? OwnOutcome::Figures : OwnOutcome::NoFigures;
  }
  own.Screen.Label2.Caption = "";
  RunAulRadd(c, own.Screen);
  if (own.Screen.Label2.Caption.Get().empty()) return OwnOutcome::Failed;
  answer.Applied = c.Residue < 0 ? Doctrine::AulApplied : Doctrine::RaddApplied;
  return OwnOutcome::Figures;
}

}  // namespace

OwnAnswer OwnAnswerOf(const CaseTexts& texts) {
  OwnCase own(texts);
  OwnAnswer answer;
  try {
    answer.Outcome = Run(own, answer);
  } catch (const Failure&) {
    answer.Outcome = own.Boxes.Refused;
  }
  answer.NetEstate = own.Record.NetEstate.Value();
  answer.Refusal = own.Boxes.Refusal;
  answer.StopsAtComma = std::ranges::any_of(
      EstateFieldIndexes, [&](int field) { return texts.Field(field).find(',') != std::string::npos; });
  if (answer.IsDecided()) Shares(own.Record, answer).Read();
  return answer;
}

}  // namespace qismora
