#pragma once

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

#include "casefile/Captions.h"
#include "casefile/CaseTexts.h"
#include "casefile/HeirFields.h"
#include "faraid/Families.h"

namespace qismora::testing {

/// A family and the four amounts as they are typed.
struct TypedCase {
  faraid::Family Family;
  std::array<std::string, 4> Amounts = {"0", "0", "0", "0"};
  bool HeirsConsent = false;

  CaseTexts Texts() const {
    CaseTexts texts;
    const auto type = [&](int field, const std::string& text) {
      texts.Fields[static_cast<std::size_t>(field)] = text;
    };
    for (const HeirField& field : HeirFields) {
      if (Family[field.Heir] > 0) type(field.Index, std::to_string(Family[field.Heir]));
    }
    for (std::size_t i = 0; i < texts.ClassII.size(); ++i) {
      texts.ClassII[i] = Family[ClassIIKind(static_cast<int>(i))] > 0;
    }
    constexpr int amountFields[] = {GrossEstateField, FuneralField, DebtsField, WillsField};
    for (std::size_t i = 0; i < Amounts.size(); ++i) type(amountFields[i], Amounts[i]);
    texts.Gender = Family[faraid::Kind::Husband] > 0 ? Female : Male;
    texts.HeirsConsent = HeirsConsent;
    return texts;
  }
};

inline void PrintTo(const TypedCase& typed, std::ostream* out) {
  for (const HeirField& field : HeirFields) {
    if (typed.Family[field.Heir] > 0) *out << field.Caption << " = " << typed.Family[field.Heir] << "; ";
  }
  for (const faraid::Kind kind : typed.Family.Alive() & faraid::ClassII) *out << CaptionOf(kind) << "; ";
  for (const std::string& amount : typed.Amounts) *out << amount << ' ';
  *out << (typed.HeirsConsent ? "consent" : "");
}

/// Random families with estates of every size and shape that can be read.
class RandomCases {
 public:
  explicit RandomCases(std::uint64_t seed) : random_(seed) {}

  TypedCase Next() {
    TypedCase typed = {.Family = random_.Next()};
    if (random_.Below(100) == 0) typed.Family = SpouseAndParents(typed.Family);
    constexpr unsigned sizes[] = {1, 10, 100, 1000, 100000, 10000000, 1000000000};
    const unsigned size = sizes[random_.Below(7)];
    typed.Amounts[0] = Amount(size);
    // Most estates have nothing to be paid from them: then the family alone decides.
    for (std::size_t i = 1; i < 4; ++i) {
      if (random_.Below(6) == 0) typed.Amounts[i] = Amount(size);
    }
    // A third, all or more than is there.
    if (random_.Below(8) == 0) typed.Amounts[3] = Amount(std::max(size / 2, 1U));
    if (random_.Below(20) == 0) typed.Amounts[0] = "999999999999999.99";
    if (random_.Below(200) == 0) typed.Amounts[random_.Below(4)] = "999999999999999.99";
    if (random_.Below(200) == 0) typed.Amounts[random_.Below(4)] = "2147483648";
    typed.HeirsConsent = random_.Below(2) == 0;
    return typed;
  }

 private:
  /// Drawing hardly ever leaves these alone.
  static faraid::Family SpouseAndParents(const faraid::Family& drawn) {
    using enum faraid::Kind;
    return faraid::FamilyOf({{Wives, drawn[Wives]}, {Husband, drawn[Husband]}, {Father, 1}, {Mother, 1}});
  }

  std::string Amount(unsigned size) {
    std::string text = std::to_string(random_.Below(10 * size));
    if (random_.Below(40) == 0) {
      for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, 1, ',');
    }
    const unsigned decimals = random_.Below(6);
    if (decimals <= 2 && decimals > 0) text += '.';
    for (unsigned i = 0; i < decimals && decimals <= 2; ++i)
      text += static_cast<char>('0' + random_.Below(10));
    return text;
  }

  faraid::RandomFamilies random_;
};

}  // namespace qismora::testing
