#include "fuzz/RandomLines.h"

#include <array>
#include <string>
#include <vector>

#include "base/Text.h"
#include "case/CaseScreen.h"

namespace qismora::testing {

namespace {

template <class... Texts>
constexpr std::array<const char*, sizeof...(Texts)> ListOf(Texts... texts) {
  return {texts...};
}

constexpr auto commands = ListOf(
    "click Exec", "click FullReport", "click Resid", "click AulRad", "click AulRadd",
    "click CreateSaveFullReport", "click FullReportxx", "click SaveResults", "click Image2",
    "click TestValues", "click Label6", "click Image38", "click Back", "click Label4(0)", "click Label4(1)",
    "click Label4(2)", "choose 0", "choose 1", "doubleclick Label13", "doubleclick Image37(3)", "reopen",
    "show", "ls", "cat FullReport", "cat zayd.txt", "division hanafi", "division maliki consent",
    "division shafii", "division hanbali consent", "clock 2024-12-31 23:59:59", "clock 0001-01-01 00:00:00");

constexpr auto answers = ListOf("answer Yes", "answer Yes", "answer No", "answer Cancel", "file out.txt",
                                "file ../out", "file .", "file a\\b", "file FullReport",
                                "write zayd.txt an earlier report", "write .txt ", "write FullReport half");

// Sequences of commands that reach rare states: a file that is replaced, and an empty panel over a hidden
// text that is not empty.
const std::vector<std::string> replacing = {"write out.txt earlier", "file out.txt", "answer Yes",
                                            "click SaveResults"};
const std::vector<std::string> emptyPanel = {"click Resid", "type Text1(1) 5", "doubleclick Label1(2)",
                                             "click AulRadd"};

// Unusual and invalid input.
constexpr auto oddTexts = ListOf(
    "", " ", "-1", "-100", "2.5", "3.5", "100", "101", "1,000", "1e3", "1E+400", "-1e308", "1e-320", "40000",
    "-40000", "3000000000", "&HFF", "&o17", "&H", "&HFFFFFFFFFF", ".5", "5.", ".", "-0", "+3", "  7  ", "nan",
    "inf", "0x10", "1d5", "1e", "٣", "32767", "32768", "2147483647", "2147483648", "0.5", "1.5", "1 2",
    "\xff\xfe", "1e15", "1e16", "0.000012345", "1.7e308", "9e99", "-32768", "1,,0", "1,234,567.89",
    "12,34,567.8", "0.125", "999999999999999.99", "%s%n", "999999999999999999999999999999");

constexpr auto names = ListOf("Zayd", "ZAYD", "", ".", "..", "a/b", "a\\b", "عبد الله É", "İßŉ", "FullReport",
                              "con", " ", "\xc3", "tab\tname");

constexpr int largestByte = 255;

}  // namespace

std::string RandomLines::Next() {
  if (!next_.empty()) {
    const std::string line = next_.front();
    next_.pop_front();
    return line;
  }
  if (Below(64) == 0) {
    if (Below(2) == 0) next_.assign(emptyPanel.begin(), emptyPanel.end());
    next_.insert(next_.end(), replacing.begin(), replacing.end());
  }
  switch (Below(16)) {
    case 0:
    case 1:
    case 2:
      return commands[Below(std::size(commands))];
    case 3:
      return answers[Below(std::size(answers))];
    case 4:
      return Join("doubleclick Label1(", HeirFieldIndexes[Below(HeirFieldIndexes.size())], ")");
    case 5:
      return Join("doubleclick Text1(", HeirFieldIndexes[Below(HeirFieldIndexes.size())], ")");
    case 6:
      return Join(Below(3) == 0 ? "untick " : "tick ", static_cast<int>(Below(12)));
    case 7:
      return Below(8) == 0 ? Numbers() : Join("type Text1(", NameField, ") ", names[Below(std::size(names))]);
    case 8:
    case 9: {
      const int field = GrossEstateField + static_cast<int>(Below(4));
      return Join("type Text1(", field, ") ", Typed(field));
    }
    default: {
      const int field = HeirFieldIndexes[Below(HeirFieldIndexes.size())];
      return Join("type Text1(", field, ") ", Typed(field));
    }
  }
}

std::string RandomLines::Typed(int field) {
  if (Below(12) == 0) return Below(4) == 0 ? Noise() : oddTexts[Below(std::size(oddTexts))];
  if (field == GrossEstateField) return Estate();
  if (field > GrossEstateField) return Below(2) == 0 ? "0" : Join(static_cast<int>(Below(5000)));
  return Join(static_cast<int>(Below(Below(4) == 0 ? 21 : 4)));
}

std::string RandomLines::Estate() {
  return Below(4) == 0 ? Join(static_cast<int>(Below(1000000))) : Join(static_cast<int>(24000 * Below(9)));
}

/// Any bytes except a line break, sometimes very many.
std::string RandomLines::Noise() {
  std::string noise(Below(Below(8) == 0 ? 2000 : 12), ' ');
  for (char& byte : noise) {
    byte = static_cast<char>(1 + Below(largestByte));
    if (byte == '\n') byte = '0';
  }
  return noise;
}

/// A law page, or the least common multiple of a few numbers.
std::string RandomLines::Numbers() {
  if (Below(4) != 0) return Join("page ", static_cast<int>(Below(20)));
  std::string line = "lcm";
  for (std::size_t count = Below(12); count > 0; --count) {
    line += Join(" ", static_cast<int>(Below(Below(4) == 0 ? 32768 : 25)));
  }
  return line;
}

}  // namespace qismora::testing
