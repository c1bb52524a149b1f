#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Numbers.h"
#include "base/Ports.h"
#include "case/Controls.h"

namespace qismora {

/// A grid of four columns. Row 0 is fixed and holds the headings.
struct Grid {
  using Line = std::array<std::string, 4>;

  std::vector<Line> Rows;
  /// The current cell.
  int Row = 0;
  int Col = 0;
  /// Called after the rows have been filled.
  std::function<void()> Filled;
};

/// The session log as a table, without its window.
class Session {
 public:
  explicit Session(ShellPorts& ports);

  /// Reads the log and fills the form, each time it is opened.
  void Open();

  /// A click in a row of the grid.
  void MSFlexGrid1_Click(int row, int col);
  void Form_MouseMove();
  void Image1_MouseMove();

  Label Label1;
  Grid MSFlexGrid1;
  /// The selected line.
  Label Label2;
  /// The total of all sessions.
  Label Label3;
  Label Label4;
  Array<Picture, 1> Image1;

  Long TotalSeconds;

 private:
  void FillGrid();
  void TotalTime();

  ShellPorts& ports_;
};

/// A column of the grid: its heading, the text from which its width is measured, and the unit in its first
/// row.
struct SessionColumn {
  const char* Heading;
  const char* Width;
  const char* Unit;
};
inline constexpr std::array<SessionColumn, 4> SessionColumns = {{
    {"Session", "ZZZZZZ", "Number"},
    {"Start of Session", "ZZZZZZZZZZZZZZZZZZ", "Date & Time"},
    {"End of Session", "ZZZZZZZZZZZZZZZZZZ", "Date & Time"},
    {"Session Length", "ZZZZZZZZZZZZZ", "Seconds"},
}};

}  // namespace qismora
