#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "divide/Streams.h"

namespace qismora::divide {

/// What can be wrong with a record, apart from the contents of its fields.
enum class RecordFault { None, TextBehindQuotation, OpenQuotation, TooLong, NotUtf8 };
std::string_view English(RecordFault fault);

/// Reads the records of a table (RFC 4180). Fields with separators, line breaks or doubled quotation marks
/// are in quotation marks; lines end in LF or CRLF. Records with blank fields alone are skipped, because
/// spreadsheets write them below their tables. The memory does not grow with the table. A record with a wrong
/// quotation is a fault of its first line alone; reading continues with the next line.
class RecordReader {
 public:
  RecordReader(InputBuffer& input, char separator) : input_(input), separator_(separator) {}

  /// The longest record; a longer one is a fault.
  static constexpr std::size_t MostBytes = 65536;

  /// Goes to the next record; false at the end.
  bool Next();
  /// Called if a record has the wrong number of fields. If it has several lines, a stray quotation mark may
  /// have joined them, so the next record starts at its second line.
  void RestartAtSecondLine();
  /// The fields, valid until the next call of Next or RestartAtSecondLine. A record with a fault has none.
  const std::vector<std::string_view>& Fields() const { return fields_; }
  RecordFault Fault() const { return fault_; }
  /// The line in which the record begins, from 1.
  std::int64_t Line() const { return line_; }

 private:
  enum class State : std::uint8_t { FieldBegins, Plain, Quoted, QuotationEnds };
  struct Field {
    std::size_t Begin;
    std::size_t End;
    bool HasDoubledMarks;
  };

  bool ReadRecord();
  bool Scan();
  void EndField(std::size_t end, bool ofLine);
  bool Refuse(RecordFault fault);
  void TakeFields();

  InputBuffer& input_;
  char separator_;
  // The current record, as offsets in the input buffer.
  State state_ = State::FieldBegins;
  Field field_{};
  std::vector<Field> found_;
  std::size_t scanned_ = 0;
  std::int64_t lines_ = 0;

  std::vector<std::string_view> fields_;
  std::string unescaped_;
  RecordFault fault_ = RecordFault::None;
  std::int64_t line_ = 1;
};

}  // namespace qismora::divide
