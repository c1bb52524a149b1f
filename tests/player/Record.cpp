#include <charconv>

#include "base/Text.h"
#include "case/Heirs.h"
#include "player/RecordFields.h"
#include "player/Transcript.h"

namespace qismora::testing {

namespace {

/// Prints the fields of a record, one per line, except those that are 0, empty or False.
class Printer {
 public:
  Printer(std::ostream& out, const CaseRecord& c) : out_(out), c_(c) {}

  void Line(const std::string& name, bool value) {
    if (value) Put(name, "True");
  }
  void Line(const std::string& name, Integer value) {
    if (value != 0) Put(name, Join(value));
  }
  void Line(const std::string& name, Long value) {
    if (value != 0) Put(name, Join(value));
  }
  void Line(const std::string& name, Double value) {
    if (value == 0) return;
    char digits[32];
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), value.Value(), std::chars_format::general, 12)
            .ptr;
    Put(name, std::string_view(digits, static_cast<std::size_t>(end - digits)));
  }
  void Line(const std::string& name, const std::string& value) {
    if (!value.empty()) Put(name, Escaped(value));
  }

  void Line(const std::string& name, const Array<bool, 20>& flags) {
    std::string set;
    for (int i = 0; i < flags.Size; ++i) {
      if (flags(i)) set += Join(set.empty() ? "" : " ", i);
    }
    Line(name, set);
  }
  void Line(const std::string& name, const Array<Double, 11>& amounts) {
    for (int i = 0; i < amounts.Size; ++i) Line(Join(name, "(", i, ")"), amounts(i));
  }
  /// The numerators, with their denominators.
  void Line(const std::string&, const Array<Integer, 50>& numerators) {
    for (int k = 0; k < HeirCount; ++k) {
      if (numerators(k) == 0 && c_.FractionDen(k) == 0) continue;
      Put(Join("Fraction(", k, ")"), Join(numerators(k), "/", c_.FractionDen(k)));
    }
  }

 private:
  void Put(const std::string& name, std::string_view value) {
    out_ << "  " << name << " = " << value << '\n';
  }

  std::ostream& out_;
  const CaseRecord& c_;
};

}  // namespace

void PrintRecord(std::ostream& out, const CaseRecord& c) {
  Printer print(out, c);
  ForEachField(PrintedFields, c, [&](const char* name, const auto& value) { print.Line(name, value); });
}

}  // namespace qismora::testing
