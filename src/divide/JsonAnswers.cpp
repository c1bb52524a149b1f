#include "base/Text.h"
#include "divide/Answers.h"

// Amounts and fractions are texts, because many readers of JSON turn numbers into binary floating point.

namespace qismora::divide {

namespace {

void AppendText(std::string& json, std::string_view text) {
  json += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json.append({'\\', c});
    } else if (byte < 0x20) {
      Append(json, "\\u00");
      AppendHex(json, byte);
    } else {
      json += c;
    }
  }
  json += '"';
}

// Each member is followed by a comma, which the end of the object replaces.

void Key(std::string& json, std::string_view key) { Append(json, "\"", key, "\":"); }

void TextMember(std::string& json, std::string_view key, std::string_view text) {
  Key(json, key);
  AppendText(json, text);
  json += ',';
}

void NumberMember(std::string& json, std::string_view key, std::int64_t number) {
  Key(json, key);
  AppendNumber(json, number);
  json += ',';
}

void NullMember(std::string& json, std::string_view key) {
  Key(json, key);
  Append(json, "null,");
}

/// No base is null.
void BaseMember(std::string& json, std::string_view key, std::int64_t base) {
  base > 0 ? NumberMember(json, key, base) : NullMember(json, key);
}

/// Takes hundredths, or an amount of the commands.
template <class Value>
void AmountMember(std::string& json, std::string_view key, Value amount) {
  Key(json, key);
  json += '"';
  AppendAmount(json, amount);
  Append(json, "\",");
}

void FractionMember(std::string& json, std::string_view key, const faraid::Fraction& fraction) {
  Key(json, key);
  json += '"';
  AppendFraction(json, fraction);
  Append(json, "\",");
}

/// Closes an object or an array, followed by a comma.
void Close(std::string& json, char bracket) {
  if (json.back() == ',') json.pop_back();
  json.append({bracket, ','});
}

/// The outcome of the commands of Case Study.
void AppendCommands(std::string& json, const OwnAnswer& commands) {
  Key(json, "commands");
  json += '{';
  TextMember(json, "answer", WordsOf(commands.Outcome));
  AmountMember(json, "net_estate", commands.NetEstate);
  if (commands.Refusal.empty()) {
    NullMember(json, "message");
  } else {
    TextMember(json, "message", commands.Refusal);
  }
  Close(json, '}');
}

void AppendCommandsShare(std::string& json, const OwnAnswer& commands, const Differences& differences,
                         faraid::Kind heir) {
  if (commands.Outcome == OwnOutcome::Figures && heir != faraid::Kind::Remainder) {
    AmountMember(json, "commands_amount", commands.Of(heir).Together);
    AmountMember(json, "commands_amount_each", commands.Of(heir).Each);
  } else {
    NullMember(json, "commands_amount");
    NullMember(json, "commands_amount_each");
  }
  Key(json, "differs");
  Append(json, differences.Heirs.Has(heir) ? "true," : "false,");
}

void AppendDifferences(std::string& json, const Differences& differences) {
  Key(json, "differences");
  json += '[';
  for (const DifferenceKind* kind : differences.Kinds) {
    json += '{';
    TextMember(json, "id", kind->Id);
    TextMember(json, "sentence", kind->Sentence);
    TextMember(json, "section", kind->Section);
    Close(json, '}');
  }
  Close(json, ']');
}

void AppendHeir(std::string& json, const Answer& answer, const SchoolDivision& school, std::size_t index,
                bool reasons) {
  const faraid::Row& row = school.Division.Rows[index];
  const EachAmount each = EachOf(row, school.Amounts[index]);
  json += '{';
  TextMember(json, "heir", CaptionOf(row.Heir));
  NumberMember(json, "heads", row.Heads);
  FractionMember(json, "share", row.Share);
  FractionMember(json, "share_each", row.PerHead);
  AmountMember(json, "amount", school.Amounts[index].Together);
  AmountMember(json, "amount_each", each.Amount);
  NumberMember(json, "heads_with_one_more", each.HeadsWithOneMore);
  Key(json, "standing");
  json += '"';
  AppendStanding(json, row);
  Append(json, "\",");
  if (reasons) TextMember(json, "reason", faraid::English(row.Why));
  if (answer.Commands) AppendCommandsShare(json, *answer.Commands, school.Differs, row.Heir);
  Close(json, '}');
}

void AppendSchool(std::string& json, const Answer& answer, const SchoolDivision& school, bool reasons) {
  json += '{';
  TextMember(json, "school", WordOf(school.School));
  BaseMember(json, "base", school.Division.Base);
  BaseMember(json, "raised_to", school.Division.RaisedTo);
  BaseMember(json, "corrected_base", CorrectedBaseOf(school.Division));
  Key(json, "heirs");
  json += '[';
  for (std::size_t i = 0; i < school.Division.Rows.Size(); ++i) AppendHeir(json, answer, school, i, reasons);
  Close(json, ']');
  if (answer.Commands) AppendDifferences(json, school.Differs);
  Close(json, '}');
}

void AppendFamily(std::string& json, const Answer& answer, bool reasons) {
  json += '{';
  TextMember(json, "id", answer.Id);
  if (!answer.Name.empty()) TextMember(json, "name", answer.Name);
  AmountMember(json, "gross_estate", answer.Estate.Gross);
  AmountMember(json, "funeral", answer.Estate.Funeral);
  AmountMember(json, "debts", answer.Estate.Debts);
  AmountMember(json, "bequests", answer.Estate.Bequests);
  AmountMember(json, "bequests_paid", answer.Settlement.Bequests);
  AmountMember(json, "net_estate", answer.Settlement.Net);
  AmountMember(json, "shortfall", answer.Settlement.Shortfall);
  if (answer.Commands) {
    AppendCommands(json, *answer.Commands);
    if (answer.Schools.empty()) AppendDifferences(json, answer.Differs);
  }
  Key(json, "divisions");
  json += '[';
  for (const SchoolDivision& school : answer.Schools) AppendSchool(json, answer, school, reasons);
  Close(json, ']');
  Close(json, '}');
  json.pop_back();
}

void WriteLine(const Answer& answer, const Options& options, bool, std::string& text) {
  AppendFamily(text, answer, options.Reasons);
  text += '\n';
}

void BeginArray(const Options&, std::string& text) { text += '['; }
void WriteItem(const Answer& answer, const Options& options, bool first, std::string& text) {
  Append(text, first ? "\n" : ",\n");
  AppendFamily(text, answer, options.Reasons);
}
void EndArray(std::string& text) { Append(text, "\n]\n"); }

}  // namespace

const AnswerFormat JsonFormat = {BeginArray, WriteItem, EndArray};
const AnswerFormat JsonLinesFormat = {nullptr, WriteLine, nullptr};

}  // namespace qismora::divide
