#pragma once

#include "case/RunSharer.h"

namespace qismora {

// The rules of all heirs, each with its source of law. A rule decides the standing of one kind of heir from
// the counts, stores its amount, fraction and report, and fills the result panel.

/// The share of all the wives together: one fourth, or one eighth beside any descendant (Quran 4:12; that a
/// son's descendant counts like a child is consensus).
void ShareOfWife(CaseRecord& c, CaseScreen& screen);

/// The husband's share: one half, or one fourth beside any descendant, on the same sources. For a male
/// deceased only the heading is set.
void ShareOfHusband(CaseRecord& c, CaseScreen& screen);

/// The daughters' share: one half for one, two thirds for more, the residue beside sons (Quran 4:11; two
/// thirds for exactly two by the report of Jabir on the daughters of Sad).
void ShareOfDaughters(CaseRecord& c, CaseScreen& screen);

/// Explains that the nearest male descendant is a residuary (Quran 4:11; consensus for a son's descendants).
/// It sets no amount, except 0 if none is alive.
void ShareOfSon(CaseRecord& c, CaseScreen& screen);

/// The share of the ultimate father, who is the nearest living male ascendant: one sixth beside a male
/// descendant (Quran 4:11), one sixth and the residue beside female descendants alone, the residue without
/// descendants ("what remains goes to the nearest male", report of Ibn Abbas). A grandfather stands in the
/// father's place by the ruling of Abu Bakr. The residuary distribution divides the residue itself.
void ShareOfFather(CaseRecord& c, CaseScreen& screen);

/// The mother's share: one sixth beside a descendant or two brothers or sisters of any kind, else one third
/// (Quran 4:11); beside a spouse and the father one third of the remainder after the spouse's share (ruling
/// of Umar, al-Umariyyatan). The spouse's amount is rounded to a Long there; beyond its range it is the
/// overflow failure, and so is a number of brothers and sisters beyond that of an Integer.
void ShareOfMother(CaseRecord& c, CaseScreen& screen);

/// The share of all true grandmothers together: one sixth (report of al-Mughira for one, of Ubada for two who
/// share it). The mother excludes all of them (consensus), the father those of his own side (the Companions).
void ShareOfGrandMother(CaseRecord& c, CaseScreen& screen);
/// Names who makes up the group of grandmothers, counts the women, and copies GrandMotherShare into the slot
/// of one of them. More women than an Integer holds are the overflow failure.
void SetGrandMotherGroup(CaseRecord& c);

/// The share of the son's daughters: in the daughters' place one half or two thirds (consensus on Quran
/// 4:11), one sixth beside one daughter (report of Ibn Masud), the residue beside a son's son or a lower one
/// (majority of the Companions).
void ShareOfSonsDaughter(CaseRecord& c, CaseScreen& screen);

/// The share of the son's son's daughters, one generation below the son's daughters and on the same sources.
/// It reads the flag SonsDaughterWithLowerSonsSon and must run after ShareOfSonsDaughter.
void ShareOfSonsSonsDaughter(CaseRecord& c, CaseScreen& screen);

/// The full brother: excluded, or a residuary without a fixed share (Quran 4:176; beside female descendants
/// "what remains goes to the nearest male", report of Ibn Abbas).
void ShareOfFullBrother(CaseRecord& c, CaseScreen& screen);

/// The full sister: excluded, a residuary beside a brother (Quran 4:176) or female descendants (report of Ibn
/// Masud), or else a sharer of one half or two thirds (Quran 4:176).
void ShareOfFullSister(CaseRecord& c, CaseScreen& screen);

/// The consanguine sister: like the full sister, after the full brothers and sisters (Quran 4:176). Beside
/// exactly one full sister she has one sixth (consensus, by analogy with the son's daughter beside one
/// daughter).
void ShareOfConsSister(CaseRecord& c, CaseScreen& screen);

/// The consanguine brother: excluded, or a residuary like the full brother and on the same sources.
void ShareOfConsBrother(CaseRecord& c, CaseScreen& screen);

/// The uterine sister: one sixth alone, or the sisters' part of the one third that uterine brothers and
/// sisters share per head (Quran 4:12). Any descendant and any male ascendant excludes her: the verse gives
/// to them only if the deceased leaves neither (kalala). Three times their number beyond an Integer is the
/// overflow failure.
void ShareOfUterineSister(CaseRecord& c, CaseScreen& screen);

/// The uterine brother: like the sister, on the same source.
void ShareOfUterineBrother(CaseRecord& c, CaseScreen& screen);

// The wrapper of each rule, through which commands call it. A caller that has loaded the case may call the
// rule itself.

inline constexpr Rule RunWife = RunSharer<ShareOfWife>;
inline constexpr Rule RunHusband = RunSharer<ShareOfHusband>;
inline constexpr Rule RunUltimateFather = RunSharer<ShareOfFather>;
inline constexpr Rule RunMother = RunSharer<ShareOfMother>;
inline constexpr Rule RunGrandMother = RunSharer<ShareOfGrandMother>;
inline constexpr Rule RunSon = RunSharer<ShareOfSon>;
inline constexpr Rule RunDaughters = RunSharer<ShareOfDaughters>;
inline constexpr Rule RunSonsDaughter = RunSharer<ShareOfSonsDaughter>;
inline constexpr Rule RunSonsSonsDaughter = RunSharer<ShareOfSonsSonsDaughter>;
inline constexpr Rule RunFullBrother = RunSharer<ShareOfFullBrother>;
inline constexpr Rule RunFullSister = RunSharer<ShareOfFullSister>;
inline constexpr Rule RunConsSister = RunSharer<ShareOfConsSister>;
inline constexpr Rule RunConsBrother = RunSharer<ShareOfConsBrother>;
inline constexpr Rule RunUterineSister = RunSharer<ShareOfUterineSister>;
inline constexpr Rule RunUterineBrother = RunSharer<ShareOfUterineBrother>;

}  // namespace qismora
