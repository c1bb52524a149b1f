#pragma once

#include <string>

#include "base/Array.h"
#include "base/Numbers.h"

namespace qismora {

/// What lives as long as the process.
struct ApplicationState {
  // How many heirs of each kind are alive: one husband or up to four wives, one father.
  Integer Husband;
  Integer Wives;
  Integer Sons;
  Integer Daughters;
  Integer GrandSons;
  Integer GrandDaughters;
  Integer GtGrandSons;
  Integer GtGrandDaughters;
  Integer Father;
  Integer GrandFather;
  Integer GtGrandFather;
  Integer Mother;
  Integer MothersMother;
  Integer MothersMothersMother;
  Integer FullBrothers;
  Integer FullSisters;
  Integer FathersMother;
  Integer GrandFathersMother;
  Integer FathersGrandMother;
  Integer ConsSisters;
  Integer ConsBrothers;
  Integer UterineSisters;
  Integer UterineBrothers;
  // The males who share the residue with son's daughters: "equal" ones are son's sons, "lower" ones are son's
  // son's sons. Loading a case without such daughters does not change them, so they may hold the counts of an
  // earlier case.
  Integer AsabaGrandSons;
  Integer AsabaGtGrandSons;

  // The estate, in plain numbers of its currency.
  Double GrossEstate;
  Long FuneralExp;
  Long Debts;
  Long Wills;
  Double NetEstate;

  /// How many times a case was loaded, over all runs of the program.
  Long ExecCount;

  // The amount of each kind of heir, all of the kind together.
  Double WifeShare;
  Double EachWifeShare;
  Double HusbandShare;
  Double FatherShare;
  Double MotherShare;
  Double GrandMotherShare;
  Double DaughterShare;
  Double SonsDaughterShare;
  Double SonsSonsDaughterShare;
  Double FullBrotherShare;
  Double FullSisterShare;
  Double ConsSisterShare;
  Double ConsBrotherShare;
  Double UterineSisterShare;
  Double UterineBrotherShare;

  std::string WifeReport;
  std::string HusbandReport;
  std::string FatherReport;
  std::string MotherReport;
  std::string GrandMotherReport;
  std::string DaughterReport;
  std::string SonsDaughterReport;
  std::string SonsSonsDaughterReport;
  std::string FullBrotherReport;
  std::string FullSisterReport;
  std::string ConsSisterReport;
  std::string ConsBrotherReport;
  std::string UterineSisterReport;
  std::string UterineBrotherReport;
  std::string ResiduaryReport;

  // The ultimate father: who he is, and his amount in the slot of the man he is.
  std::string UltimateFatherName;
  Double FatherAmount;
  Double GrandFatherAmount;
  Double GtGrandFatherAmount;

  /// The spouse's amount as a whole number, for the mother's third of the remainder.
  Long SpouseShareWhole;

  // The true grandmothers: their combination, their number, and the amount in the slot of one of them.
  std::string GrandMotherGroup;
  Integer GrandMotherCount;
  Double FathersMotherAmount;
  Double GrandFathersMotherAmount;
  Double FathersGrandMotherAmount;
  Double MothersMotherAmount;
  Double MothersMothersMotherAmount;

  // Work entries of the narrative tables: the spouse rules assemble them, and they keep their last text.
  std::string EachWifeText;
  std::string WifeWithGtGrandChildrenText;
  std::string HusbandWithGtGrandChildrenText;

  // Input and result of FindLCM.
  Integer LcmCount;
  Array<Integer, 10> LcmNum;
  Array<Integer, 10> LcmDen;
  Long LcmResult;
};

/// The outcomes of the sufficiency test.
inline constexpr int NoAdjustment = 0;
inline constexpr int AulBesideResiduary = 11;
inline constexpr int Aul = 13;
inline constexpr int Radd = 31;
inline constexpr int SurplusToClassII = 33;

/// What lives as long as the Case Study screen.
struct ScreenState {
  /// A hard failure has stopped the loading of the case. The step that finds it true resets it.
  bool InputFailed = false;
  /// A run of several rules has loaded the case, so their wrappers do not load it again.
  bool CaseLoaded = false;
  /// The full report is being made: the sufficiency test shows no message.
  bool ReportToFile = false;

  // Each kind's fraction of the estate; 0/1 where a rule found no share, 0/0 where none has run.
  Array<Integer, 50> FractionNum;
  Array<Integer, 50> FractionDen;

  /// The ways of being a residuary; see case/ResiduaryFlags.h for each index.
  Array<bool, 20> Res;

  // The residue per head of each kind.
  Double SonAmount;
  Double DaughterResidue;
  Double SonsDaughterResidue;
  Double EqualSonsSonResidue;
  Double LowerSonsSonResidue;
  Double ResidueUnit;
  Double FullBrotherResidue;
  Double FullSisterResidue;
  Double ConsBrotherResidue;
  Double ConsSisterResidue;
  Double ClassIIResidue;
  Double FatherResidue;

  // The class II residuaries, by their check boxes.
  Array<Integer, 11> ClassIIFlag;
  Array<Double, 11> ClassIIAmount;
  /// A sentence that names the taker. No report shows it.
  std::string ClassIINarrative;
  std::string ClassIIText;

  // The sufficiency test.
  Double TotalQShares;
  Double QSharesLessSpouse;
  Double Residue;
  Integer AulRaddState;

  // The sharers over one common denominator.
  Integer ActiveCount;
  Array<Integer, 10> ActiveHeir;
  Array<Integer, 10> ActiveNum;
  Array<Integer, 10> ActiveDen;
  Array<Integer, 10> UnitShare;
  Integer UnitTotal;
  Integer QSharesNum;
  Integer QSharesDen;
  Integer ResidueNum;
  Integer ResidueDen;
  Array<Integer, 10> RaddUnit;
  Integer RaddUnitTotal;
  Integer RaddNum;
  Integer RaddDen;

  // Aul and Radd.
  Double AulFactor;
  Double RaddFactor;
  Integer AulExcessNum;
  Integer AulExcessDen;
  Integer RaddExcessNum;
  Integer RaddExcessDen;
  std::string SharerLines;
  std::string SummaryText;
  std::string RaddText;

  // The long reports. The tables of the summary are indexed like the fields; 34 to 45 stand for the
  // class II check boxes.
  std::string ReportHeader;
  Array<Double, 50> SummaryAmount;
  Array<std::string, 50> SummaryKind;
  Array<std::string, 50> SummaryFraction;
  std::string SummaryReport;
};

/// The one record of a case. Rules take no values from one another: all work on this record, and the
/// order of calls carries results from rule to rule.
struct CaseRecord : ApplicationState, ScreenState {};

}  // namespace qismora
