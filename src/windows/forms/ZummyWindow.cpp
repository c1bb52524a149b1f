#include "windows/forms/ZummyWindow.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include "shell/Documents.h"
#include "windows/forms/Sizes.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/Keyboard.h"

namespace qismora {

namespace {

constexpr QSize leastButton{170, 34};

}  // namespace

ZummyWindow::ZummyWindow(CaseRecord& record, ShellRecord& shell, ShellPorts& ports)
    : FormHolder(record, shell, ports) {
  setObjectName(QStringLiteral("Zummy"));
  setAccessibleName(QStringLiteral("Documents"));
  setWindowTitle(ToQt(ZummyTitle));
  form_.Hide = [this] { hide(); };
  QAction* back = menuBar()->addAction(QStringLiteral("&Back"));
  back->setObjectName(QStringLiteral("Back"));
  back->setShortcut(Qt::Key_Escape);
  connect(back, &QAction::triggered, this, [this] { form_.Back_Click(); });
  auto* background = new QWidget(this);
  auto* columns = new QHBoxLayout(background);
  columns->setSpacing(formGap);
  columns->addWidget(Buttons());
  columns->addWidget(Holders(), 1);
  setCentralWidget(background);
  OpenToKeyboard(this);
}

QWidget* ZummyWindow::Buttons() {
  auto* place = new QWidget(this);
  auto* rows = new QVBoxLayout(place);
  rows->setContentsMargins(0, 0, 0, 0);
  for (const ZummyButton& row : ZummyButtons) {
    auto* button = new QPushButton(ToQt(row.Caption), place);
    button->setObjectName(QString::fromLatin1(row.Name));
    button->setAccessibleName(button->text());
    button->setMinimumSize(leastButton);
    button->setAutoDefault(true);  // Return presses it, as Space does
    connect(button, &QPushButton::clicked, this, [this, click = row.Click] { (form_.*click)(); });
    rows->addWidget(button);
  }
  return place;
}

QWidget* ZummyWindow::Holders() {
  auto* place = new QGroupBox(QStringLiteral("Documents"), this);
  place->setAccessibleName(QStringLiteral("Documents"));
  auto* rows = new QVBoxLayout(place);
  for (const Document& document : Documents) {
    auto* holder = new QLabel(ToQt(document.FileName), place);
    holder->setObjectName(QStringLiteral("OLE%1").arg(document.Number));
    holder->setAccessibleName(ToQt(document.Title));
    holder->setTextFormat(Qt::PlainText);
    holder->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    holder->setMargin(formGap / 2);
    rows->addWidget(holder);
  }
  return place;
}

void ZummyWindow::closeEvent(QCloseEvent* event) {
  form_.Form_QueryUnload();
  event->setAccepted(form_.Ended());
}

}  // namespace qismora
