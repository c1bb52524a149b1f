#pragma once

#include <array>
#include <functional>
#include <string>

#include "base/Array.h"
#include "base/Ports.h"
#include "case/Controls.h"

namespace qismora {

// The indices of the fields in Text1 and of their captions in Label1. Wives and husband share a field.
inline constexpr int SpouseField = 1;
inline constexpr int SonsField = 2;
inline constexpr int DaughtersField = 3;
inline constexpr int GrandSonsField = 4;
inline constexpr int GrandDaughtersField = 5;
inline constexpr int GtGrandSonsField = 6;
inline constexpr int GtGrandDaughtersField = 7;
inline constexpr int FatherField = 13;
inline constexpr int GrandFatherField = 14;
inline constexpr int GtGrandFatherField = 15;
inline constexpr int MotherField = 16;
inline constexpr int MothersMotherField = 17;
inline constexpr int MothersMothersMotherField = 18;
inline constexpr int FathersMotherField = 19;
inline constexpr int GrandFathersMotherField = 20;
inline constexpr int FathersGrandMotherField = 21;
inline constexpr int FullBrothersField = 22;
inline constexpr int FullSistersField = 23;
inline constexpr int NameField = 24;
inline constexpr int GrossEstateField = 25;
inline constexpr int FuneralField = 26;
inline constexpr int DebtsField = 27;
inline constexpr int WillsField = 28;
inline constexpr int NetEstateField = 29;
inline constexpr int ConsSistersField = 30;
inline constexpr int ConsBrothersField = 31;
inline constexpr int UterineSistersField = 32;
inline constexpr int UterineBrothersField = 33;

/// A caption of Label1 without a field: it loads the case and computes nothing.
inline constexpr int BlankCaption = 12;

/// The fields of the heirs, in the order of the screen. The arrays Text1 and Label1 have no elements between
/// 8 and 11.
inline constexpr std::array HeirFieldIndexes = {SpouseField,
                                                SonsField,
                                                DaughtersField,
                                                GrandSonsField,
                                                GrandDaughtersField,
                                                GtGrandSonsField,
                                                GtGrandDaughtersField,
                                                FatherField,
                                                GrandFatherField,
                                                GtGrandFatherField,
                                                MotherField,
                                                MothersMotherField,
                                                MothersMothersMotherField,
                                                FathersMotherField,
                                                GrandFathersMotherField,
                                                FathersGrandMotherField,
                                                FullBrothersField,
                                                FullSistersField,
                                                ConsSistersField,
                                                ConsBrothersField,
                                                UterineSistersField,
                                                UterineBrothersField};
/// The fields of the estate that the user types.
inline constexpr std::array EstateFieldIndexes = {GrossEstateField, FuneralField, DebtsField, WillsField};

inline constexpr int Male = 0;
inline constexpr int Female = 1;

/// What the commands report while they run. No rule depends on it.
struct CaseWatch {
  /// A load has read the whole case.
  std::function<void()> LoadCompleted;
  /// A load was stopped by a message, or a command by a failure that it handles without a message.
  std::function<void(const std::string& reason)> Stopped;
  /// The residue has been distributed.
  std::function<void()> Distributed;
  /// Aul or Radd has been applied to the shares.
  std::function<void()> DoctrineApplied;
};

/// The part of the Case Study screen that the law knows: the fields that a case is read from and the
/// panel that its results are written to.
struct CaseScreen {
  explicit CaseScreen(CasePorts& ports) : Ports(ports) {}

  CasePorts& Ports;

  /// The gender of the deceased.
  ComboBox Combo1;
  Array<Label, 33> Label1;
  Array<TextBox, 33> Text1;
  /// The class II residuaries.
  Array<CheckBox, 11> Check1;

  /// Heading and amount line of the result panel.
  Label Label2;
  Label Label3;
  /// The narrative of one rule, and the long reports; they share one place.
  TextBox Text2;
  TextBox Text3;
  /// Covers the result area while there is no result to read.
  Frame Frame5;
  /// Shows how many times a case was loaded.
  Label Label13;
  Label StatusBar1;
  Button AulRadd;
  MenuEntry AulRad;

  CaseWatch Watch;
};

/// The two long texts are never both visible: showing one hides the other.
inline void ShowLongText(CaseScreen& screen, bool show) {
  screen.Text3.Visible = show;
  screen.Text2.Visible = !show;
}

}  // namespace qismora
