#include "windows/forms/ProgramInfoWindow.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "windows/forms/Sizes.h"
#include "windows/platform/Utf8.h"
#include "windows/style/Fonts.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr QSize iconSize{96, 96};
constexpr int textWidth = 340;

void AddRow(QFormLayout* rows, const QString& heading, const QString& text) {
  auto* label = new QLabel(text, rows->parentWidget());
  label->setObjectName(heading);
  label->setAccessibleName(heading + QStringLiteral(": ") + text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(textWidth);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* caption = new QLabel(heading, rows->parentWidget());
  caption->setFont(HeadingFont(caption->font(), QFontInfo(caption->font()).pixelSize()));
  caption->setAlignment(Qt::AlignTop);
  caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  rows->addRow(caption, label);
}

}  // namespace

ProgramInfoWindow::ProgramInfoWindow(const ProgramFacts& facts, MemoryMeter& memory, QWidget* parent)
    : QDialog(parent), form_(facts, memory) {
  setObjectName(QStringLiteral("prginfo"));
  setAccessibleName(QStringLiteral("About this program"));
  setWindowTitle(QStringLiteral("About Qismora"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* icon = new PictureLabel(QStringLiteral("Icon"), QStringLiteral("icon"),
                                QStringLiteral("Icon of the program"), this);
  icon->setFixedSize(iconSize);

  auto* table = new QWidget(this);
  auto* rows = new QFormLayout(table);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setVerticalSpacing(formGap / 2);
  rows->setHorizontalSpacing(formGap);
  for (const InfoRow& row : form_.Rows) AddRow(rows, ToQt(row.Heading), ToQt(row.Text));
  AddRow(rows, QStringLiteral("Memory of the machine"), ToQt(form_.TotalMemory.Get()));
  AddRow(rows, QStringLiteral("Free memory"), ToQt(form_.FreeMemory.Get()));
  AddRow(rows, QStringLiteral("Used by this program"), ToQt(form_.UsedMemory.Get()));

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setAccessibleName(QStringLiteral("Close"));
  connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(2 * formGap);
  middle->addWidget(icon, 0, Qt::AlignTop);
  middle->addWidget(table, 1);
  auto* all = new QVBoxLayout(this);
  all->setSpacing(formGap);
  all->addLayout(middle);
  all->addWidget(buttons);
  all->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace qismora
