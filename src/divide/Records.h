#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "divide/Streams.h"

namespace qismora::divide {

/// What can be wrong with a record, whatever its fields hold.
enum class RecordFault { None, TextBehindQuotation, OpenQuotation, TooLong, NotUtf8 };
std::string_view English(RecordFault fault);

/// Reads a table by records as RFC 4180 has them: fields between separators, in quotation marks where they
/// hold separators, line breaks or doubled quotation marks; lines end in LF or CRLF. Records whose fields are
/// all blank are skipped: spreadsheets write them below their tables. The memory that it takes does not grow
/// with the table. A record with a wrong quotation is a fault of its first line alone: the reading goes on
/// with the next line.
class RecordReader {
 public:
  RecordReader(Window& window, char separator) : window_(window), separator_(separator) {}

  /// A longer record is a fault.
  static constexpr std::size_t MostBytes = 65536;

  /// Goes to the next record; false at the end.
  bool Next();
  /// For a record that cannot be right: if it has several lines, a quotation mark may have opened that should
  /// not, and the next record begins with its second line.
  void Distrust();
  /// Hold until the next call of either. A record with a fault has none.
  const std::vector<std::string_view>& Fields() const { return fields_; }
  RecordFault Fault() const { return fault_; }
  /// The line that the record begins in, from 1.
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

  Window& window_;
  char separator_;
  // The record in work: offsets from the begin of the window.
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
