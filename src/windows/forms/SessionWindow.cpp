#include "windows/forms/SessionWindow.h"

#include <QAction>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableWidget>

#include "windows/forms/Sizes.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Fonts.h"
#include "windows/widgets/HoverFilter.h"
#include "windows/widgets/Names.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr QSize pictureSize{40, 40};
constexpr int headingSize = 18;
constexpr int cellMargin = 12;
constexpr int shownRows = 14;

}  // namespace

SessionWindow::SessionWindow(ShellPorts& ports) : FormHolder(ports) {
  setObjectName(QStringLiteral("Session"));
  setAccessibleName(QStringLiteral("Session log"));
  setWindowTitle(QStringLiteral("Logged Sessions of Qismora"));
  auto* leave = new QAction(this);
  leave->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
  connect(leave, &QAction::triggered, this, &QWidget::close);
  addAction(leave);

  auto* background = new QWidget(this);
  setCentralWidget(background);
  auto* rows = new QVBoxLayout(background);
  rows->setSpacing(formGap);
  rows->addWidget(Head());
  grid_ = MakeGrid();
  rows->addWidget(grid_, 1);
  rows->addWidget(Selected());
  rows->addWidget(Total());
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const int grid = grid_->verticalHeader()->defaultSectionSize() * shownRows;
  const QSize wanted = sizeHint() + QSize(0, grid - grid_->sizeHint().height());
  resize(wanted.boundedTo(screen()->availableSize() - QSize(0, title)));
  form_.MSFlexGrid1.Filled = [this] { FillGrid(); };
  for (QWidget* widget : {background, static_cast<QWidget*>(this)}) {
    WhenMouseMoves(widget, [this] { form_.Form_MouseMove(); });
  }
}

QWidget* SessionWindow::Head() {
  auto* head = new QWidget(this);
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  auto* place = new QWidget(head);
  place->setFixedSize(pictureSize);
  for (int i = 0; i < 2; ++i) {
    const QString file = QStringLiteral("session-%1").arg(i);
    auto* picture = new PictureLabel(Indexed("Image1", i), file, QStringLiteral("Ornament"), place);
    picture->setFixedSize(pictureSize);
    WhenMouseMoves(picture, [this] { form_.Image1_MouseMove(); });
    binder_.Visible(form_.Image1(i).Visible, picture);
  }
  auto* heading = new QLabel(head);
  heading->setObjectName(QStringLiteral("Label1"));
  heading->setFont(HeadingFont(font(), headingSize));
  Binder::Caption(form_.Label1, heading);
  row->addWidget(place);
  row->addWidget(heading, 1);
  return head;
}

QTableWidget* SessionWindow::MakeGrid() {
  auto* grid = new QTableWidget(0, static_cast<int>(SessionColumns.size()), this);
  grid->setObjectName(QStringLiteral("MSFlexGrid1"));
  grid->setAccessibleName(QStringLiteral("Sessions, the newest first"));
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setSelectionMode(QAbstractItemView::SingleSelection);
  grid->setTabKeyNavigation(false);
  grid->verticalHeader()->hide();
  grid->horizontalHeader()->setSectionsClickable(false);
  int width = grid->verticalScrollBar()->sizeHint().width() + 2 * grid->frameWidth();
  for (int i = 0; i < grid->columnCount(); ++i) {
    const SessionColumn& column = SessionColumns[static_cast<std::size_t>(i)];
    grid->setHorizontalHeaderItem(i, new QTableWidgetItem(ToQt(column.Heading)));
    int text = 0;
    for (const char* words : {column.Width, column.Heading, column.Unit}) {
      text = qMax(text, fontMetrics().horizontalAdvance(ToQt(words)));
    }
    grid->setColumnWidth(i, text + cellMargin);
    width += grid->columnWidth(i);
  }
  grid->setMinimumWidth(width);
  connect(grid, &QTableWidget::currentCellChanged, this, [this](int row, int col) {
    if (row >= 0) form_.MSFlexGrid1_Click(row + 1, col);
  });
  connect(grid, &QTableWidget::cellClicked, this,
          [this](int row, int col) { form_.MSFlexGrid1_Click(row + 1, col); });
  return grid;
}

// Row 0 of the form's grid is the head of the table.
void SessionWindow::FillGrid() {
  const QSignalBlocker quiet(grid_);
  const Grid& grid = form_.MSFlexGrid1;
  grid_->clearContents();
  grid_->setRowCount(static_cast<int>(grid.Rows.size()) - 1);
  for (int row = 0; row < grid_->rowCount(); ++row) {
    const Grid::Line& cells = grid.Rows[static_cast<std::size_t>(row) + 1];
    for (int col = 0; col < grid_->columnCount(); ++col) {
      auto* item = new QTableWidgetItem(ToQt(cells[static_cast<std::size_t>(col)]).trimmed());
      item->setTextAlignment(Qt::AlignCenter);
      grid_->setItem(row, col, item);
    }
  }
  grid_->setCurrentCell(grid.Row - 1, grid.Col);
  grid_->scrollToTop();
}

QWidget* SessionWindow::Selected() {
  auto* place = new QWidget(this);
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  auto* caption = new QLabel(place);
  caption->setObjectName(QStringLiteral("Label4"));
  Binder::Caption(form_.Label4, caption);
  auto* line = new QLabel(place);
  line->setObjectName(QStringLiteral("Label2"));
  line->setAccessibleName(QStringLiteral("The selected session"));
  line->setTextFormat(Qt::PlainText);
  line->setTextInteractionFlags(Qt::TextSelectableByMouse);
  Binder::Result(form_.Label2, line);
  row->addWidget(caption);
  row->addWidget(line, 1);
  return place;
}

QWidget* SessionWindow::Total() {
  auto* total = new QLabel(this);
  total->setObjectName(QStringLiteral("Label3"));
  total->setFont(HeadingFont(font(), QFontInfo(font()).pixelSize()));
  total->setTextInteractionFlags(Qt::TextSelectableByMouse);
  Binder::Result(form_.Label3, total);
  return total;
}

}  // namespace qismora
