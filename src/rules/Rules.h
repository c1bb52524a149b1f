#pragma once

#include "case/LoadCase.h"

namespace qismora {

// The rules of all heirs, each with its source of law.

/// A rule decides the standing of one kind of heir from the counts, stores amount, fraction and report, and
/// fills the result panel.
using Rule = void (*)(CaseRecord&, CaseScreen&);

/// The share of all the wives together: one fourth, or one eighth beside any descendant (Quran 4:12; that a
/// son's descendant counts like a child is consensus).
void ShareOfWife(CaseRecord& c, CaseScreen& screen);

/// The husband's share: one half, or one fourth beside any descendant, on the same sources. For a male
/// deceased only the heading is set.
void ShareOfHusband(CaseRecord& c, CaseScreen& screen);

/// The daughters' share: one half for one, two thirds for two or more, the residue beside sons (Quran 4:11;
/// the report of Jabir on the daughters of Sad applies its two thirds to exactly two).
void ShareOfDaughters(CaseRecord& c, CaseScreen& screen);

/// Explains that the nearest male descendant is a residuary (Quran 4:11; consensus for a son's descendants).
/// It sets no amount, except 0 if none is alive.
void ShareOfSon(CaseRecord& c, CaseScreen& screen);

/// The share of the ultimate father, who is the nearest living male ascendant: one sixth beside a male
/// descendant, one sixth and the residue beside female descendants alone, the residue without descendants
/// (Quran 4:11). A grandfather stands in the father's place by consensus; that he excludes brothers and
/// sisters, as the father does, is the ruling of Abu Bakr. The residuary distribution divides the residue.
void ShareOfFather(CaseRecord& c, CaseScreen& screen);

/// The mother's share: one sixth beside a descendant or two brothers or sisters of any kind, else one third
/// (Quran 4:11); beside a spouse and the father one third of the remainder after the spouse's share (ruling
/// of Umar, al-Umariyyatan). The spouse's amount is rounded to a Long there. Throws
/// Failure(Overflow) if a Long cannot hold it, or an Integer the number of brothers and sisters.
void ShareOfMother(CaseRecord& c, CaseScreen& screen);

/// The share of all true grandmothers together: one sixth (report of al-Mughira for one, of Ubada for two who
/// share it). The mother excludes all of them (consensus), the father those of his own side (the Companions).
void ShareOfGrandMother(CaseRecord& c, CaseScreen& screen);
/// Names who makes up the group of grandmothers, counts the women, and copies GrandMotherShare into the slot
/// of one of them. Throws Failure(Overflow) for more women than an Integer holds.
void SetGrandMotherGroup(CaseRecord& c);

/// The share of the son's daughters. A son excludes them (consensus), and so do two daughters, who have taken
/// the two thirds, unless a son's son or a son's son's son makes them residuaries (Quran 4:11). Without a
/// daughter they take one half or two thirds in her place (Quran 4:11), beside one daughter one sixth (report
/// of Ibn Masud).
void ShareOfSonsDaughter(CaseRecord& c, CaseScreen& screen);

/// The share of the son's son's daughters, one generation below the son's daughters and on the same sources.
/// A son and a son's son exclude them, and so do a daughter together with a son's daughter, or two son's
/// daughters. Beside a son's son's son they are residuaries, beside daughters or one son's daughter they take
/// one sixth, else one half or two thirds. The rule reads the flag SonsDaughterWithLowerSonsSon and must run
/// after ShareOfSonsDaughter.
void ShareOfSonsSonsDaughter(CaseRecord& c, CaseScreen& screen);

/// The full brother: excluded by a male descendant (Quran 4:176) or a male ascendant (the same verse for the
/// father, the ruling of Abu Bakr for a grandfather), or else a residuary (Quran 4:176).
void ShareOfFullBrother(CaseRecord& c, CaseScreen& screen);

/// The full sister: excluded like her brother, a residuary beside him (Quran 4:176) or female descendants
/// (report of Ibn Masud), or else a sharer of one half or two thirds (Quran 4:176).
void ShareOfFullSister(CaseRecord& c, CaseScreen& screen);

/// The consanguine sister: like the full sister (Quran 4:176), after the full brothers and sisters. A full
/// brother excludes her too (report of Ali), and so do two full sisters, who have taken the two thirds, and
/// one full sister who is a residuary beside female descendants (report of Ibn Masud). Beside exactly one
/// full sister else she completes the two thirds of Quran 4:176 with one sixth (consensus, by analogy with
/// the son's daughter beside one daughter).
void ShareOfConsSister(CaseRecord& c, CaseScreen& screen);

/// The consanguine brother: excluded by a male descendant or ascendant, or else a residuary, like the full
/// brother and on the same sources. The rule does not look at full brothers and sisters; if they are
/// residuaries, the residuary distribution gives them the residue before him.
void ShareOfConsBrother(CaseRecord& c, CaseScreen& screen);

/// The uterine sister: one sixth alone, or the sisters' part of the one third that uterine brothers and
/// sisters share per head (Quran 4:12). Any descendant and any male ascendant excludes her: the verse gives
/// to them only if the deceased leaves neither (kalala). Throws Failure(Overflow) if an Integer cannot
/// hold three times their number.
void ShareOfUterineSister(CaseRecord& c, CaseScreen& screen);

/// The uterine brother: like the sister, on the same source.
void ShareOfUterineBrother(CaseRecord& c, CaseScreen& screen);

/// The wrapper through which a command calls a rule. It loads the case unless a run has done so. After a hard
/// failure it shows the text "INPUT ERROR" and does not call the rule.
template <Rule ShareOf>
void RunSharer(CaseRecord& c, CaseScreen& screen) {
  if (!c.CaseLoaded) LoadCase(c, screen);
  if (c.InputFailed) {
    c.InputFailed = false;
    screen.Text2.Text = "\r\nINPUT ERROR";
    return;
  }
  screen.Text2.Text = "";
  ShareOf(c, screen);
}

// The wrapper of each rule. A caller that has loaded the case may call the rule itself.

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
