#include <algorithm>

#include "base/Encoding.h"
#include "divide/Answers.h"

namespace qismora::divide {

namespace {

using faraid::Kind;

/// A table of lines of cells. A column is as wide as its widest cell.
class TextTable {
 public:
  /// The alignment of a column: numbers right, words left.
  enum class Side { Left, Right };

  explicit TextTable(std::vector<Side> sides) : sides_(std::move(sides)) {}

  void Add(std::vector<std::string> cells) { lines_.push_back(std::move(cells)); }

  const std::vector<std::string>& LastLine() const { return lines_.back(); }

  void AppendTo(std::string& text) const {
    std::vector<std::size_t> widths(sides_.size());
    for (const auto& line : lines_) {
      for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], line[i].size());
    }
    for (const auto& line : lines_) {
      for (std::size_t i = 0; i < line.size(); ++i) {
        const std::size_t blanks = widths[i] - line[i].size();
        text.append(2, ' ');
        if (sides_[i] == Side::Right) text.append(blanks, ' ');
        text.append(line[i]);
        if (sides_[i] == Side::Left && i + 1 < line.size()) text.append(blanks, ' ');
      }
      text.erase(text.find_last_not_of(' ') + 1);
      text += '\n';
    }
  }

 private:
  std::vector<Side> sides_;
  std::vector<std::vector<std::string>> lines_;
};

using Side = TextTable::Side;

std::string BaseText(std::int64_t base) { return base > 0 ? std::to_string(base) : ""; }

/// Replaces control characters by blanks, so that no input controls the terminal.
void AppendPlain(std::string& text, std::string_view words) {
  for (const char c : words) text += FindControlCharacter({&c, 1}) == 0 ? ' ' : c;
}

void AppendHead(const Answer& answer, std::string& text) {
  Append(text, "Family ");
  AppendPlain(text, answer.Id);
  if (!answer.Name.empty()) Append(text, ", "), AppendPlain(text, answer.Name);
  Append(text, "\n");
  const faraid::Settlement& settlement = answer.Settlement;
  if (settlement.Shortfall > 0) {
    Append(text, "Nothing to divide, short by ", AmountText(settlement.Shortfall), "\n");
    return;
  }
  if (settlement.Bequests < answer.Estate.Bequests) {
    Append(text, "Bequests ", AmountText(answer.Estate.Bequests), ", limited to ",
           AmountText(settlement.Bequests), "\n");
  }
  Append(text, "Net estate ", AmountText(settlement.Net));
}

/// The answer of the commands of Case Study for an heir.
std::string CommandsText(const OwnAnswer& commands, Kind heir) {
  if (heir == Kind::Remainder) return {};
  switch (commands.Outcome) {
    case OwnOutcome::Figures:
      break;
    case OwnOutcome::FigureRefused:
    case OwnOutcome::EstateRefused:
      return "refused";
    case OwnOutcome::NoFigures:
    case OwnOutcome::Failed:
      return std::string(WordsOf(commands.Outcome));
  }
  const double amount = commands.Of(heir).Together;
  if (amount == 0) return "nothing";
  std::string text;
  AppendAmount(text, amount);
  return text;
}

bool IsRefused(const OwnAnswer& commands) {
  return commands.Outcome == OwnOutcome::FigureRefused || commands.Outcome == OwnOutcome::EstateRefused;
}

void AppendRefusal(const OwnAnswer& commands, std::string& text) {
  if (!IsRefused(commands)) return;
  Append(text, "  The commands of Case Study refuse it: \"");
  AppendPlain(text, commands.Refusal);
  Append(text, "\"\n");
}

/// What the commands give if they do not differ. They may show no figures if no heir receives anything.
std::string_view AgreementOf(const OwnAnswer& commands) {
  return commands.Outcome == OwnOutcome::Figures ? "the same answer."
                                                 : "no figures, and no heir receives anything.";
}

/// The sentence of a difference, with the section that explains it.
std::string SentenceOf(const DifferenceKind& kind) {
  std::string text;
  Append(text, kind.Sentence, " See peculiarities.md#", kind.Section, ".");
  return text;
}

void AppendKinds(const Differences& differences, std::string& text) {
  for (const DifferenceKind* kind : differences.Kinds) Append(text, "  ", SentenceOf(*kind), "\n");
}

/// The answer of the commands if the division has nothing to divide. They may still divide: they read and
/// round amounts differently, and continue with a negative estate.
void AppendCommandsOfShortfall(const Answer& answer, std::string& text) {
  const OwnAnswer& commands = *answer.Commands;
  AppendRefusal(commands, text);
  if (!IsRefused(commands)) {
    Append(text, "  The commands of Case Study have a net estate of ");
    AppendAmount(text, commands.NetEstate);
    std::string shares;
    for (std::size_t i = 0; i < faraid::KindCount; ++i) {
      const auto heir = static_cast<Kind>(i);
      if (commands.Outcome != OwnOutcome::Figures || commands.Of(heir).Together == 0) continue;
      Append(shares, shares.empty() ? " and give " : ", ", CaptionOf(heir), " ",
             CommandsText(commands, heir));
    }
    Append(text, shares.empty() ? " and show no figures" : shares, ".\n");
  }
  AppendKinds(answer.Differs, text);
}

void AppendOneSchool(const Answer& answer, bool reasons, std::string& text) {
  const SchoolDivision& school = answer.Schools.front();
  const faraid::Division& division = school.Division;
  Append(text, ", ", NameOf(school.School), " law");
  if (division.Base > 0) Append(text, ", base ", BaseText(division.Base));
  if (division.RaisedTo > 0) Append(text, ", raised to ", BaseText(division.RaisedTo));
  if (division.Base > 0) Append(text, ", corrected base ", BaseText(division.CorrectedBase));
  Append(text, "\n\n");
  const bool compares = answer.Commands.has_value();
  std::vector<Side> sides(compares ? 7 : 6, Side::Right);
  sides.front() = Side::Left;
  sides.insert(sides.end(), {Side::Left, Side::Left});
  TextTable table(sides);
  const auto add = [&](std::vector<std::string> cells, std::string commands) {
    if (compares) cells.insert(cells.begin() + 6, std::move(commands));
    table.Add(std::move(cells));
  };
  add({"Heir", "Heads", "Share", "Each", "Amount", "Each", "Standing", reasons ? "Why" : ""}, "Commands");
  for (std::size_t i = 0; i < division.Rows.Size(); ++i) {
    const faraid::Row& row = division.Rows[i];
    const faraid::Amount& amount = school.Amounts[i];
    const bool takes = row.Share > 0;
    std::string standing;
    AppendStanding(standing, row);
    const bool differs = compares && school.Differs.Heirs.Has(row.Heir);
    add({std::string(CaptionOf(row.Heir)) + (differs ? "*" : ""),
         row.Heir == Kind::Remainder ? "" : std::to_string(row.Heads),
         takes ? FractionText(row.Share) : "nothing", takes ? FractionText(row.PerHead) : "",
         takes ? AmountText(amount.Together) : "", takes ? EachText(row, amount) : "", standing,
         reasons ? faraid::English(row.Why) : ""},
        compares ? CommandsText(*answer.Commands, row.Heir) : "");
  }
  add({"Together", "", "1", "", AmountText(answer.Settlement.Net), "", "", ""}, "");
  table.AppendTo(text);
  if (!compares) return;
  text += '\n';
  if (!school.Differs.Heirs.IsEmpty()) Append(text, "  * The commands of Case Study give another answer.\n");
  AppendRefusal(*answer.Commands, text);
  AppendKinds(school.Differs, text);
  if (school.Differs.None() && !IsRefused(*answer.Commands)) {
    Append(text, "  The commands of Case Study give ", AgreementOf(*answer.Commands), "\n");
  }
}

/// The kinds that have a row in any of the schools.
faraid::KindSet KindsOf(const Answer& answer) {
  faraid::KindSet kinds;
  for (const SchoolDivision& school : answer.Schools) {
    for (const faraid::Row& row : school.Division.Rows) kinds = kinds | row.Heir;
  }
  return kinds;
}

/// The index of the row of the kind; the number of rows if it has none.
std::size_t IndexOf(const SchoolDivision& school, Kind kind) {
  const auto& rows = school.Division.Rows;
  return static_cast<std::size_t>(std::ranges::find(rows, kind, &faraid::Row::Heir) - rows.begin());
}

/// Appends a line "  SUBJECT (Maliki, Shafi'i): WORDS" for the words of each school. Schools with the same
/// words share a line; schools without words have none.
template <class Saying>
void AppendBySchool(const Answer& answer, std::string_view subject, Saying wordsOf, std::string& text) {
  std::vector<std::pair<std::string, std::string>> said;  // the words, and the schools
  for (const SchoolDivision& school : answer.Schools) {
    const std::string words = wordsOf(school);
    if (words.empty()) continue;
    const auto same = std::ranges::find(said, words, &std::pair<std::string, std::string>::first);
    if (same == said.end()) {
      said.emplace_back(words, NameOf(school.School));
    } else {
      Append(same->second, ", ", NameOf(school.School));
    }
  }
  for (const auto& [words, schools] : said) {
    Append(text, "  ", subject, said.size() > 1 ? " (" + schools + ")" : "", ": ", words, "\n");
  }
}

void AppendReasons(const Answer& answer, Kind kind, std::string& text) {
  const auto why = [&](const SchoolDivision& school) {
    const std::size_t i = IndexOf(school, kind);
    return i < school.Division.Rows.Size() ? faraid::English(school.Division.Rows[i].Why) : std::string();
  };
  AppendBySchool(answer, CaptionOf(kind), why, text);
}

/// How the commands differ from each school.
void AppendDifferencesBySchool(const Answer& answer, std::string& text) {
  text += '\n';
  AppendRefusal(*answer.Commands, text);
  const auto differences = [&](const SchoolDivision& school) {
    std::string words;
    if (school.Differs.None() && !IsRefused(*answer.Commands)) Append(words, AgreementOf(*answer.Commands));
    for (const Kind heir : school.Differs.Heirs) {
      Append(words, words.empty() ? "another answer for " : ", ", CaptionOf(heir));
    }
    if (!school.Differs.Heirs.IsEmpty()) words += '.';
    for (const DifferenceKind* kind : school.Differs.Kinds) {
      Append(words, words.empty() ? "" : " ", SentenceOf(*kind));
    }
    return words;
  };
  AppendBySchool(answer, "Commands of Case Study", differences, text);
}

struct BaseRow {
  const char* Words;
  std::int64_t faraid::Division::*Base;
};
constexpr BaseRow baseRows[] = {
    {"Base", &faraid::Division::Base},
    {"Raised to", &faraid::Division::RaisedTo},
    {"Corrected base", &faraid::Division::CorrectedBase},
};

/// The line of one kind, with its share and amount in each school, and a star if the schools differ.
std::vector<std::string> CellsOf(const Answer& answer, Kind kind) {
  std::vector<std::string> cells = {std::string(CaptionOf(kind)), ""};
  bool differs = false;
  for (const SchoolDivision& school : answer.Schools) {
    const std::size_t i = IndexOf(school, kind);
    const bool has = i < school.Division.Rows.Size();
    const bool takes = has && school.Division.Rows[i].Share > 0;
    if (has && kind != Kind::Remainder) cells[1] = std::to_string(school.Division.Rows[i].Heads);
    cells.push_back(takes ? FractionText(school.Division.Rows[i].Share) : "nothing");
    differs = differs || cells.back() != cells[2];
    cells.push_back(takes ? AmountText(school.Amounts[i].Together) : "");
  }
  if (differs) cells[0] += '*';
  if (answer.Commands) cells.push_back(CommandsText(*answer.Commands, kind));
  return cells;
}

void AppendSideBySide(const Answer& answer, bool reasons, std::string& text) {
  Append(text, "\n\n");
  std::vector<Side> sides = {Side::Left};
  sides.resize(2 + 2 * answer.Schools.size() + (answer.Commands ? 1 : 0), Side::Right);
  TextTable table(sides);
  std::vector<std::string> header = {"Heir", "Heads"};
  for (const SchoolDivision& school : answer.Schools) {
    header.insert(header.end(), {std::string(NameOf(school.School)), "Amount"});
  }
  if (answer.Commands) header.emplace_back("Commands");
  table.Add(header);
  const faraid::KindSet kinds = KindsOf(answer);
  bool anyDiffers = false;
  for (const Kind kind : kinds) {
    table.Add(CellsOf(answer, kind));
    anyDiffers = anyDiffers || table.LastLine().front().ends_with('*');
  }
  for (const BaseRow& row : baseRows) {
    std::vector<std::string> cells = {row.Words, ""};
    bool any = false;
    for (const SchoolDivision& school : answer.Schools) {
      const std::int64_t base = school.Division.Base > 0 ? school.Division.*row.Base : 0;
      cells.insert(cells.end(), {BaseText(base), ""});
      any = any || base > 0;
    }
    if (any) table.Add(cells);
  }
  table.AppendTo(text);
  if (anyDiffers) Append(text, "\n  * The schools differ.\n");
  if (answer.Commands) AppendDifferencesBySchool(answer, text);
  if (!reasons) return;
  text += '\n';
  for (const Kind kind : kinds) AppendReasons(answer, kind, text);
}

void WriteTable(const Answer& answer, const Options& options, bool first, std::string& text) {
  if (!first) text += '\n';
  AppendHead(answer, text);
  if (answer.Schools.empty() && answer.Commands) AppendCommandsOfShortfall(answer, text);
  if (answer.Schools.size() == 1) AppendOneSchool(answer, options.Reasons, text);
  if (answer.Schools.size() > 1) AppendSideBySide(answer, options.Reasons, text);
}

}  // namespace

const AnswerFormat TableFormat = {nullptr, WriteTable, nullptr};

}  // namespace qismora::divide
