#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/Message.h"
#include "case/CaseScreen.h"

namespace qismora {

/// The input of the Case Study screen for one case, as the text of each field. The net estate is derived and
/// not part of it.
struct CaseTexts {
  CaseTexts();

  /// By the index on the screen. The name is at NameField; the others are "0" unless typed.
  std::array<std::string, 34> Fields;
  std::array<bool, 12> ClassII{};
  int Gender = Male;
  bool HeirsConsent = false;

  std::string& Field(int index) { return Fields[static_cast<std::size_t>(index)]; }
  const std::string& Field(int index) const { return Fields[static_cast<std::size_t>(index)]; }

  bool operator==(const CaseTexts&) const = default;
};

/// A figure of the estate with which the screen opens, as an example.
struct ExampleFigure {
  int Index;
  std::string_view Text;
};

inline constexpr std::array<ExampleFigure, 4> ExampleFigures = {{
    {GrossEstateField, "18600"},
    {FuneralField, "1000"},
    {DebtsField, "5000"},
    {WillsField, "2600"},
}};

/// The name of the deceased with which the screen opens.
inline constexpr std::string_view ExampleName = "ABDULLAH";

/// What the fields of the screen hold. The consent of the heirs is not part of the screen.
CaseTexts ReadScreen(const CaseScreen& screen, bool heirsConsent);

/// Types the case into the screen, the gender first. Nothing is run.
void TypeIntoScreen(const CaseTexts& texts, CaseScreen& screen);

/// What a caption names. It precedes the equals sign in a case file, or heads a column of a table.
struct Entry {
  enum class Kind { Field, Husband, ClassII, Name, Deceased, HeirsConsent };
  Kind Kind = Kind::Field;
  /// Of Field: its index on the screen. Of ClassII: its place in the order of succession.
  int Index = 0;

  bool operator==(const Entry&) const = default;
};

/// The entry of a caption. Capitals, doubled blanks and the shape of an apostrophe do not matter.
std::optional<Entry> FindEntry(std::string_view caption);

/// What can be wrong with a case file or a row of a table, apart from the texts of its fields.
enum class CaseFault {
  NotUtf8,
  ControlCharacter,
  NoEqualsSign,
  UnknownCaption,
  NamedTwice,
  WrongQuotation,
  NotAVersion,
  LineTooLong,
  FileTooLarge,
  NotTicked,
  NotYesOrNo,
  WivesAndHusband,
  WivesOfAWoman,
  HusbandOfAMan,
};

/// The fault as a sentence, which quotes the caption or the line that it concerns.
Message MessageOf(CaseFault fault, std::string_view what);
std::string English(CaseFault fault, std::string_view what);

/// The gender that "Deceased" gives; nothing where its value is a name.
std::optional<int> GenderOf(std::string_view value);

/// Builds a case from its entries, which may come in any order.
class CaseEntries {
 public:
  /// "Deceased" takes Male or Female as the gender, anything else as the name; class II takes ticked or 1,
  /// and 0 or nothing; the consent of the heirs takes yes or no.
  std::optional<CaseFault> Set(Entry entry, std::string_view value);

  /// Completes the case when all entries are set. The field that wives and husband share gets the count of
  /// the right spouse. Without an entry for the gender, the deceased is a woman if a husband is named, else a
  /// man.
  std::optional<CaseFault> Complete();
  const CaseTexts& Texts() const { return texts_; }

  /// Removes all entries, and keeps the memory for the next case.
  void Clear();

 private:
  CaseTexts texts_;
  std::string wives_ = "0";
  std::string husband_ = "0";
  std::optional<int> gender_;
};

}  // namespace qismora
