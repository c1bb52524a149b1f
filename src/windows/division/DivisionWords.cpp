#include "windows/division/DivisionWords.h"

#include <QCoreApplication>
#include <algorithm>

#include "casefile/HeirFields.h"
#include "windows/division/TranslationContexts.h"
#include "windows/platform/Utf8.h"

namespace qismora::words {

namespace {

using faraid::Kind;

/// Translates a text of the core, which is a string literal and so ends with a zero byte.
QString Translated(const char* context, std::string_view literal) {
  return QCoreApplication::translate(context, literal.data());
}

/// Replaces the digits 0 to 9, which the translations contain, by those of the language.
QString WithDigits(QString text) {
  const ushort zero = CurrentLocale().zeroDigit().front().unicode();
  for (QChar& sign : text) {
    if (sign >= QLatin1Char('0') && sign <= QLatin1Char('9')) sign = QChar(zero + sign.unicode() - u'0');
  }
  return text;
}

QString WithArticle(Kind kind) {
  const bool isTheOnlyOne = faraid::MostOf(kind) == 1 && !faraid::ClassII.Has(kind);
  return (isTheOnlyOne ? Words::tr("the %1") : Words::tr("a %1")).arg(OneHeir(kind));
}

QString FieldOf(const QString& field, const faraid::Reason& reason) {
  if (field == QLatin1String("share")) return Share(reason.Share);
  if (field == QLatin1String("heir")) return OneHeir(reason.Named);
  if (field == QLatin1String("a heir")) return WithArticle(reason.Named);
  if (field == QLatin1String("left"))
    return reason.Share == 1 ? Words::tr("the whole") : Words::tr("what is left");
  return (Kind::Sons | Kind::Daughters).Has(reason.Named) ? Words::tr("children")
                                                          : Words::tr("children of sons");
}

QString Filled(const QString& pattern, const faraid::Reason& reason) {
  QString text;
  qsizetype from = 0;
  while (true) {
    const qsizetype open = pattern.indexOf(QLatin1Char('{'), from);
    if (open < 0) return text + pattern.mid(from);
    const qsizetype close = pattern.indexOf(QLatin1Char('}'), open);
    text += pattern.mid(from, open - from) + FieldOf(pattern.mid(open + 1, close - open - 1), reason);
    from = close + 1;
  }
}

QString Sentence(const faraid::Reason& reason, const QString& source) {
  QString text = Filled(WithDigits(Translated("Reasons", faraid::Pattern(reason.Code))), reason);
  if (!source.isEmpty()) text = Words::tr("%1 (%2)", "a reason and its source").arg(text, source);
  switch (reason.Sixth) {
    case faraid::Beyond::NoResiduary:
      break;
    case faraid::Beyond::TheResidue:
      text = Words::tr("%1, and what is left beyond it").arg(text);
      break;
    case faraid::Beyond::Nothing:
      text = Words::tr("%1; nothing is left beyond it").arg(text);
      break;
  }
  switch (reason.Changed) {
    case faraid::Change::None:
      return text;
    case faraid::Change::Awl:
      return Words::tr("%1; after Awl %2").arg(text, Ratio(reason.After));
    case faraid::Change::Radd:
      return Words::tr("%1; after Radd %2").arg(text, Ratio(reason.After));
  }
  return text;
}

/// The fields of the estate as Case Study captions them and what they are called here, in the order of
/// ExampleFigures.
constexpr struct {
  const char* Caption;
  const char* Name;
} estateFields[] = {
    {"Gross Estate", QT_TRANSLATE_NOOP("Words", "Gross estate")},
    {"Funeral exp.", QT_TRANSLATE_NOOP("Words", "Funeral expenses")},
    {"Debts", QT_TRANSLATE_NOOP("Words", "Debts")},
    {"Will(s)", QT_TRANSLATE_NOOP("Words", "Bequests")},
};

/// The estate is empty, or the one with which Case Study opens.
bool NothingIsTyped(const DivisionView& view) {
  return view.Estate.Gross == 0 || std::ranges::count(view.Examples, GrossEstateField) > 0;
}

QString WhatHappened(const DivisionView& view) {
  switch (view.Outcome) {
    case DivisionOutcome::AwlApplied:
      return Words::tr("The fixed shares exceed the estate: Awl raises the base from %1 to %2.")
          .arg(Number(view.Division.Base), Number(view.Division.RaisedTo));
    case DivisionOutcome::RaddApplied:
      return Words::tr(
          "The fixed shares leave something and there is no residuary: Radd returns it to the "
          "sharers other than the spouse.");
    case DivisionOutcome::Remainder:
      return Words::tr("Beside the spouse there is no other heir: %1 is left over.")
          .arg(Amount(view.Takers.back().Amount.Together));
    case DivisionOutcome::FitsExactly:
      return Words::tr("The fixed shares fit the estate exactly.");
    default:
      return Words::tr("The residuaries take what the fixed shares leave.");
  }
}

}  // namespace

QString Deceased(int gender) {
  return gender == Female ? Words::tr("The deceased", "a woman") : Words::tr("The deceased", "a man");
}

QString Field(const std::string& caption) {
  const auto heir = std::ranges::find(HeirFields, caption, &HeirField::Caption);
  if (heir != HeirFields.end()) return Heir(heir->Heir, faraid::MostOf(heir->Heir));
  for (const auto& field : estateFields) {
    if (caption == field.Caption) return Words::tr(field.Name);
  }
  return ToQt(caption);
}

QString Number(std::int64_t number) { return CurrentLocale().toString(qlonglong{number}); }

QString Amount(faraid::Hundredths amount) {
  const QLocale locale = CurrentLocale();
  const auto digit = [&](faraid::Hundredths value) { return locale.toString(static_cast<int>(value)); };
  const QString sign = amount < 0 ? locale.negativeSign() : QString();
  const faraid::Hundredths size = std::abs(amount);
  return sign + locale.toString(qlonglong{size / 100}) + locale.decimalPoint() + digit(size / 10 % 10) +
         digit(size % 10);
}

QString Ratio(const faraid::Ratio& ratio) {
  // A fraction is one number: it is never grouped, and never broken over two lines.
  QLocale locale = CurrentLocale();
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  if (ratio.Den == 1) return locale.toString(qlonglong{ratio.Num});
  return locale.toString(qlonglong{ratio.Num}) + QLatin1Char('/') + locale.toString(qlonglong{ratio.Den});
}

QString Share(const faraid::Fraction& share) { return Ratio({share.Num(), share.Den()}); }

QString Each(const faraid::Amount& amount, int heads) {
  if (amount.HeadsWithOneMore == 0) return Amount(amount.Each);
  if (amount.HeadsWithOneMore == heads) return Amount(amount.Each + 1);
  return Words::tr("%1 or %2", "amounts").arg(Amount(amount.Each), Amount(amount.Each + 1));
}

QString EachOfThem(const faraid::Amount& amount, int heads) {
  const int more = amount.HeadsWithOneMore;
  if (more == 0 || more == heads) return Each(amount, heads);
  const QString least = Amount(amount.Each);
  const QString most = Amount(amount.Each + 1);
  if (more == 1) return Words::tr("%1; one of them %2", "amounts").arg(least, most);
  return Words::tr("%1; %2 of them %3", "an amount, heads, their amount").arg(least, Number(more), most);
}

QString Why(const faraid::Reason& reason) { return Sentence(reason, SourceOf(reason.Basis)); }

QString WhyWithoutSource(const faraid::Reason& reason) { return Sentence(reason, {}); }

QString SourceOf(faraid::Source source) {
  if (source == faraid::Source::None) return {};
  return WithDigits(Translated("Sources", faraid::Words(source)));
}

QString StandingOf(faraid::Standing standing) {
  switch (standing) {
    case faraid::Standing::Sharer:
      return Words::tr("sharer");
    case faraid::Standing::Residuary:
      return Words::tr("residuary");
    case faraid::Standing::SharerAndResiduary:
      return Words::tr("sharer and residuary");
    case faraid::Standing::Excluded:
      return Words::tr("excluded");
    case faraid::Standing::TwoThirdsTaken:
      return Words::tr("two thirds are taken");
    case faraid::Standing::NotAnHeir:
      return Words::tr("not an heir in this school");
    case faraid::Standing::NothingLeft:
      return Words::tr("nothing is left");
  }
  return {};
}

QString SchoolName(faraid::School school) {
  switch (school) {
    case faraid::School::Hanafi:
      return Words::tr("Hanafi");
    case faraid::School::Maliki:
      return Words::tr("Maliki");
    case faraid::School::Shafii:
      return Words::tr("Shafi'i");
    case faraid::School::Hanbali:
      return Words::tr("Hanbali");
  }
  return {};
}

QString SchoolLaw(faraid::School school) {
  return Words::tr("%1 law", "of a school").arg(SchoolName(school));
}

QString YieldsTo(const faraid::Row& row) {
  if (row.Excluder == Kind::Remainder) return {};
  return Words::tr("yields to %1").arg(WithArticle(row.Excluder));
}

QString Headline(const DivisionView& view) {
  const QString net = Amount(view.Settlement.Net);
  switch (view.Outcome) {
    case DivisionOutcome::Unreadable:
      return Words::tr("Nothing is divided while a field cannot be read.");
    case DivisionOutcome::Short:
      return Words::tr("Nothing is left to divide: funeral expenses and debts exceed the estate by %1.")
          .arg(Amount(view.Settlement.Shortfall));
    case DivisionOutcome::NoHeirs:
      if (view.Others.empty() && NothingIsTyped(view))
        return Words::tr("Type who survives and what is left.");
      return Words::tr("%1 is left, and no heir is alive who takes it.").arg(net);
    default:
      break;
  }
  if (view.Takers.size() == 1 && view.Sum.Heads == 1) return Words::tr("%1 goes to one heir.").arg(net);
  if (view.Sum.Heads == 1)
    return Words::tr("%1 is left. One heir takes a share. %2").arg(net, WhatHappened(view));
  return Words::tr("%1 is divided among %2 heirs. %3").arg(net, Number(view.Sum.Heads), WhatHappened(view));
}

QString Unreadable(const UnreadableField& field) {
  const QString name = Field(field.Caption);
  if (ToQt(field.Text).trimmed().isEmpty()) return Words::tr("%1: the field is empty").arg(name);
  const QString text = Isolated(ToQt(field.Text));
  switch (field.Fault) {
    case FieldFault::None:
      return {};
    case FieldFault::NotWhole:
      return Words::tr("%1: \"%2\" is not a whole number").arg(name, text);
    case FieldFault::TooMany:
      return Words::tr("%1: \"%2\" is more than %3").arg(name, text, Number(field.Most));
    case FieldFault::NotAnAmount:
      return Words::tr("%1: \"%2\" is not an amount").arg(name, text);
    case FieldFault::TooManyDecimals:
      return Words::tr("%1: \"%2\" has more than two decimals").arg(name, text);
    case FieldFault::TooMuch:
      return Words::tr("%1: \"%2\" is more than %3").arg(name, text, Amount(faraid::MostHundredths));
  }
  return {};
}

QString Bases(const faraid::Division& division) {
  if (division.Base == 0) return {};
  const QString base = Number(division.Base);
  const QString corrected = Number(division.CorrectedBase);
  if (division.RaisedTo == 0) return Words::tr("Base %1, corrected base %2").arg(base, corrected);
  return Words::tr("Base %1, raised to %2, corrected base %3")
      .arg(base, Number(division.RaisedTo), corrected);
}

QString ExampleNotice(const DivisionView& view) {
  QStringList names;
  for (std::size_t i = 0; i < std::size(estateFields); ++i) {
    const int index = ExampleFigures[i].Index;
    if (std::ranges::count(view.Examples, index) > 0) names.append(Words::tr(estateFields[i].Name));
  }
  if (std::ranges::count(view.Examples, NameField) > 0) names.append(Words::tr("Name of the deceased"));
  if (names.isEmpty()) return {};
  return Words::tr("Still the example with which Case Study opens: %1.").arg(names.join(ListSeparator()));
}

QString Heading(Column column, std::int64_t correctedBase) {
  switch (column) {
    case Column::Heir:
      return Words::tr("Heir");
    case Column::Heads:
      return Words::tr("Heads");
    case Column::Share:
      return Words::tr("Share");
    case Column::Parts:
      return Words::tr("of %1", "parts of a base").arg(Number(correctedBase));
    case Column::Together:
      return Words::tr("Together");
    case Column::Each:
      return Words::tr("Each");
    case Column::Why:
      return Words::tr("Why");
    case Column::Source:
      return Words::tr("Source");
    case Column::CaseStudy:
      return Words::tr("Case Study");
  }
  return {};
}

QString Sum() { return Words::tr("Sum"); }

QString ListSeparator() { return Words::tr(", ", "between the items of a list"); }

QString NoticeHeading() { return Words::tr("The commands of Case Study answer otherwise."); }

QString DifferenceSentence(const DifferenceKind& kind) {
  return WithDigits(Translated("Differences", kind.Sentence));
}

QString PageOfDifferences() { return Words::tr("Where Qismora differs"); }

}  // namespace qismora::words
