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

std::string_view Pattern(ReasonCode code) {
  switch (code) {
    case ReasonCode::Open:
      return "";
    case ReasonCode::BecauseOfDescendants:
      return "{share} because there are {descendants}";
    case ReasonCode::WithoutDescendants:
      return "{share} because there are no descendants";
    case ReasonCode::OneWithoutSon:
      return "{share}, one without a son";
    case ReasonCode::SeveralWithoutSon:
      return "{share}, two or more without a son";
    case ReasonCode::OneInPlaceOf:
      return "{share}, one in {a heir}'s place";
    case ReasonCode::SeveralInPlaceOf:
      return "{share}, two or more in {a heir}'s place";
    case ReasonCode::CompletesTwoThirds:
      return "{share} completes two thirds beside one {heir}";
    case ReasonCode::InFathersPlace:
      return "{share} in the father's place";
    case ReasonCode::TwoOrMoreSiblings:
      return "{share} because there are two or more siblings";
    case ReasonCode::NeitherDescendantsNorSiblings:
      return "{share}, neither descendants nor two siblings";
    case ReasonCode::Umariyyatan:
      return "{share}, al-Umariyyatan: a third of what {a heir} leaves";
    case ReasonCode::OneGrandmother:
      return "{share} as grandmother";
    case ReasonCode::GrandmothersTogether:
      return "{share} together with the other grandmothers";
    case ReasonCode::OneWithoutBrother:
      return "{share}, one without a brother";
    case ReasonCode::SeveralWithoutBrother:
      return "{share}, two or more without a brother";
    case ReasonCode::OneUterine:
      return "{share}, one uterine sibling alone";
    case ReasonCode::UterineTogether:
      return "{share} together, men and women alike";
    case ReasonCode::Mushtaraka:
      return "{share}, al-Mushtaraka: full and uterine siblings alike";
    case ReasonCode::NearestMale:
      return "takes {left}, nearest male";
    case ReasonCode::TwoPartsBeside:
      return "takes {left}, two parts to {a heir}'s one";
    case ReasonCode::OnePartBeside:
      return "takes {left}, one part to {a heir}'s two";
    case ReasonCode::SisterBesideDescendants:
      return "takes {left} beside {a heir}";
    case ReasonCode::Akdariyya:
      return "al-Akdariyya: his 1/6 and her 1/2 joined, two parts to one";
    case ReasonCode::Malikiyya:
      return "al-Malikiyya: takes {left}, siblings would have nothing";
    case ReasonCode::LeastOfGrandfather:
      return "{share}, his least beside siblings";
    case ReasonCode::SharesAsBrother:
      return "shares as a brother with the siblings";
    case ReasonCode::MoreThanBrother:
      return "{share} of the whole, more than a brother's part";
    case ReasonCode::ThirdOfRemainder:
      return "1/3 of the remainder, more than a brother's part";
    case ReasonCode::WhatGrandfatherLeaves:
      return "takes what the grandfather leaves";
    case ReasonCode::FullSistersBeforeConsanguine:
      return "takes what the grandfather leaves, up to {share} of the whole";
    case ReasonCode::Muadda:
      return "mu'adda: takes what the full sisters leave";
    case ReasonCode::ExcludedBy:
      return "excluded by {a heir}";
    case ReasonCode::TwoThirdsAreTaken:
      return "two thirds are taken";
    case ReasonCode::NotAnHeir:
      return "not an heir in this school";
    case ReasonCode::NothingIsLeft:
      return "nothing is left";
    case ReasonCode::KindredThenSpouse:
      return "to distant kindred; if there is none, later Hanafi jurists return it to the spouse";
    case ReasonCode::KindredThenTreasury:
      return "to distant kindred; if there is none, to the treasury";
  }
  return "";
}

std::string_view Words(Source source) {
  switch (source) {
    case Source::None:
      return "";
    case Source::Quran4_11:
      return "Quran 4:11";
    case Source::Quran4_12:
      return "Quran 4:12";
    case Source::Quran4_176:
      return "Quran 4:176";
    case Source::Quran8_75:
      return "Quran 8:75";
    case Source::ReportOfIbnAbbas:
      return "report of Ibn Abbas";
    case Source::ReportOfIbnMasud:
      return "report of Ibn Masud";
    case Source::ReportsOfMughiraAndUbada:
      return "reports of al-Mughira and Ubada";
    case Source::ReportOfAli:
      return "report of Ali";
    case Source::RulingOfAbuBakr:
      return "ruling of Abu Bakr";
    case Source::RulingOfUmar:
      return "ruling of Umar";
    case Source::RulingOfZayd:
      return "ruling of Zayd";
    case Source::RulingOfMalik:
      return "ruling of Malik";
    case Source::Companions:
      return "Companions";
    case Source::Consensus:
      return "consensus";
  }
  return "";
}

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
