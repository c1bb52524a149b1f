#pragma once

#include <QTableView>
#include <functional>

#include "windows/division/DivisionTable.h"
#include "windows/division/TextRuler.h"

namespace qismora {

/// The table of who receives what: an heir a row, each as high as the reason.
class DivisionTableView : public QTableView {
 public:
  explicit DivisionTableView(QWidget* parent);

  /// Shows a table; the chosen heir stays chosen.
  void Show(DivisionTable table);
  void SetTextFont(const QFont& font);
  /// Paints the swatches again: with other colours, or at another scale.
  void ForgetSwatches() { model_->ForgetSwatches(); }

  /// The remainder where no heir is chosen.
  faraid::Kind ChosenHeir() const;
  void Choose(faraid::Kind heir);
  /// How high it is when nothing of it scrolls.
  int FullHeight() const;
  /// How high it is when all that is seen of it is those who take and their sum.
  int HeightOfTakers() const;

  /// Called when another row was chosen.
  std::function<void()> RowChosen;
  /// Called for Return or a double click on an heir.
  std::function<void(faraid::Kind)> Activated;
  /// Called for the Delete key on an heir.
  std::function<void(faraid::Kind)> Deleted;
  /// Called to add entries to the context menu, which is shown if it has any.
  std::function<void(QMenu*)> FillMenu;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ChooseRow(int row);
  /// Headings and widths; the sentences have what the others leave.
  struct Columns {
    QStringList Headings;
    QList<int> Widths;
    int Sum = 0;
  };
  /// What the columns need: with some space around the figures, or with as little as can be, long headings in
  /// two lines and names wrapped.
  Columns NeededColumns(bool tight) const;
  Columns ColumnsIn(int width) const;
  void Fit();
  int HeightOf(const DivisionTable::Row& row, const Columns& columns) const;
  int TextMargins() const;
  int HeightOfHeadings(const Columns& columns) const;
  int HeightOfRows(bool takersAlone) const;

  /// The ruler of a row.
  const TextRuler& RulerOf(const DivisionTable::Row& row) const;

  DivisionModel* model_;
  TextRuler ruler_;
  TextRuler bold_;
};

}  // namespace qismora
