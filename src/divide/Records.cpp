#include "divide/Records.h"

#include <algorithm>

#include "base/Encoding.h"

namespace qismora::divide {

namespace {

// In the order of RecordFault.
constexpr std::string_view faultSentences[] = {
    "",
    "There is text behind a closing quotation mark.",
    "A quotation mark does not close.",
    "The row is too long.",
    "The row is not UTF-8. Save the table as CSV UTF-8.",
};

bool IsBlank(std::string_view field) { return field.find_first_not_of(' ') == std::string_view::npos; }

}  // namespace

std::string_view English(RecordFault fault) { return faultSentences[static_cast<std::size_t>(fault)]; }

bool RecordReader::Next() {
  do {
    input_.Skip(scanned_);
    line_ += lines_;
    if (!ReadRecord()) return false;
  } while (fault_ == RecordFault::None && std::ranges::all_of(fields_, IsBlank));
  return true;
}

bool RecordReader::ReadRecord() {
  state_ = State::FieldBegins;
  field_ = {};
  found_.clear();
  fields_.clear();
  scanned_ = 0;
  lines_ = 0;
  fault_ = RecordFault::None;
  while (!Scan()) {
    if (fault_ != RecordFault::None) return Refuse(fault_);
    if (scanned_ < MostBytes) {
      if (input_.Fill()) continue;
      if (scanned_ == 0) return false;
      if (state_ != State::Quoted) {
        EndField(scanned_, true);
        break;
      }
    }
    return Refuse(state_ == State::Quoted ? RecordFault::OpenQuotation : RecordFault::TooLong);
  }
  if (fault_ != RecordFault::None) return Refuse(fault_);
  if (FindInvalidUtf8(input_.Text().substr(0, scanned_)) == std::string_view::npos) {
    TakeFields();
  } else {
    fault_ = RecordFault::NotUtf8;
  }
  return true;
}

/// Scans the input buffer further; true at the end of the record, when all its fields are found.
bool RecordReader::Scan() {
  const std::string_view text = input_.Text().substr(0, MostBytes);
  while (scanned_ < text.size()) {
    const char c = text[scanned_];
    if (c == '\n') ++lines_;
    if (state_ == State::Quoted) {
      if (c == '"') state_ = State::QuotationEnds;
    } else if (c == separator_ || c == '\n') {
      EndField(scanned_, c == '\n');
      state_ = State::FieldBegins;
      ++scanned_;
      field_ = {scanned_, scanned_, false};
      if (c == '\n') return true;
      continue;
    } else if (state_ == State::FieldBegins) {
      state_ = c == '"' ? State::Quoted : State::Plain;
    } else if (state_ == State::QuotationEnds && c == '"') {
      field_.HasDoubledMarks = true;
      state_ = State::Quoted;
    } else if (state_ == State::QuotationEnds && c != '\r') {
      fault_ = RecordFault::TextBehindQuotation;
      return false;
    }
    ++scanned_;
  }
  return false;
}

void RecordReader::EndField(std::size_t end, bool ofLine) {
  const std::string_view text = input_.Text();
  if (ofLine && end > field_.Begin && text[end - 1] == '\r') --end;
  if (state_ == State::QuotationEnds) {
    ++field_.Begin;
    --end;
    if (text[end] != '"') fault_ = RecordFault::TextBehindQuotation;
  }
  field_.End = end;
  found_.push_back(field_);
}

/// Skips the first line of the record; the next record begins after it.
bool RecordReader::Refuse(RecordFault fault) {
  fault_ = fault;
  found_.clear();
  std::size_t end = input_.Text().find('\n');
  while (end == std::string_view::npos) {
    input_.Skip(input_.Text().size());
    if (!input_.Fill()) break;
    end = input_.Text().find('\n');
  }
  scanned_ = end == std::string_view::npos ? 0 : end + 1;
  lines_ = 1;
  return true;
}

void RecordReader::RestartAtSecondLine() {
  if (lines_ > 1) Refuse(fault_);
}

void RecordReader::TakeFields() {
  unescaped_.clear();
  unescaped_.reserve(scanned_);  // so that it is not moved
  for (const Field& field : found_) {
    const std::string_view text = input_.Text().substr(field.Begin, field.End - field.Begin);
    if (!field.HasDoubledMarks) {
      fields_.push_back(text);
      continue;
    }
    const std::size_t begin = unescaped_.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
      unescaped_ += text[i];
      if (text[i] == '"') ++i;
    }
    fields_.push_back(std::string_view(unescaped_).substr(begin));
  }
}

}  // namespace qismora::divide
