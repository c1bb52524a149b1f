#include "casefile/CaseFile.h"

#include <algorithm>
#include <charconv>

#include "base/Encoding.h"
#include "base/Files.h"
#include "base/NewFile.h"
#include "base/Text.h"
#include "casefile/Captions.h"
#include "residue/ClassII.h"

namespace qismora {

namespace {

constexpr std::string_view versionCaption = "Qismora case";
constexpr std::string_view blanks = " \t";

/// The beginning of a long text.
std::string Shortened(std::string_view text) {
  constexpr std::size_t most = 60;
  if (text.size() <= most) return std::string(text);
  std::size_t end = most;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;  // no torn character
  return Join(text.substr(0, end), "...");
}

/// The escapes of a quoted value: for control characters, which a line must not contain, the quotation mark
/// and the backslash.
struct Escape {
  char Letter;
  char Meaning;
};
constexpr Escape escapes[] = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'}};

bool NeedsQuotation(std::string_view value) {
  return value != Trimmed(value, blanks) || value.starts_with('"') ||
         FindControlCharacter(value) != std::string_view::npos;
}

std::string Quoted(std::string_view value) {
  std::string text = "\"";
  for (std::size_t i = 0; i < value.size(); ++i) {
    const auto* const escape = std::ranges::find(escapes, value[i], &Escape::Meaning);
    auto byte = static_cast<unsigned char>(value[i]);
    if (escape != std::end(escapes)) {
      text.append({'\\', escape->Letter});
    } else if (FindControlCharacter(value.substr(i, 2)) == 0) {
      if (byte == 0xC2) byte = static_cast<unsigned char>(value[++i]);  // U+0080 to U+009F, by their number
      text += "\\x";
      AppendHex(text, byte);
    } else {
      text += value[i];
    }
  }
  return text += '"';
}

/// The text of a value in quotation marks; nothing if the marks or an escape are wrong.
std::optional<std::string> Unquoted(std::string_view quoted) {
  std::string value;
  std::size_t i = 1;
  for (; i < quoted.size() && quoted[i] != '"'; ++i) {
    if (quoted[i] != '\\') {
      value += quoted[i];
      continue;
    }
    if (++i == quoted.size()) return std::nullopt;
    const auto* const escape = std::ranges::find(escapes, quoted[i], &Escape::Letter);
    if (escape != std::end(escapes)) {
      value += escape->Meaning;
      continue;
    }
    constexpr std::string_view hexDigits = "0123456789abcdef";
    if (quoted[i] != 'x' || i + 2 >= quoted.size()) return std::nullopt;
    const std::size_t high = hexDigits.find(quoted[++i]);
    const std::size_t low = hexDigits.find(quoted[++i]);
    if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
    const std::size_t code = high * 16 + low;
    if (code >= 0x80) value += static_cast<char>(0xC0 | (code >> 6));
    value += static_cast<char>(code < 0x80 ? code : 0x80 | (code & 0x3F));
  }
  if (i + 1 != quoted.size()) return std::nullopt;
  return value;
}

class Parser {
 public:
  CaseFileReading Parse(std::string_view content) {
    if (content.size() > MostBytesOfCaseFile) {
      Refuse(CaseFault::FileTooLarge);
      return reading_;
    }
    if (content.starts_with(ByteOrderMark)) content.remove_prefix(ByteOrderMark.size());
    while (!content.empty() && !reading_.Fault) {
      const std::size_t end = std::min(content.find('\n'), content.size());
      std::string_view line = content.substr(0, end);
      content.remove_prefix(std::min(end + 1, content.size()));
      if (line.ends_with('\r')) line.remove_suffix(1);
      ++line_;
      ReadLine(line);
    }
    line_ = spouseLine_;
    if (!reading_.Fault) {
      if (const auto fault = entries_.Complete()) Refuse(*fault);
    }
    if (!reading_.Fault) reading_.Case = entries_.Texts();
    return reading_;
  }

 private:
  void Refuse(CaseFault fault, std::string_view what = {}) {
    reading_.Fault = {fault, {line_, Shortened(what)}};
  }

  void ReadLine(std::string_view raw) {
    const std::string_view line = Trimmed(raw, blanks);
    if (raw.size() > MostBytesOfCaseLine) return Refuse(CaseFault::LineTooLong);
    if (FindInvalidUtf8(line) != std::string_view::npos) return Refuse(CaseFault::NotUtf8);
    if (FindControlCharacter(line) != std::string_view::npos) return Refuse(CaseFault::ControlCharacter);
    if (line.empty() || line.starts_with('#')) return;

    const bool first = !anyLine_;
    anyLine_ = true;
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) return SkipOrRefuse(CaseFault::NoEqualsSign, line, line);
    const std::string_view caption = Trimmed(line.substr(0, sign), blanks);
    const std::string_view value = Trimmed(line.substr(sign + 1), blanks);
    if (first && caption == versionCaption) return ReadVersion(value);
    if (const std::optional<Entry> entry = FindEntry(caption)) return ReadEntry(*entry, caption, value);
    SkipOrRefuse(CaseFault::UnknownCaption, caption, line);
  }

  /// A line that this version does not know may be one of a newer version.
  void SkipOrRefuse(CaseFault fault, std::string_view what, std::string_view line) {
    if (version_ <= CaseFileVersion) return Refuse(fault, what);
    reading_.Unknown.push_back({line_, Shortened(line)});
  }

  void ReadVersion(std::string_view value) {
    const char* const end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, version_);
    if (stop != end || error != std::errc{} || version_ < 1) Refuse(CaseFault::NotAVersion, value);
  }

  void ReadEntry(Entry entry, std::string_view caption, std::string_view value) {
    std::string text(value);
    if (value.starts_with('"')) {
      std::optional<std::string> unquoted = Unquoted(value);
      if (!unquoted) return Refuse(CaseFault::WrongQuotation, value);
      text = *std::move(unquoted);
    }
    // The name may have either caption; "Deceased = Male" is not a name.
    const bool named = entry.Kind == Entry::Kind::Deceased && !GenderOf(text);
    const Entry meant = named ? Entry{Entry::Kind::Name} : entry;
    if (std::ranges::find(seen_, meant) != seen_.end()) return Refuse(CaseFault::NamedTwice, caption);
    seen_.push_back(meant);
    if (entry == Entry{Entry::Kind::Field, SpouseField} || entry.Kind == Entry::Kind::Husband)
      spouseLine_ = line_;
    if (const auto fault = entries_.Set(meant, text)) Refuse(*fault, caption);
  }

  CaseFileReading reading_;
  CaseEntries entries_;
  std::vector<Entry> seen_;
  int line_ = 0;
  int spouseLine_ = 0;
  int version_ = CaseFileVersion;
  bool anyLine_ = false;
};

void AppendEntry(std::string& file, std::string_view caption, std::string_view value) {
  file.append(caption).append(" =");
  if (!value.empty()) file.append(" ").append(NeedsQuotation(value) ? Quoted(value) : std::string(value));
  file.append("\n");
}

}  // namespace

CaseFileReading ParseCaseFile(std::string_view content) { return Parser().Parse(content); }

std::string WriteCaseFile(const CaseTexts& texts) {
  std::string file;
  AppendEntry(file, versionCaption, Join(CaseFileVersion));
  AppendEntry(file, "Name", texts.Field(NameField));
  AppendEntry(file, "Deceased", texts.Gender == Female ? "Female" : "Male");
  for (const int heir : HeirFieldIndexes) {
    const std::string& count = texts.Field(heir);
    if (count.empty() || count == "0") continue;
    AppendEntry(file, CaptionOf(heir, texts.Gender == Female), count);
  }
  for (std::size_t i = 0; i < ClassIIRows.size(); ++i) {
    if (texts.ClassII[i]) AppendEntry(file, ClassIIRows[i].Caption, "ticked");
  }
  for (const int index : EstateFieldIndexes) AppendEntry(file, CaptionOf(index, false), texts.Field(index));
  if (texts.HeirsConsent) AppendEntry(file, "Heirs consent", "yes");
  return file;
}

CaseFileReading OpenCaseFile(const std::string& path) {
  InputFile file(FollowLinks(path));
  std::string content(MostBytesOfCaseFile + 1, '\0');
  content.resize(file.Read(content.data(), content.size()));
  return ParseCaseFile(content);
}

void SaveCaseFile(StandardFolders& folders, const std::string& path, const CaseTexts& texts) {
  WriteSafely(folders, FollowLinks(path), WriteCaseFile(texts), Replace::Agreed);
}

}  // namespace qismora
