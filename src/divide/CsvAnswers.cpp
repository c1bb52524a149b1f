#include <array>

#include "divide/Answers.h"

namespace qismora::divide {

namespace {

// A fraction is two columns of whole numbers, because a spreadsheet would read 1/8 as a date.
constexpr std::array<std::string_view, 17> columns = {
    "id",
    "school",
    "heir",
    "heads",
    "share_numerator",
    "share_denominator",
    "each_numerator",
    "each_denominator",
    "amount",
    "amount_each",
    "heads_with_one_more",
    "standing",
    "net_estate",
    "bequests_paid",
    "base",
    "raised_to",
    "corrected_base",
};
constexpr std::string_view reasonColumn = "reason";
constexpr std::array<std::string_view, 7> comparedColumns = {
    "commands_answer", "commands_net_estate", "commands_amount",      "commands_amount_each",
    "differs",         "differences",         "differences_in_words",
};

/// Appends a line field by field.
class Line {
 public:
  Line(std::string& text, char separator) : text_(text), separator_(separator) {}

  void Words(std::string_view words) { text_.append(words) += separator_; }
  void Number(std::int64_t number) {
    AppendNumber(text_, number);
    text_ += separator_;
  }
  /// No base is an empty field.
  void Base(std::int64_t base) {
    if (base > 0) AppendNumber(text_, base);
    text_ += separator_;
  }
  void Fraction(const faraid::Fraction& fraction) {
    Number(fraction.Num());
    Number(fraction.Den());
  }
  /// Takes hundredths, or an amount of the commands.
  template <class Value>
  void Amount(Value amount) {
    AppendAmount(text_, amount);
    text_ += separator_;
  }
  /// Quotes the words if they need it.
  void Quoted(std::string_view words) {
    const char special[] = {separator_, '"', '\r', '\n'};
    const bool padded = words.starts_with(' ') || words.ends_with(' ');
    if (!padded && words.find_first_of(std::string_view(special, sizeof special)) == std::string_view::npos) {
      return Words(words);
    }
    text_ += '"';
    for (const char c : words) text_.append(c == '"' ? 2 : 1, c);
    text_ += '"';
    text_ += separator_;
  }
  void Standing(const faraid::Row& row) {
    AppendStanding(text_, row);
    text_ += separator_;
  }
  void End() { text_.back() = '\n'; }

 private:
  std::string& text_;
  char separator_;
};

char SeparatorOf(const Options& options) { return options.Separator != 0 ? options.Separator : ','; }

void BeginCsv(const Options& options, std::string& text) {
  if (!options.Header) return;
  Line line(text, SeparatorOf(options));
  for (const std::string_view column : columns) line.Words(column);
  if (options.Reasons) line.Words(reasonColumn);
  if (options.Compare) {
    for (const std::string_view column : comparedColumns) line.Words(column);
  }
  line.End();
}

/// The answer of the commands for the heir of a row; without a row, nothing is left to divide.
void WriteCommands(const OwnAnswer& commands, const Differences& differences, const faraid::Row* row,
                   Line& line) {
  line.Words(WordsOf(commands.Outcome));
  line.Amount(commands.NetEstate);
  const bool hasAmount =
      row != nullptr && commands.Outcome == OwnOutcome::Figures && row->Heir != faraid::Kind::Remainder;
  if (hasAmount) {
    line.Amount(commands.Of(row->Heir).Together);
    line.Amount(commands.Of(row->Heir).Each);
  } else {
    line.Words({});
    line.Words({});
  }
  const bool differs = row != nullptr ? differences.Heirs.Has(row->Heir) : !differences.None();
  line.Words(differs ? "yes" : "no");
  std::string ids;
  std::string sentences;
  for (const DifferenceKind* kind : differences.Kinds) {
    Append(ids, ids.empty() ? "" : " ", kind->Id);
    Append(sentences, sentences.empty() ? "" : " ", kind->Sentence);
  }
  line.Words(ids);
  line.Quoted(sentences);
}

void WriteRow(const Answer& answer, const SchoolDivision& school, std::size_t index, const Options& options,
              std::string& text) {
  const faraid::Row& row = school.Division.Rows[index];
  const faraid::Amount& amount = school.Amounts[index];
  const EachAmount each = EachOf(row, amount);
  Line line(text, SeparatorOf(options));
  line.Quoted(answer.Id);
  line.Words(WordOf(school.School));
  line.Words(CaptionOf(row.Heir));
  line.Number(row.Heads);
  line.Fraction(row.Share);
  line.Fraction(row.PerHead);
  line.Amount(amount.Together);
  line.Amount(each.Amount);
  line.Number(each.HeadsWithOneMore);
  line.Standing(row);
  line.Amount(answer.Settlement.Net);
  line.Amount(answer.Settlement.Bequests);
  line.Base(school.Division.Base);
  line.Base(school.Division.RaisedTo);
  line.Base(CorrectedBaseOf(school.Division));
  if (options.Reasons) line.Quoted(faraid::English(row.Why));
  if (answer.Commands) WriteCommands(*answer.Commands, school.Differs, &row, line);
  line.End();
}

/// A family for whom nothing is left has one line, so that no family is missing.
void WriteShortfall(const Answer& answer, const Options& options, std::string& text) {
  const char separator = SeparatorOf(options);
  Line line(text, separator);
  line.Quoted(answer.Id);
  for (std::size_t i = 1; i < columns.size(); ++i) {
    if (columns[i] == "standing") {
      text.append("nothing to divide: short by ");
      line.Amount(answer.Settlement.Shortfall);
    } else if (columns[i] == "net_estate" || columns[i] == "bequests_paid") {
      line.Amount(faraid::Hundredths{0});
    } else {
      line.Words({});
    }
  }
  if (options.Reasons) line.Words({});
  if (answer.Commands) WriteCommands(*answer.Commands, answer.Differs, nullptr, line);
  line.End();
}

void WriteCsv(const Answer& answer, const Options& options, bool, std::string& text) {
  if (answer.Settlement.Shortfall > 0) return WriteShortfall(answer, options, text);
  for (const SchoolDivision& school : answer.Schools) {
    for (std::size_t i = 0; i < school.Division.Rows.Size(); ++i) WriteRow(answer, school, i, options, text);
  }
}

}  // namespace

const AnswerFormat CsvFormat = {BeginCsv, WriteCsv, nullptr};

}  // namespace qismora::divide
