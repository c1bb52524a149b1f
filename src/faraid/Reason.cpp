#include "faraid/Reason.h"

#include <array>
#include <charconv>

namespace faraid {

namespace {

/// The name of an heir in a sentence.
struct Name {
  std::string_view Article;
  std::string_view Noun;
};

// In the order of the kinds.
constexpr std::array<Name, KindCount> names = {{
    {"a ", "wife"},
    {"the ", "husband"},
    {"a ", "son"},
    {"a ", "daughter"},
    {"a ", "son's son"},
    {"a ", "son's daughter"},
    {"a ", "son's son's son"},
    {"a ", "son's son's daughter"},
    {"the ", "father"},
    {"the ", "grandfather"},
    {"the ", "great-grandfather"},
    {"the ", "mother"},
    {"the ", "mother's mother"},
    {"the ", "mother's mother's mother"},
    {"the ", "father's mother"},
    {"the ", "grandfather's mother"},
    {"the ", "father's mother's mother"},
    {"a ", "full brother"},
    {"a ", "full sister"},
    {"a ", "consanguine sister"},
    {"a ", "consanguine brother"},
    {"a ", "uterine sister"},
    {"a ", "uterine brother"},
    {"a ", "full brother's son"},
    {"a ", "consanguine brother's son"},
    {"a ", "full brother's son's son"},
    {"a ", "consanguine brother's son's son"},
    {"a ", "full uncle"},
    {"a ", "consanguine uncle"},
    {"a ", "full uncle's son"},
    {"a ", "consanguine uncle's son"},
    {"a ", "full uncle's son's son"},
    {"a ", "consanguine uncle's son's son"},
    {"a ", "full uncle's son's son's son"},
    {"a ", "consanguine uncle's son's son's son"},
}};

struct PatternRow {
  ReasonCode Code;
  std::string_view Pattern;
};

constexpr PatternRow patterns[] = {
    {ReasonCode::Open, ""},
    {ReasonCode::BecauseOfDescendants, "{share} because there are {descendants}"},
    {ReasonCode::WithoutDescendants, "{share} because there are no descendants"},
    {ReasonCode::OneWithoutSon, "{share}, one without a son"},
    {ReasonCode::SeveralWithoutSon, "{share}, two or more without a son"},
    {ReasonCode::OneInPlaceOf, "{share}, one in {a heir}'s place"},
    {ReasonCode::SeveralInPlaceOf, "{share}, two or more in {a heir}'s place"},
    {ReasonCode::CompletesTwoThirds, "{share} completes two thirds beside one {heir}"},
    {ReasonCode::InFathersPlace, "{share} in the father's place"},
    {ReasonCode::TwoOrMoreSiblings, "{share} because there are two or more siblings"},
    {ReasonCode::NeitherDescendantsNorSiblings, "{share}, neither descendants nor two siblings"},
    {ReasonCode::Umariyyatan, "{share}, al-Umariyyatan: a third of what {a heir} leaves"},
    {ReasonCode::OneGrandmother, "{share} as grandmother"},
    {ReasonCode::GrandmothersTogether, "{share} together with the other grandmothers"},
    {ReasonCode::OneWithoutBrother, "{share}, one without a brother"},
    {ReasonCode::SeveralWithoutBrother, "{share}, two or more without a brother"},
    {ReasonCode::OneUterine, "{share}, one uterine sibling alone"},
    {ReasonCode::UterineTogether, "{share} together, men and women alike"},
    {ReasonCode::Mushtaraka, "{share}, al-Mushtaraka: full and uterine siblings alike"},
    {ReasonCode::NearestMale, "takes {left}, nearest male"},
    {ReasonCode::TwoPartsBeside, "takes {left}, two parts to {a heir}'s one"},
    {ReasonCode::OnePartBeside, "takes {left}, one part to {a heir}'s two"},
    {ReasonCode::SisterBesideDescendants, "takes {left} beside {a heir}"},
    {ReasonCode::Akdariyya, "al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one"},
    {ReasonCode::Malikiyya, "al-Malikiyya: takes {left}, siblings would have nothing"},
    {ReasonCode::LeastOfGrandfather, "{share}, his least beside siblings"},
    {ReasonCode::SharesAsBrother, "shares as a brother with the siblings"},
    {ReasonCode::MoreThanBrother, "{share} of the whole, more than a brother's part"},
    {ReasonCode::ThirdOfRemainder, "1/3 of the remainder, more than a brother's part"},
    {ReasonCode::WhatGrandfatherLeaves, "takes what the grandfather leaves"},
    {ReasonCode::FullSistersBeforeConsanguine,
     "takes what the grandfather leaves, up to {share} of the whole"},
    {ReasonCode::Muadda, "mu'adda: takes what the full sisters leave"},
    {ReasonCode::ExcludedBy, "excluded by {a heir}"},
    {ReasonCode::TwoThirdsAreTaken, "two thirds are taken"},
    {ReasonCode::NotAnHeir, "not an heir in this school"},
    {ReasonCode::NothingIsLeft, "nothing is left"},
    {ReasonCode::KindredThenSpouse,
     "to distant kindred; if there is none, later Hanafi jurists return it to the spouse"},
    {ReasonCode::KindredThenTreasury, "to distant kindred; if there is none, to the treasury"},
};

struct SourceRow {
  Source Code;
  std::string_view Words;
};

constexpr SourceRow sources[] = {
    {Source::None, ""},
    {Source::Quran4_11, "Quran 4:11"},
    {Source::Quran4_12, "Quran 4:12"},
    {Source::Quran4_176, "Quran 4:176"},
    {Source::Quran8_75, "Quran 8:75"},
    {Source::ReportOfIbnAbbas, "report of Ibn Abbas"},
    {Source::ReportOfIbnMasud, "report of Ibn Masud"},
    {Source::ReportsOfMughiraAndUbada, "reports of al-Mughira and Ubada"},
    {Source::ReportOfAli, "report of Ali"},
    {Source::RulingOfAbuBakr, "ruling of Abu Bakr"},
    {Source::RulingOfUmar, "ruling of Umar"},
    {Source::RulingOfZayd, "ruling of Zayd"},
    {Source::RulingOfMalik, "ruling of Malik"},
    {Source::Companions, "Companions"},
    {Source::Consensus, "consensus"},
};

/// Whether the rows are in the order of their codes, of which this is the last.
template <class Row, class Code, std::size_t Size>
constexpr bool AreInOrder(const Row (&rows)[Size], Code last) {
  for (std::size_t i = 0; i < Size; ++i) {
    if (static_cast<std::size_t>(rows[i].Code) != i) return false;
  }
  return rows[Size - 1].Code == last;
}
static_assert(AreInOrder(patterns, ReasonCode::KindredThenTreasury));
static_assert(AreInOrder(sources, Source::Consensus));

Name NameOf(Kind kind) {
  const auto i = static_cast<std::size_t>(kind);
  return i < names.size() ? names[i] : Name{};
}

void AppendNumber(std::string& text, std::int64_t number) {
  std::array<char, 20> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
  text.append(digits.begin(), end);
}

void Append(std::string& text, const Ratio& ratio) {
  AppendNumber(text, ratio.Num);
  if (ratio.Den == 1) return;
  text += '/';
  AppendNumber(text, ratio.Den);
}

void AppendField(std::string& text, std::string_view field, const Reason& reason) {
  if (field == "share") {
    Append(text, {reason.Share.Num(), reason.Share.Den()});
  } else if (field == "left") {
    text += reason.Share == 1 ? "the whole" : "what is left";
  } else if (field == "descendants") {
    text += (Kind::Sons | Kind::Daughters).Has(reason.Named) ? "children" : "children of sons";
  } else {
    const Name name = NameOf(reason.Named);
    if (field == "a heir") text += name.Article;
    text += name.Noun;
  }
}

}  // namespace

std::string_view Pattern(ReasonCode code) { return patterns[static_cast<std::size_t>(code)].Pattern; }

std::string_view Words(Source source) { return sources[static_cast<std::size_t>(source)].Words; }

std::string English(const Reason& reason) {
  std::string text;
  text.reserve(112);
  std::string_view pattern = Pattern(reason.Code);
  while (!pattern.empty()) {
    const std::size_t open = pattern.find('{');
    text += pattern.substr(0, open);
    if (open == std::string_view::npos) break;
    const std::size_t close = pattern.find('}', open);
    AppendField(text, pattern.substr(open + 1, close - open - 1), reason);
    pattern.remove_prefix(close + 1);
  }
  if (reason.Basis != Source::None) text.append(" (").append(Words(reason.Basis)).append(")");
  if (reason.Sixth == Beyond::TheResidue) text += ", and what is left beyond it";
  if (reason.Sixth == Beyond::Nothing) text += "; nothing is left beyond it";
  if (reason.Changed != Change::None) {
    text += reason.Changed == Change::Awl ? "; after Awl " : "; after Radd ";
    Append(text, reason.After);
  }
  return text;
}

}  // namespace faraid
