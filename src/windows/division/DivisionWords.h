#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "division/Differences.h"
#include "division/DivisionView.h"
#include "windows/language/Languages.h"

/// All words of a division, in the current language (Languages.h). Each function takes data and decides
/// nothing about the law. A window asks again after QEvent::LanguageChange.
namespace qismora::words {

// Heirs

/// "Wife" or "Wives"; "Remainder" for what no heir takes.
QString Heir(faraid::Kind kind, int heads);
/// "2 Daughters"; one head alone is not counted.
QString CountedHeir(faraid::Kind kind, int heads);
/// "Wife, 2 Daughters, Mother"; empty where nobody is alive.
QString Alive(const faraid::Family& family);
/// "Supposition: as if the mother and 2 of 3 daughters had died before the deceased."; empty for the case as
/// it is.
QString Supposition(const DivisionView& view);
/// The heir as a reason or a line of a family tree names one: "full brother".
QString OneHeir(faraid::Kind kind);
/// The name in the current language of the field of Case Study with this caption.
QString Field(const std::string& caption);

/// "The deceased", a man or a woman, if there is no name.
QString Deceased(int gender);

// Figures

/// 5 or ٥.
QString Number(std::int64_t number);
/// 18,40,000.50, grouped as in the locale.
QString Amount(faraid::Hundredths amount);
/// 3/8; a whole number has no denominator.
QString Share(const faraid::Fraction& share);
QString Ratio(const faraid::Ratio& ratio);
/// What each head receives: "33.33 or 33.34" if some receive a hundredth more, else one amount.
QString Each(const faraid::Amount& amount, int heads);
/// The same for a reader: "33.33; one of them 33.34".
QString EachOfThem(const faraid::Amount& amount, int heads);

// Decisions

/// "1/8 because there are children (Quran 4:12); after Awl 3/27".
QString Why(const faraid::Reason& reason);
/// The sentence without its source.
QString WhyWithoutSource(const faraid::Reason& reason);
/// "Quran 4:12"; empty where there is none.
QString SourceOf(faraid::Source source);
/// "sharer and residuary".
QString StandingOf(faraid::Standing standing);
/// "Hanafi".
QString SchoolName(faraid::School school);
/// "Hanafi law".
QString SchoolLaw(faraid::School school);
/// "yields to the grandfather", for the family tree: who excludes the heir. Empty if nobody does.
QString YieldsTo(const faraid::Row& row);

// Sentences

/// The division in one or two sentences: "15,00,000.00 is divided among 5 heirs. The fixed shares exceed the
/// estate: Awl raises the base from 24 to 27." Or why nothing is divided.
QString Headline(const DivisionView& view);
/// Sons: "abc" is not a whole number.
QString Unreadable(const UnreadableField& field);
/// "Base 24, raised to 27, corrected base 27"; empty if no heir takes anything.
QString Bases(const faraid::Division& division);

/// One line of the estate, such as "less debts" and the amount.
struct EstateLine {
  QString Caption;
  faraid::Hundredths Amount;
};
/// The gross estate, what is paid before the heirs unless it is 0, and the net estate or the shortfall.
std::vector<EstateLine> EstateLines(const DivisionView& view);
/// The same in one line: "Gross estate 18,40,000.00 − debts 2,40,000.00 − bequests 1,00,000.00".
QString EstateSummary(const DivisionView& view);
/// "Bequests of 8,000.00 are limited to 4,000.00, ...", or lapse, and that the heirs consent to more than a
/// third, so that those who sign the paper read it. Empty where the bequests are neither cut nor above a
/// third.
QString BequestNotice(const DivisionView& view);
/// Names the fields that still hold the example; empty without any.
QString ExampleNotice(const DivisionView& view);

// The table

enum class Column { Heir, Heads, Share, Parts, Together, Each, Why, Source, CaseStudy };
/// The heading of a column. That of Parts names the base: "of 27".
QString Heading(Column column, std::int64_t correctedBase);
QString Sum();
/// Between the items of a list.
QString ListSeparator();

// The commands of Case Study

/// "The commands of Case Study answer otherwise."
QString NoticeHeading();
/// What the commands do, in a sentence.
QString DifferenceSentence(const DifferenceKind& kind);
/// "Where Qismora differs": the title of the page that explains a difference.
QString PageOfDifferences();

}  // namespace qismora::words
