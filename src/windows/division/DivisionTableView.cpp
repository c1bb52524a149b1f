#include "windows/division/DivisionTableView.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "windows/style/Colours.h"

namespace qismora {

namespace {

using faraid::Kind;

constexpr int cellMargin = 5;
/// The swatch beside a name.
constexpr int besideName = 25;
/// A sentence has at least this width, or in a narrow window the second, before the table scrolls sideways.
constexpr int leastSentence = 165;
constexpr int leastInNarrowWindow = 120;
constexpr int leastTableHeight = 110;

/// Lines between the rows, a stronger one above the sum, and a stripe where something differs.
class RowDelegate : public QStyledItemDelegate {
 public:
  RowDelegate(const DivisionModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationAlignment = Qt::AlignTop | Qt::AlignHCenter;
    option->textElideMode = Qt::ElideNone;
    // The whole row is marked; the frame of the current cell would make its text paler.
    option->state &= ~QStyle::State_HasFocus;
    option->rect.adjust(0, cellMargin, 0, 0);
    const bool rightToLeft = option->direction == Qt::RightToLeft;
    if (index.column() == 0 || index.column() == model_.Table().FirstSentence)
      option->rect.adjust(rightToLeft ? 0 : cellMargin, 0, rightToLeft ? -cellMargin : 0, 0);
  }
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const DivisionTable::Row& row = model_.Table().Rows[index.row()];
    const QPalette& palette = option.palette;
    const QVariant background = index.data(Qt::BackgroundRole);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (selected) {
      painter->fillRect(option.rect, palette.highlight());
    } else if (background.isValid()) {
      painter->fillRect(option.rect, background.value<QColor>());
    }
    QStyledItemDelegate::paint(painter, option, index);
    const bool sum = row.Where == DivisionTable::Place::Sum;
    const QColor text = palette.color(QPalette::Text);
    const QColor line = Between(palette.color(QPalette::Base), text, sum ? 0.7 : 0.2);
    if (sum) painter->fillRect(option.rect.left(), option.rect.top(), option.rect.width(), 2, line);
    painter->fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, line);
    if (row.Differs && index.column() == 0) {
      const bool rightToLeft = option.direction == Qt::RightToLeft;
      const int x = rightToLeft ? option.rect.right() - 3 : option.rect.left();
      painter->fillRect(x, option.rect.top(), 4, option.rect.height() - 1,
                        IsBlackAndWhite(palette) ? text : Readable(Amber, palette.color(QPalette::Base), 3));
    }
  }

 private:
  const DivisionModel& model_;
};

// A figure that comes in two parts, such as 33.33 or 33.34, stands in two lines.
int WidthOf(const QString& cell, const TextRuler& font, bool figures) {
  if (!figures) return font.Width(cell);
  int width = 0;
  for (const QString& line : cell.split(QLatin1Char('\n'))) width = std::max(width, font.Width(line));
  return width;
}

/// The width that a name needs when it is wrapped, in about two lines.
int WidthOfWrapped(const QString& name, const TextRuler& font) {
  int width = font.Width(name) / 2;
  for (const QString& word : name.split(QLatin1Char(' '))) width = std::max(width, font.Width(word));
  return width;
}

/// A heading that is wider than the figures below it, in two lines.
QString InTwoLines(QString heading, int width, const TextRuler& font) {
  const auto blank = heading.lastIndexOf(QLatin1Char(' '));
  if (blank > 0 && font.Width(heading) > width) heading[blank] = QLatin1Char('\n');
  return heading;
}

int LinesOf(const QString& cell) { return static_cast<int>(cell.count(QLatin1Char('\n'))) + 1; }

}  // namespace

DivisionTableView::DivisionTableView(QWidget* parent) : QTableView(parent), model_(new DivisionModel(this)) {
  setObjectName(QStringLiteral("DivisionTable"));
  setModel(model_);
  setItemDelegate(new RowDelegate(*model_, this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setShowGrid(false);
  setWordWrap(true);
  setTabKeyNavigation(false);
  setMinimumHeight(leastTableHeight);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setMinimumSectionSize(1);  // or it would be the widest letter of the font
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  connect(this, &QAbstractItemView::activated, this, [this] {
    if (ChosenHeir() != Kind::Remainder) Activated(ChosenHeir());
  });
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { RowChosen(); });
}

void DivisionTableView::Show(DivisionTable table) {
  const Kind heir = ChosenHeir();
  model_->Show(std::move(table));
  if (heir != Kind::Remainder && ChosenHeir() != heir) Choose(heir);
  Fit();
}

const TextRuler& DivisionTableView::RulerOf(const DivisionTable::Row& row) const {
  return row.Where == DivisionTable::Place::Sum ? bold_ : ruler_;
}

void DivisionTableView::SetTextFont(const QFont& font) {
  setFont(font);
  QFont bold = this->font();
  bold.setBold(true);
  ruler_ = TextRuler(this->font());
  bold_ = TextRuler(bold);
  model_->SetFont(font);
}

Kind DivisionTableView::ChosenHeir() const {
  const QModelIndex current = currentIndex();
  const auto& rows = model_->Table().Rows;
  return current.isValid() && current.row() < rows.size() ? rows[current.row()].Heir : Kind::Remainder;
}

// Qt's selectRow finds no column where the table runs from right to left.
void DivisionTableView::ChooseRow(int row) {
  setCurrentIndex(model_->index(row, 0));
  selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void DivisionTableView::Choose(Kind heir) {
  const auto& rows = model_->Table().Rows;
  for (int row = 0; row < rows.size(); ++row) {
    if (rows[row].Heir == heir && rows[row].Where != DivisionTable::Place::Sum) ChooseRow(row);
  }
}

int DivisionTableView::FullHeight() const { return HeightOfRows(false); }

int DivisionTableView::HeightOfTakers() const { return HeightOfRows(true); }

// The scroll bar takes width from the sentences.
int DivisionTableView::HeightOfRows(bool takersAlone) const {
  const bool scrolls = takersAlone && !model_->Table().Rows.isEmpty() &&
                       model_->Table().Rows.back().Where == DivisionTable::Place::Other;
  const int across = width() - 2 * frameWidth() - (scrolls ? verticalScrollBar()->sizeHint().width() : 0);
  const Columns columns = ColumnsIn(across);
  int height = HeightOfHeadings(columns) + 2 * frameWidth() + 1;
  for (const DivisionTable::Row& row : model_->Table().Rows) {
    if (takersAlone && row.Where == DivisionTable::Place::Other) continue;
    height += HeightOf(row, columns);
  }
  return columns.Sum > across ? height + horizontalScrollBar()->sizeHint().height() : height;
}

DivisionTableView::Columns DivisionTableView::NeededColumns(bool tight) const {
  const DivisionTable& table = model_->Table();
  Columns columns = {table.Headings, {}, 0};
  for (int column = 0; column < table.FirstSentence; ++column) {
    const bool name = column == 0;
    int width = 0;
    for (const DivisionTable::Row& row : table.Rows) {
      const TextRuler& font = RulerOf(row);
      const QString& cell = row.Cells[column];
      width = std::max(
          width, tight && name ? WidthOfWrapped(cell, font) : WidthOf(cell, font, table.Figures[column]));
    }
    QString& heading = columns.Headings[column];
    if (tight && !name) heading = InTwoLines(heading, width, bold_);
    width = std::max(width, WidthOf(heading, bold_, true));
    width += (tight ? 2 : 3) * cellMargin + (name ? besideName : 0);
    columns.Widths.append(width);
    columns.Sum += width;
  }
  return columns;
}

DivisionTableView::Columns DivisionTableView::ColumnsIn(int width) const {
  // The choice is the same with a scroll bar and without, since the bar depends on the height of the rows.
  const int least = this->width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
  Columns columns = NeededColumns(false);
  if (columns.Sum + leastSentence > least) columns = NeededColumns(true);
  const int room = width - columns.Sum;
  columns.Widths.append(least - columns.Sum >= leastInNarrowWindow ? room : std::max(leastSentence, room));
  columns.Sum += columns.Widths.back();
  return columns;
}

// Figures get the width that they need, and sentences what is left; a row is as high as its sentence.
void DivisionTableView::Fit() {
  const DivisionTable& table = model_->Table();
  if (table.Headings.isEmpty()) return;
  // A scroll bar that is no longer needed would keep the sentences so narrow that they need it.
  const bool scrolls = FullHeight() > height();
  Columns columns = ColumnsIn(scrolls ? viewport()->width() : width() - 2 * frameWidth());
  // It would touch the heading of the last figures.
  columns.Headings.back().prepend(QChar(QChar::Nbsp));
  model_->SetHeadings(columns.Headings);
  if (horizontalHeader()->minimumHeight() != HeightOfHeadings(columns)) {
    horizontalHeader()->setFixedHeight(HeightOfHeadings(columns));
    updateGeometries();
  }
  for (int column = 0; column < columns.Widths.size(); ++column)
    setColumnWidth(column, columns.Widths[column]);
  for (int row = 0; row < table.Rows.size(); ++row) setRowHeight(row, HeightOf(table.Rows[row], columns));
}

int DivisionTableView::HeightOfHeadings(const Columns& columns) const {
  QFont bold = horizontalHeader()->font();
  bold.setBold(true);  // which Qt leaves space for
  int height = 0;
  for (const QString& heading : columns.Headings)
    height = std::max(height, QFontMetrics(bold).size(0, heading).height());
  return height + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, horizontalHeader());
}

// What Qt leaves free at both sides of the text of a cell.
int DivisionTableView::TextMargins() const {
  return 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
}

int DivisionTableView::HeightOf(const DivisionTable::Row& row, const Columns& columns) const {
  const TextRuler& ruler = RulerOf(row);
  const int last = model_->Table().FirstSentence;
  const int line = ruler.Height(1);
  int height = line;
  for (int column = 1; column < last; ++column) height = std::max(height, line * LinesOf(row.Cells[column]));
  const auto wrapped = [&](int column, int beside) {
    const QString& cell = row.Cells[column];
    const int width = columns.Widths[column] - beside;
    if (LinesOf(cell) == 1 && ruler.Width(cell) <= width) return line;
    const QRectF place(0, 0, width, QWIDGETSIZE_MAX);
    return static_cast<int>(
        std::ceil(ruler.Metrics().boundingRect(place, int(Qt::TextWordWrap), cell).height()));
  };
  height =
      std::max({height, wrapped(0, besideName + 2 * cellMargin), wrapped(last, cellMargin + TextMargins())});
  return height + 2 * cellMargin;
}

// Qt makes the first row the current one without selecting it.
void DivisionTableView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (currentIndex().isValid() && !selectionModel()->hasSelection()) ChooseRow(currentIndex().row());
}

void DivisionTableView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete && ChosenHeir() != Kind::Remainder) return Deleted(ChosenHeir());
  QTableView::keyPressEvent(event);
}

void DivisionTableView::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const QPoint place = byKey ? visualRect(currentIndex()).center() : event->pos();
  const QModelIndex index = indexAt(place);
  if (index.isValid()) ChooseRow(index.row());
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setFont(font());
  FillMenu(menu);
  if (menu->isEmpty()) return menu->deleteLater();
  menu->popup(viewport()->mapToGlobal(place));
}

void DivisionTableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  Fit();
}

}  // namespace qismora
