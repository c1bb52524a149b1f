#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "screens/Differences.h"
#include "screens/DivisionView.h"
#include "windows/division/Languages.h"

/// All words of a division, in the current language (Languages.h). Each function takes data and decides
/// nothing about the law. A window asks again after QEvent::LanguageChange.
namespace qismora::words {

// Heirs

/// "Wife" or "Wives"; "Remainder" for what no heir takes.
QString Heir(faraid::Kind kind, int heads);
/// "2 Daughters"; one head alone is not counted.
QString CountedHeir(faraid::Kind kind, int heads);
/// The heir as a reason or a line of a family tree names one: "full brother".
QString OneHeir(faraid::Kind kind);
/// The field of Case Study in the current language, after the caption of it that an UnreadableField has.
QString Field(const std::string& caption);

/// "The deceased", for a tree or a form where no name is given.
QString Deceased();

// Figures

/// 5 or ٥.
QString Number(std::int64_t number);
/// 18,40,000.50, as the locale groups it.
QString Amount(faraid::Hundredths amount);
/// 3/8; a whole one is 1.
QString Share(const faraid::Fraction& share);
QString Ratio(const faraid::Ratio& ratio);
/// What each receives: "33.33 or 33.34" where heads differ by a hundredth, else the amount.
QString Each(const faraid::Amount& amount, int heads);

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
/// "yields to the grandfather": for the tree; empty where nobody excludes the heir.
QString YieldsTo(const faraid::Row& row);

// Sentences

/// What is divided among whom, and what happened: "15,00,000.00 is divided among 5 heirs. The fixed shares
/// exceed the estate: Awl raises the base from 24 to 27." Or why nothing is divided.
QString Headline(const DivisionView& view);
/// Sons: "abc" is not a whole number.
QString Unreadable(const UnreadableField& field);
/// "Base 24, raised to 27, corrected base 27"; empty where no heir takes anything.
QString Bases(const faraid::Division& division);

/// One line of the estate: "Debts" and what is taken off.
struct EstateLine {
  QString Caption;
  QString Amount;
};
/// Gross estate, what is paid before the heirs as far as it is not 0, and the net estate.
std::vector<EstateLine> EstateLines(const DivisionView& view);
/// The same in one line: "Gross estate 18,40,000.00 − debts 2,40,000.00 − bequests 1,00,000.00".
QString EstateSummary(const DivisionView& view);
/// "Bequests of 8,000.00 are limited to 4,000.00, ..."; empty where nothing is cut.
QString BequestNotice(const DivisionView& view);
/// Names the figures of the estate that are still the examples with which the screen opens; empty without.
QString ExampleNotice(const DivisionView& view);

// The table

enum class Column { Heir, Heads, Share, Parts, Together, Each, Why, Source, CaseStudy };
/// The heading; of Parts with its base: "of 27".
QString Heading(Column column, std::int64_t correctedBase);
QString Sum();
/// Between the items of a list.
QString ListSeparator();

// The commands of Case Study

/// "The commands of Case Study answer otherwise."
QString NoticeHeading();
/// What happens, in a sentence.
QString DifferenceSentence(const DifferenceKind& kind);
/// "Where Qismora differs": the name of the page that a difference leads to.
QString PageOfDifferences();

}  // namespace qismora::words
