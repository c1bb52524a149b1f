#include "screens/Session.h"

#include "base/Text.h"
#include "screens/Event.h"
#include "shell/SessionLog.h"

namespace qismora {

namespace {

/// The cells of a line with five blanks between them.
std::string Joined(const Grid::Line& cells) {
  constexpr const char* gap = "     ";
  return Join(cells[0], gap, cells[1], gap, cells[2], gap, cells[3]);
}

Grid::Line Cells(const SessionRow& row) { return {Join(row.Number), row.Start, row.End, Join(row.Length)}; }

}  // namespace

Session::Session(ShellPorts& ports) : ports_(ports) {
  Label1.Caption = "Logged Sessions of Qismora";
  Label3.Caption = "TOTAL TIME";
  Label4.Caption = "Selected...";
  Image1(0).Visible = true;
}

void Session::Open() {
  GuardedEvent(ports_.Boxes, [&] {
    try {
      TotalSeconds = Long(0);
      FillGrid();
      TotalTime();
    } catch (const Failure& failure) {
      ports_.Boxes.Inform(BoxStyle::Plain, Join("Error ", failure.Number, CRLF, failure.Description()));
    }
  });
}

// The newest session comes first, and the last row is empty. Until a row is selected, Label2 shows the number
// of the newest session with the times of the oldest. This is required behaviour.
void Session::FillGrid() {
  SessionTable table = ReadSessionLog(ports_);
  TotalSeconds = table.TotalSeconds;
  Grid& grid = MSFlexGrid1;
  grid.Rows.assign(static_cast<std::size_t>(table.Count) + 3, {});
  for (std::size_t column = 0; column < SessionColumns.size(); ++column) {
    grid.Rows[0][column] = SessionColumns[column].Heading;
    grid.Rows[1][column] = SessionColumns[column].Unit;
  }
  for (std::size_t i = 1; i < table.Rows.size(); ++i)
    grid.Rows[table.Rows.size() + 1 - i] = Cells(table.Rows[i]);
  grid.Row = 2;
  grid.Col = 1;

  const Integer newest = table.Rows.back().Number;
  Grid::Line mixed = Cells(table.Count > 0 ? table.Rows[1] : SessionRow());
  mixed[0] = Join(newest);
  Label2.Caption = Joined(mixed);
  if (grid.Filled) grid.Filled();
}

void Session::TotalTime() { Label3.Caption = TotalTimeText(TotalSeconds); }

void Session::MSFlexGrid1_Click(int row, int col) {
  GuardedEvent(ports_.Boxes, [&] {
    if (row < 0 || row >= static_cast<int>(MSFlexGrid1.Rows.size())) throw Failure(SubscriptOutOfRange);
    MSFlexGrid1.Row = row;
    MSFlexGrid1.Col = col;
    Label2.Caption = Joined(MSFlexGrid1.Rows[static_cast<std::size_t>(row)]);
  });
}

// The second picture is shown while the mouse is over the form, and hidden while it is over the picture.
void Session::Form_MouseMove() { Image1(1).Visible = true; }
void Session::Image1_MouseMove() { Image1(1).Visible = false; }

}  // namespace qismora
