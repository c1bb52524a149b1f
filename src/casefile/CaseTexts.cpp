#include "casefile/CaseTexts.h"

#include <algorithm>

#include "base/Text.h"
#include "casefile/Captions.h"
#include "casefile/HeirFields.h"
#include "residue/ClassII.h"

namespace qismora {

namespace {

using EntryKind = enum Entry::Kind;

std::size_t Index(int index) { return static_cast<std::size_t>(index); }

/// The caption in lower case, with single blanks and straight apostrophes, for comparisons.
std::string Comparable(std::string_view caption) {
  constexpr std::string_view roundApostrophe = "’";
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const char c = caption[i];
    if (caption.substr(i).starts_with(roundApostrophe)) {
      plain += '\'';
      i += roundApostrophe.size() - 1;
    } else if (c >= 'A' && c <= 'Z') {
      plain += static_cast<char>(c - 'A' + 'a');
    } else if (c != ' ' || (!plain.empty() && plain.back() != ' ')) {
      plain += c;
    }
  }
  if (plain.ends_with(' ')) plain.pop_back();
  return plain;
}

/// Whether the text counts nobody: blanks, zeros, or nothing at all.
bool CountsNobody(std::string_view text) { return text.find_first_not_of(" 0") == std::string_view::npos; }

struct FaultRow {
  CaseFault Fault;
  const char* Pattern;
};

constexpr FaultRow faultRows[] = {
    {CaseFault::NotUtf8, "The text is not UTF-8."},
    {CaseFault::ControlCharacter, "There is a control character in the line."},
    {CaseFault::NoEqualsSign, "There is no equals sign in \"{text}\"."},
    {CaseFault::UnknownCaption, "\"{text}\" is not a caption of the Case Study screen."},
    {CaseFault::NamedTwice, "\"{text}\" is given twice."},
    {CaseFault::WrongQuotation, "\"{text}\" is not quoted correctly."},
    {CaseFault::NotAVersion, "\"{text}\" is not a version of case files."},
    {CaseFault::LineTooLong, "The line is too long."},
    {CaseFault::FileTooLarge, "The file is too large for a case."},
    {CaseFault::NotTicked, "\"{text}\" takes the word ticked, or 0."},
    {CaseFault::NotYesOrNo, "\"{text}\" takes yes or no."},
    {CaseFault::WivesAndHusband, "Both Wives and Husband are given."},
    {CaseFault::WivesOfAWoman, "Wives are given, but the deceased is female."},
    {CaseFault::HusbandOfAMan, "A husband is given, but the deceased is male."},
};

}  // namespace

CaseTexts::CaseTexts() {
  Fields.fill("0");
  Field(NameField).clear();
}

CaseTexts ReadScreen(const CaseScreen& screen, bool heirsConsent) {
  CaseTexts texts;
  for (const Caption& caption : Captions()) {
    if (caption.Index == 0 || caption.Index == NetEstateField) continue;
    texts.Field(caption.Index) = screen.Text1(caption.Index).Text;
  }
  for (int i = 0; i < screen.Check1.Size; ++i) texts.ClassII[Index(i)] = screen.Check1(i).Value == 1;
  texts.Gender = screen.Combo1.ListIndex == Female ? Female : Male;
  texts.HeirsConsent = heirsConsent;
  return texts;
}

void TypeIntoScreen(const CaseTexts& texts, CaseScreen& screen) {
  screen.Combo1.ListIndex = texts.Gender;
  for (const Caption& caption : Captions()) {
    if (caption.Index == 0 || caption.Index == NetEstateField) continue;
    screen.Text1(caption.Index).Text = texts.Field(caption.Index);
  }
  for (int i = 0; i < screen.Check1.Size; ++i) screen.Check1(i).Value = texts.ClassII[Index(i)] ? 1 : 0;
}

std::optional<Entry> FindEntry(std::string_view caption) {
  const std::string wanted = Comparable(caption);
  const auto is = [&](std::string_view words) { return wanted == Comparable(words); };
  if (is("Name")) return Entry{EntryKind::Name};
  if (is("Deceased")) return Entry{EntryKind::Deceased};
  if (is("Heirs consent")) return Entry{EntryKind::HeirsConsent};
  if (is(CaptionOf(faraid::Kind::Husband))) return Entry{EntryKind::Husband};
  for (const Caption& row : Captions()) {
    if (row.Index != 0 && row.Index != NetEstateField && is(row.Words))
      return Entry{EntryKind::Field, row.Index};
  }
  for (int i = 0; i < static_cast<int>(ClassIIRows.size()); ++i) {
    if (is(ClassIIRows[Index(i)].Caption)) return Entry{EntryKind::ClassII, i};
  }
  return std::nullopt;
}

Message MessageOf(CaseFault fault, std::string_view what) {
  return {std::ranges::find(faultRows, fault, &FaultRow::Fault)->Pattern, {{"text", std::string(what)}}};
}

std::string English(CaseFault fault, std::string_view what) { return English(MessageOf(fault, what)); }

std::optional<int> GenderOf(std::string_view value) {
  const std::string word = Comparable(value);
  if (word == "male") return Male;
  if (word == "female") return Female;
  return std::nullopt;
}

std::optional<CaseFault> CaseEntries::Set(Entry entry, std::string_view value) {
  switch (entry.Kind) {
    case EntryKind::Field:
      (entry.Index == SpouseField ? wives_ : texts_.Field(entry.Index)) = value;
      break;
    case EntryKind::Husband:
      husband_ = value;
      break;
    case EntryKind::ClassII: {
      const bool ticked = value == "1" || Comparable(value) == "ticked";
      if (!ticked && value != "0" && !value.empty()) return CaseFault::NotTicked;
      texts_.ClassII[Index(entry.Index)] = ticked;
      break;
    }
    case EntryKind::Name:
      texts_.Field(NameField) = value;
      break;
    case EntryKind::Deceased:
      if (const std::optional<int> gender = GenderOf(value)) {
        gender_ = gender;
      } else {
        texts_.Field(NameField) = value;
      }
      break;
    case EntryKind::HeirsConsent: {
      const std::string word = Comparable(value);
      if (word != "yes" && word != "no") return CaseFault::NotYesOrNo;
      texts_.HeirsConsent = word == "yes";
      break;
    }
  }
  return std::nullopt;
}

std::optional<CaseFault> CaseEntries::Complete() {
  const bool wives = !CountsNobody(wives_);
  const bool husband = !CountsNobody(husband_);
  if (wives && husband) return CaseFault::WivesAndHusband;
  if (wives && gender_ == Female) return CaseFault::WivesOfAWoman;
  if (husband && gender_ == Male) return CaseFault::HusbandOfAMan;
  texts_.Gender = gender_.value_or(husband ? Female : Male);
  texts_.Field(SpouseField) = texts_.Gender == Female ? husband_ : wives_;
  return std::nullopt;
}

void CaseEntries::Clear() {
  static const CaseEntries nothing;
  *this = nothing;
}

}  // namespace qismora
