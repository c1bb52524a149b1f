#include "divide/Families.h"

#include <algorithm>
#include <array>

#include "base/Encoding.h"
#include "base/Text.h"
#include "casefile/CaseFile.h"
#include "divide/Records.h"

namespace qismora::divide {

namespace {

constexpr std::array separators = {',', ';', '\t'};

constexpr std::string_view blanks = " \t";

/// The first line that is neither blank nor a comment of a case file.
std::string_view FirstLine(InputBuffer& input) {
  while (true) {
    std::string_view text = input.Text();
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      const std::string_view line = Trimmed(text.substr(0, end), blanks);
      if (end == std::string_view::npos) break;
      if (!line.empty() && line != "\r" && !line.starts_with('#')) return line;
      text.remove_prefix(end + 1);
    }
    if (text.size() > RecordReader::MostBytes || !input.Fill()) return Trimmed(text, blanks);
  }
}

bool IsCaseFile(InputBuffer& input) { return FirstLine(input).find('=') != std::string_view::npos; }

/// The separator that the header has most often.
char DetectSeparator(std::string_view header) {
  return *std::ranges::max_element(separators, {}, [&](char c) { return std::ranges::count(header, c); });
}

/// The captions of a header from the command line, without quotation marks.
std::vector<std::string_view> SplitHeader(std::string_view header, char separator) {
  std::vector<std::string_view> captions;
  while (true) {
    const std::size_t end = header.find(separator);
    std::string_view caption = Trimmed(header.substr(0, end), blanks);
    if (caption.size() > 1 && caption.starts_with('"') && caption.ends_with('"')) {
      caption = caption.substr(1, caption.size() - 2);
    }
    captions.push_back(caption);
    if (end == std::string_view::npos) return captions;
    header.remove_prefix(end + 1);
  }
}

void ReadFields(const CaseTexts& texts, InputFamily& family) {
  if (!family.Faults.empty()) return;
  family.Texts = &texts;
  family.Input = ReadDivisionInput(texts);
  for (const UnreadableField& field : family.Input.Unreadable)
    family.Faults.push_back(Join(English(field), "."));
}

bool IsId(std::string_view caption) { return caption == "id" || caption == "Id" || caption == "ID"; }

/// The meaning of the columns of a table.
class Columns {
 public:
  /// From the header row.
  Columns(const std::vector<std::string_view>& captions, std::int64_t line, bool ignoreUnknown,
          const InputEvents& events) {
    std::vector<std::string> unknown;
    for (const std::string_view caption : captions) {
      const std::string words(Trimmed(caption, blanks));
      const std::optional<Entry> entry = FindEntry(words);
      if (IsId(words)) {
        Add({Use::Id, {}, words}, line);
      } else if (entry) {
        Add({Use::Entry, *entry, words}, line);
      } else if (ignoreUnknown || words.empty()) {
        Add({Use::Nothing, {}, words}, line);
        if (!words.empty()) events.Skipped(line, Join("The column \"", words, "\" is passed over."));
      } else {
        unknown.push_back(words);
      }
    }
    if (!unknown.empty()) throw InputFault{line, EnglishOfUnknown(unknown)};
    if (std::ranges::none_of(columns_, [](const Column& column) { return column.For == Use::Entry; })) {
      throw InputFault{line, "No column has a caption of the Case Study screen."};
    }
  }

  /// Builds the case of a row; false if the row does not have as many fields as the header.
  bool Read(const std::vector<std::string_view>& fields, InputFamily& family) {
    const bool tooMany =
        std::any_of(fields.begin() + static_cast<std::ptrdiff_t>(std::min(fields.size(), columns_.size())),
                    fields.end(), [](std::string_view field) { return !Trimmed(field, blanks).empty(); });
    if (tooMany || fields.size() < columns_.size()) {
      family.Faults.push_back(Join("The row has ", static_cast<int>(fields.size()),
                                   " fields, and the header ", static_cast<int>(columns_.size()), "."));
      return false;
    }
    entries_.Clear();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const Column& column = columns_[i];
      const std::string_view value = Trimmed(fields[i], blanks);
      if (value.empty() || column.For == Use::Nothing) continue;  // an empty field is not given
      if (column.For == Use::Id) {
        family.Id = value;
      } else if (const auto fault = entries_.Set(column.Meaning, value)) {
        family.Faults.push_back(English(*fault, column.Words));
      }
    }
    if (const auto fault = entries_.Complete()) family.Faults.push_back(English(*fault, {}));
    ReadFields(entries_.Texts(), family);
    return true;
  }

 private:
  static std::string EnglishOfUnknown(const std::vector<std::string>& captions) {
    std::string text;
    for (const std::string& caption : captions) text += Join(text.empty() ? "\"" : ", \"", caption, "\"");
    return Join(text, captions.size() == 1 ? " is not a caption" : " are not captions",
                " of the Case Study screen. The manual lists them; --ignore-columns passes over others.");
  }

  enum class Use : std::uint8_t { Nothing, Id, Entry };
  struct Column {
    Use For;
    Entry Meaning;
    std::string Words;
  };

  void Add(Column column, std::int64_t line) {
    const auto same = [&](const Column& other) {
      return column.For != Use::Nothing && other.For == column.For && other.Meaning == column.Meaning;
    };
    if (std::ranges::any_of(columns_, same)) {
      throw InputFault{line, English(CaseFault::NamedTwice, column.Words)};
    }
    columns_.push_back(std::move(column));
  }

  std::vector<Column> columns_;
  CaseEntries entries_;
};

/// The separator that the first line of the table names, "sep=;", as some programs write it; else 0.
char NamedSeparator(InputBuffer& input) {
  constexpr std::string_view begin = "sep=";
  constexpr std::size_t length = begin.size() + 2;  // with the separator and the end of the line
  // It waits for no more input than it needs.
  while (input.Text().size() < length && begin.starts_with(input.Text().substr(0, begin.size())) &&
         input.Fill()) {
  }
  const std::string_view text = input.Text();
  const bool isNamed = text.size() >= length && text.starts_with(begin) &&
                       (text[5] == '\r' || text[5] == '\n') &&
                       std::ranges::find(separators, text[4]) != separators.end();
  return isNamed ? text[4] : '\0';
}

/// Refuses files of spreadsheets that are not text.
void RefuseWorkbooks(std::string_view begin) {
  if (begin.starts_with("PK\x03\x04") || begin.starts_with("\xD0\xCF\x11\xE0")) {
    throw InputFault{0, "This is the workbook of a spreadsheet. Save the table as CSV UTF-8."};
  }
  if (begin.starts_with("\xFF\xFE") || begin.starts_with("\xFE\xFF")) {
    throw InputFault{0, "This is UTF-16. Save the table as CSV UTF-8."};
  }
}

void ReadTable(InputBuffer& input, const Options& options, std::int64_t& number, const InputEvents& events) {
  const char named = NamedSeparator(input);
  char separator = options.Separator != 0 ? options.Separator : named;
  if (separator == 0) {
    separator = DetectSeparator(options.Columns.empty() ? FirstLine(input) : options.Columns);
  }
  RecordReader rows(input, separator);
  if (named != 0) rows.Next();
  const auto columns = [&]() -> Columns {
    if (!options.Columns.empty())
      return {SplitHeader(options.Columns, separator), 0, options.IgnoreColumns, events};
    if (!rows.Next()) throw InputFault{0, "There is no header row."};
    if (rows.Fault() != RecordFault::None) throw InputFault{rows.Line(), std::string(English(rows.Fault()))};
    return {rows.Fields(), rows.Line(), options.IgnoreColumns, events};
  };
  Columns read = columns();
  InputFamily family;
  std::string digits;
  for (; rows.Next(); ++number) {
    digits = std::to_string(number);
    family.Id = digits;
    family.Line = rows.Line();
    family.Faults.clear();
    if (rows.Fault() == RecordFault::None) {
      if (!read.Read(rows.Fields(), family)) rows.RestartAtSecondLine();
    } else {
      family.Faults.emplace_back(English(rows.Fault()));
    }
    events.Family(family);
  }
}

void ReadCase(InputBuffer& input, const std::string& id, const InputEvents& events) {
  while (input.Text().size() <= MostBytesOfCaseFile && input.Fill()) {
  }
  const CaseFileReading file = ParseCaseFile(input.Text());
  for (const CaseLine& line : file.Unknown) {
    events.Skipped(line.Number, Join("\"", line.Text, "\" is of a newer version and is passed over."));
  }
  InputFamily family;
  family.Id = id;
  if (file.Fault) {
    family.Line = file.Fault->Line.Number;
    family.Faults.push_back(English(file.Fault->Fault, file.Fault->Line.Text));
  } else {
    ReadFields(file.Case, family);
  }
  events.Family(family);
}

}  // namespace

void ReadFamilies(Source& source, const Options& options, std::int64_t& number, const InputEvents& events) {
  InputBuffer input(source);
  while (input.Text().size() < 4 && input.Fill()) {
  }
  RefuseWorkbooks(input.Text());
  if (input.Text().starts_with(ByteOrderMark)) input.Skip(ByteOrderMark.size());
  const bool detects = options.Input == InputKind::Detected && options.Columns.empty();
  if (options.Input == InputKind::Case || (detects && NamedSeparator(input) == 0 && IsCaseFile(input))) {
    std::string id = source.Path();
    if (id == "-") id = std::to_string(number);
    ++number;
    ReadCase(input, id, events);
  } else {
    ReadTable(input, options, number, events);
  }
}

}  // namespace qismora::divide
