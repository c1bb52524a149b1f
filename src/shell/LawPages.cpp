#include "shell/LawPages.h"

#include <span>

#include "base/Text.h"

namespace qismora {

namespace {

// The pages, one entry per line. Fixed wording; do not correct.

constexpr std::string_view quranicLaws[] = {
    "   Note: The following rules have been extracted from the HOLY QURAN, vide",
    "          Chapter (Para)-4 (Lantanalul), Surat- An-nisa(6), Ruku-2, Ayat",
    "          numbers 11 and 12 ALSO Ruku-24, Ayat number-177.",
    "",
    "  (A) FOR THE PROPERTY LEFT BY A MALE DECEASED:",
    "",
    "  1. SHARE OF A MALE = SHARE OF TWO FEMALES",
    "",
    "  2. IF MORE THAN TWO DAUGHTERS THEN THEIR SHARE WILL BE 2/3",
    "     (TWO THIRD) OF THE PROPERTY",
    "",
    "  3. IF ONLY ONE DAUGHTER THEN 1/2 (HALF) OF THE PROPERTY",
    "",
    "  4. IF PARENTS ARE ALIVE THEN EACH WILL GET 1/6 (ONE SIXTH)",
    "     SHARE IN THE ESTATE",
    "",
    "  5. IF THERE ARE NO CHILDREN EXCEPT PARENTS THEN EACH OF",
    "     PARENTS WILL GET 1/3 (ONE THIRD) i.e. MOTHER 1/3 (ONE THIRD)",
    "     & FATHER 1/3 (ONE THIRD)",
    "",
    "  6. IF THE DECEASED HAS MORE THAN ONE BROTHER OR SISTER",
    "     THEN HIS MOTHER WILL RECEIVE 1/6 (ONE SIXTH) OF THE",
    "     PROPERTY",
    "",
    "",
    "  ALL THESE SHARES SHOULD BE MADE AFTER DEDUCTING WILLS & DEBTS",
    "",
    "  (B) FOR THE PROPERTY LEFT BY A DECEASED WIFE:",
    "",
    "      Note: Wills and debts will be paid before distribution of the property of",
    "      the deceased.",
    "",
    "  1. HUSBAND WILL GET 1/2 (HALF) OF THE PROPERTY IF THEY ARE",
    "      CHILDLESS.",
    "",
    "  2. HUSBAND WILL GET 1/4 (ONE FOURTH) IF SHE IS HAVING",
    "      CHILD(REN).",
    "",
    "  (C) FOR THE PROPERTY LEFT BY A DECEASED HUSBAND:",
    "",
    "      Note: Wills and debts will be paid before distribution of the property of",
    "      the deceased.",
    "",
    "  1. IF CHILDLESS, WIFE/ WIVES WILL RECEIVE 1/4 (ONE FOURTH).",
    "",
    "  2. IF HAVING CHILD(REN)  WIFE/ WIVES WILL GET 1/8 (ONE EIGHTH).",
    "",
    "  (D) PROPERTY LEFT BY A DECEASED WITH NO PARENTS & CHILD:",
    "",
    "      Note: Wills and debts will be paid before distribution of the property of",
    "      the deceased.",
    "",
    "  1. IF THERE IS ONE BROTHER AND ONE SISTER EACH WILL GET",
    "     1/6 (ONE SIXTH).",
    "",
    "  2. IF BROTHERS AND SISTERS ARE MORE THAN ONE THEN EACH",
    "     WILL SHARE IN 1/3 (ONE THIRD) OF THE PROPERTY.",
    "",
    "      Note 1: ONLY UPTO 1/3 OF THE ESTATE CAN BE WILLED.",
    "      Note 2: FURTHER ELABORATION OF (D) IS GIVEN IN AYAT",
    "\t     NUMBER 177 OF SURAH AN-NISA(6).",
    "",
    "  (E) PROPERTY LEFT BY A FEMALE DECEASED WITH NO PARENTS CHILD:",
    "",
    "      Note: Wills and debts will be paid before distribution of the property of",
    "      the deceased.",
    "",
    "  1. IF ONLY ONE BROTHER THEN BROTHER WILL RECEIVE FULL",
    "      (Note: However, in presence of husband or any other sharer [Farizah] the",
    "      brother will receive as RESIDUARY.)",
    "",
    "  (F) PROPERTY LEFT BY A MALE DECEASED WITH NO PARENTS CHILD:",
    "",
    "      Note: Wills and debts will be paid before distribution of the property of",
    "      the deceased.",
    "",
    "  1. IF ONLY ONE SISTER THEN SHE WILL GET 1/2 (HALF).",
    "",
    "  2. IF TWO SISTERS THEN EACH WILL GET 1/3 (ONE THIRD).",
    "",
    "  3. IF MANY BROTHERS AND SISTERS THEN SHARE OF A SISTER",
    "     WILL BE HALF THAT OF A BROTHER.",
};

constexpr std::string_view wills[] = {
    "  VALIDITY OF A WILL (WASIYYAT):",
    "",
    "  1. An Indian Muslim, who is above 18 years of age and having sound mind can",
    "      only make a valid WILL.",
    "",
    "  2. A WILL made by a Shia muslim after taking poison or doing any other act",
    "      towards the commission of SUICIDE is not valid",
    "",
    "  3. A WILL may be made either VERBALLY or in WRITING.",
    "",
    "  4. No WITNESS is required if the WILL is VERBAL or in WRITING.",
    "",
    "  5. No SIGNATURE is required if the WILL is in WRITING.",
    "",
    "",
    "",
    "  WHICH PROPERTY CAN BE WILLED:",
    "",
    "  Any Property which is capable of being transferred and which exists at the",
    "  time of TESTATOR'S death may be disposed off by a WILL.",
    "",
    "",
    "",
    "  RESTRICTIONS ON WILLS (WASIYYAT):",
    "",
    "  1. A WILL in favour of an heir is INVALID if not consented by the other",
    "      heirs after the death of the TESTATOR.",
    "",
    "  2. If only some of the heirs give their consent in favour of the WILL then",
    "      ONLY THEIR SHARE shall be bound in excess of the Will proportionately.",
    "",
    "  3. Under the Shia Law a TESTATOR may leave a Legacy to an heir so long as",
    "      it does not exceed 1/3 of his estate. Such a WILL is VALID without any",
    "      consent. Moreover, consent may be given before and after the death of",
    "      the TESTATOR.",
};

constexpr std::string_view indianActs[] = {
    "  INDIAN ACTS CONSIDERED IN THE PROGRAM",
    "",
    "  1. Act V of 1843 (ABOLITION OF SLAVERY): According to this Law slavery",
    "      can not be a ground of disability, whereas under the Muslim Law, both",
    "      SHIA and SUNNI, a slave or even his wife can't succeed.",
    "",
    "  2. FREEDOM OF RELIGION ACT, 1850: Change of religion (INFIDELITY) is",
    "      a ground of disability affecting a Muslim in inheriting property. This law",
    "      has ceased the disableness on such grounds. Now an Indian Muslim does",
    "      not loose his right of inheritance by relinquishing his religion.",
    "",
    "  3. INDIAN MAJORITY ACT, 1875: Under the Muslim Law the age of",
    "      MAJORITY starts after 15 years, but according to this act the age of",
    "      majority is the completion of 18 years, which is extended to 21 years",
    "      where the minor is under the guardianship of a guardian under the court",
    "      of Wards Act.",
};

constexpr std::string_view exclusion[] = {
    "  RULES RELATING TO EXCLUSION FROM INHERITANCE",
    "",
    "  As per strict Muslim Law the following are excluded from inheriting property",
    "  of a deceased person:",
    "",
    "\t1. SLAVERY",
    "\t2. INFIDELITY or CONVERSION TO OTHER RELIGION",
    "\t3. HOMICIDE (CAUSING DEATH TO THE DECEASED)",
    "\t4. ILLEGITIMACY (HARAMI)",
    "",
    "  1. SLAVERY - This has been nullified by the ABOLITION OF SLAVERY ACT",
    "      V OF 1843 of Indian Republic.",
    "",
    "  2. INFIDELITY - This has been nullified by the FREEDOM OF RELIGION",
    "      ACT 1850 of Indian Republic.",
    "",
    "  3. HOMICIDE - ",
    "\t(i) SUNNI LAW: A person who causes death to the deceased either",
    "\t    intentionally or accidentally ca not succeed the latter.",
    "",
    "\t(ii) SHIA LAW: A person can only be deprived of the inheritance, if",
    "\t     he causes death to another intentionally.",
    "",
    "  4. ILLEGITIMACY - ",
    "\t(i) SUNNI LAW: An illegitimate child/ person can inherit from mother",
    "\t    and her relations in absence of any legitimate issue.",
    "",
    "\t    An illegitimate child/ person can inherit from father and his",
    "\t    relations.",
    "",
    "\t    Mother and her relations can inherit from the child in absence of",
    "\t    a legitimate issue.",
    "",
    "\t    Father and his relations can not inherit from an illegitimate child.",
    "",
    "\t(i) SHIA LAW: An illegitimate child/ person can not inherit at all.",
    "",
    "\t    No one can inherit from an illegitimate child/ person.",
};

constexpr std::string_view aulRadd[] = {
    "",
    "Literal meaning of 'Aul' is increase and 'Radd' is opposite of 'Aul' i.e. decrease. These doctrines are applied in distribution of shares when:",
    "",
    "1.  Sum of shares is more than ONE",
    "2.  Sum of shares is less than ONE and there is no Residuaries.",
    "",
    "Under, normal circumstances, balance of net estate wealth goes to 'Residuary'. In case, no residuary is alive then the excess wealth is distributed among the sharers using 'Radd' doctrine. This is because, the balance amount can not be given to Distant Kindred relations.",
    "",
    "In the foregoing lines, we will derive a mathematical relation that will take care of 'Aul' and 'Radd':",
    "",
    "Let the net estate wealth be = 1",
    "Shares of Quranic Sharers = a1, a2, ...., an",
    "Sum of Shares = Sum_Shares = (a1+a2+a3+...+an)",
    "",
    "Difference between net estate wealth and sum of shares is given as",
    "",
    "AR = 1 - (a1+a2+a3+...+an)",
    "",
    "Now, we can illustrate that if AR is Zero then no doctrine is required. But AR may be positive or negative in some cases. Two examples are given hereunder to illustrate these:",
    "",
    "Example-1 (Aul- AR positive)",
    "",
    "A Sunni Muslim deceased has left husband and three sisters.",
    "",
    "As per rule",
    "",
    "\tHusband will get - 1/2 (Half)",
    "\tSisters will get - 2/3 (two third)",
    "",
    "Sum of these shares comes to 7/6 (i.e. 1.16666666)",
    "",
    "Certainly, this is a case where sum of Quranic Sharers is more than one and thus, doctrine of 'Aul' is to be implied.",
    "",
    "Example-2 (Radd - AR negative)",
    "",
    "A Sunni Muslim deceased has left a widow, a daughter and mother. No Residuary.",
    "",
    "As per rule",
    "",
    "\tWidow will get - 1/8 (One eighth)",
    "\tDaughter will get - 1/2 (Half)",
    "\tMother will get - 1/6 (One sixth)",
    "",
    "Sum of these shares comes to 19/24 (i.e. 0.791666667)",
    "",
    "Certainly, this is a case where sum of Quranic Sharers is less than one and thus, doctrine of 'Radd' is to be implied.",
    "",
    "NOW, let us assume that revised shares due to implementation of 'Aul' or 'Radd' is ra1, ra2, ra3,..., ran then mathematically they can be expressed as under:",
    "",
    "\tra1 = a1 × (1-AR/(a1+a2+a3+...+an))",
    "\tra2 = a2 × (1-AR/(a1+a2+a3+...+an))",
    "\tra3 = a3 × (1-AR/(a1+a2+a3+...+an))",
    "",
    "\tran = an × (1-AR/(a1+a2+a3+...+an))",
    "",
    "NOW, it will be seen that the sum ra1+ra2+ra3+...+ran will come to ONE.",
};

/// A page starts with a line break and ends with the given number of them.
std::string PageText(std::string_view firstLine, std::span<const std::string_view> lines, int breaksAtEnd) {
  std::string text = Join(CRLF, firstLine);
  for (const std::string_view line : lines) text += Join(CRLF, line);
  for (int i = 0; i < breaksAtEnd; ++i) text += CRLF;
  return text;
}

std::string PageText(std::span<const std::string_view> lines, int breaksAtEnd) {
  return PageText(lines.front(), lines.subspan(1), breaksAtEnd);
}

std::string QuranicLaws() { return PageText(quranicLaws, 9); }
std::string WillsPage() { return PageText(wills, 4); }
std::string IndianActsPage() { return PageText(indianActs, 4); }
std::string ExclusionPage() { return PageText(exclusion, 4); }
std::string AulRaddPage() {
  return PageText(UpperCase("Implementing the Doctrine of 'Aul' and 'Radd':"), aulRadd, 6);
}

// No entry of the main menu opens the wills: number 2 opens a document. The page is required all the same.
constexpr LawPageRow rows[] = {
    {0, "QURANIC LAWS OF INHERITANCE", QuranicLaws}, {2, "WILLS DESCRIBED IN BRIEF", WillsPage},
    {3, "INDIAN ACTS COSIDERED", IndianActsPage},    {5, "EXCLUSION RULES OF INHERITANCE", ExclusionPage},
    {8, "RULES OF 'AUL' & 'RADD'", AulRaddPage},
};

}  // namespace

const LawPageRow* FindLawPage(Integer lawPage) {
  for (const LawPageRow& row : rows) {
    if (lawPage == row.LawPage) return &row;
  }
  return nullptr;
}

}  // namespace qismora
