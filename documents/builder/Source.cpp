#include "Source.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace qismora::documents {

namespace {

/// What a worked case may have played, besides `Double click CAPTION`.
constexpr const char* commands[] = {"Residuaries", "Aul & Radd", "All Individual", "Execute Selected",
                                    "Full Report", "Then type",  "Message",        "Files"};

bool StartsWith(const std::string& text, const std::string& with) { return text.rfind(with, 0) == 0; }

/// The command of a line that is one, with a colon behind it; empty for any other line.
std::string CommandOf(const std::string& line) {
  if (line.empty() || line.back() != ':') return "";
  std::string words = line.substr(0, line.size() - 1);
  const bool known =
      StartsWith(words, "Double click ") || std::ranges::find(commands, words) != std::end(commands);
  return known ? words : "";
}

/// Walks the lines of a source and puts the blocks together.
class Parser {
 public:
  explicit Parser(const std::string& text) {
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines_.push_back(line);
  }

  Source Run() {
    ReadHead();
    while (at_ < lines_.size()) ReadBlock();
    return std::move(source_);
  }

  std::vector<WorkedCase> RunForCases() {
    while (More()) {
      if (Trim(lines_[at_]) == "```case") {
        ReadFence();
      } else {
        ++at_;
      }
    }
    std::vector<WorkedCase> cases;
    for (Block& block : source_.Blocks) cases.push_back(std::move(block.Case));
    return cases;
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const {
    throw std::runtime_error("line " + std::to_string(at_ + 1) + ": " + why);
  }

  bool More() const { return at_ < lines_.size(); }

  /// `name: value` lines up to the first empty line.
  void ReadHead() {
    for (; More() && !Trim(lines_[at_]).empty(); ++at_) {
      const std::size_t colon = lines_[at_].find(':');
      if (colon == std::string::npos) Fail("expected `name: value`");
      const std::string name = lines_[at_].substr(0, colon);
      const std::string value = Trim(lines_[at_].substr(colon + 1));
      if (name == "title") {
        source_.Title = value;
      } else if (name == "arabic") {
        source_.TitleArabic = value;
      } else if (name == "subtitle") {
        source_.Subtitle = value;
      } else if (name == "file") {
        source_.File = value;
      } else {
        Fail("unknown name " + name);
      }
    }
    if (source_.Title.empty() || source_.File.empty()) Fail("title and file are needed");
  }

  void ReadBlock() {
    const std::string& line = lines_[at_];
    if (Trim(line).empty()) {
      ++at_;
    } else if (StartsWith(line, "#")) {
      ReadHeading();
    } else if (StartsWith(line, "```")) {
      ReadFence();
    } else if (StartsWith(line, "|")) {
      ReadTable();
    } else if (StartsWith(line, "{")) {
      ReadDirective();
    } else if (StartsWith(line, "> ")) {
      ReadText(BlockKind::Note, 2, "> ");
    } else if (StartsWith(line, "- ")) {
      ReadText(BlockKind::Bullet, 2, "  ");
    } else if (const std::size_t skip = NumberMark(line); skip > 0) {
      ReadText(BlockKind::Numbered, skip, "  ");
      source_.Blocks.back().Level = std::stoi(line);
    } else {
      ReadText(BlockKind::Paragraph, 0, "");
    }
  }

  /// The length of the mark `1. ` at the start of a list item, or 0.
  static std::size_t NumberMark(const std::string& line) {
    std::size_t i = 0;
    while (i < line.size() && std::isdigit(static_cast<unsigned char>(line[i])) != 0) ++i;
    return i > 0 && line.compare(i, 2, ". ") == 0 ? i + 2 : 0;
  }

  void ReadHeading() {
    const std::string& line = lines_[at_];
    const std::size_t level = line.find_first_not_of('#');
    if (level == std::string::npos || level > 3 || line[level] != ' ') Fail("bad heading");
    Add(BlockKind::Heading, Trim(line.substr(level)));
    source_.Blocks.back().Level = static_cast<int>(level);
    ++at_;
  }

  /// A text of several lines. Those behind the first must begin with the given mark, if there is one;
  /// any other beginning of a block ends it.
  void ReadText(BlockKind kind, std::size_t skip, const std::string& mark) {
    std::string text = Trim(lines_[at_].substr(skip));
    for (++at_; More(); ++at_) {
      const std::string& line = lines_[at_];
      if (Trim(line).empty() || !StartsWith(line, mark)) break;
      if (mark.empty() && line.find_first_of("#`|{>-") == 0) break;
      text += ' ';
      text += Trim(line.substr(mark.size()));
    }
    Add(kind, text);
  }

  void ReadTable() {
    Add(BlockKind::Table, "");
    Block& table = source_.Blocks.back();
    for (; More() && StartsWith(lines_[at_], "|"); ++at_) {
      const std::vector<std::string> cells = SplitCells(lines_[at_]);
      if (table.Rows.size() == 1 && table.Widths.empty()) {
        for (const std::string& cell : cells) {
          if (cell.find_first_not_of('-') != std::string::npos) Fail("expected the line of widths");
          table.Widths.push_back(static_cast<int>(cell.size()));
        }
      } else {
        table.Rows.push_back(cells);
      }
      if (cells.size() != table.Rows.front().size()) Fail("a row of another length");
    }
    if (table.Widths.empty()) Fail("a table without its line of widths");
  }

  void ReadDirective() {
    std::string name = Trim(lines_[at_]);
    if (name.back() != '}') Fail("an open brace");
    name = name.substr(1, name.size() - 2);
    if (name == "page") {
      Add(BlockKind::PageBreak, "");
    } else if (StartsWith(name, "figure ")) {
      Add(BlockKind::Figure, name.substr(7));
    } else if (StartsWith(name, "terms ")) {
      Add(BlockKind::Terms, name.substr(6));
    } else {
      Fail("unknown directive " + name);
    }
    ++at_;
  }

  void ReadFence() {
    const std::string name = Trim(lines_[at_].substr(3));
    std::vector<std::string> body;
    for (++at_; More() && !StartsWith(lines_[at_], "```"); ++at_) {
      if (!Trim(lines_[at_]).empty()) body.push_back(lines_[at_]);
    }
    if (!More() || body.size() < 2) Fail("a fence without an end or a body");
    if (name == "case") {
      ReadCase(body);
    } else if (name == "verse") {
      ReadVerse(body);
    } else {
      Fail("unknown fence " + name);
    }
    ++at_;
  }

  void ReadCase(const std::vector<std::string>& body) {
    Add(BlockKind::Case, "");
    WorkedCase& worked = source_.Blocks.back().Case;
    worked.Title = Trim(body.front());
    for (std::size_t i = 1; i < body.size(); ++i) {
      if (const std::string command = CommandOf(body[i]); !command.empty()) {
        worked.Answers.push_back({command, {}});
      } else if (!worked.Answers.empty()) {
        worked.Answers.back().Lines.push_back(Trim(body[i]));
      } else {
        worked.Boxes.push_back(SplitEntry(body[i]));
        if (worked.Boxes.back().first.empty()) Fail("expected `box = value`: " + body[i]);
      }
    }
    if (worked.Answers.empty()) Fail("a case without an answer");
  }

  /// `4:11 An-Nisāʾ النساء`, and the Arabic in one line.
  void ReadVerse(const std::vector<std::string>& body) {
    Add(BlockKind::VerseText, "");
    Verse& verse = source_.Blocks.back().Ayah;
    std::istringstream head(body[0]);
    char colon = ' ';
    head >> verse.Surah >> colon >> verse.Number >> verse.SurahName >> verse.SurahArabic;
    if (!head || colon != ':' || body.size() != 2) Fail("bad verse " + body[0]);
    verse.Arabic = Trim(body[1]);
  }

  void Add(BlockKind kind, const std::string& text) {
    source_.Blocks.emplace_back();
    source_.Blocks.back().Kind = kind;
    source_.Blocks.back().Text = text;
  }

  std::vector<std::string> lines_;
  std::size_t at_ = 0;
  Source source_;
};

}  // namespace

std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> SplitCells(const std::string& line) {
  std::vector<std::string> cells;
  std::size_t begin = line.find('|') + 1;
  for (std::size_t end = line.find('|', begin); end != std::string::npos; end = line.find('|', begin)) {
    cells.push_back(Trim(line.substr(begin, end - begin)));
    begin = end + 1;
  }
  return cells;
}

Source ParseSource(const std::string& text) { return Parser(text).Run(); }

namespace {

/// Reads the text of a file and names the file in what it complains of.
template <class Read>
auto ReadFile(const std::string& path, Read read) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  std::ostringstream text;
  text << in.rdbuf();
  try {
    return read(text.str());
  } catch (const std::exception& error) {
    throw std::runtime_error(path + ", " + error.what());
  }
}

}  // namespace

Source ReadSource(const std::string& path) { return ReadFile(path, ParseSource); }

std::vector<WorkedCase> ReadCases(const std::string& path) {
  return ReadFile(path, [](const std::string& text) { return Parser(text).RunForCases(); });
}

std::pair<std::string, std::string> SplitEntry(const std::string& line) {
  const std::size_t equals = line.find(" =");
  if (equals == std::string::npos) return {};
  return {Trim(line.substr(0, equals)), Trim(line.substr(equals + 2))};
}

}  // namespace qismora::documents
