#include "windows/casestudy/ClassIIPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QStyle>

#include "windows/platform/Utf8.h"
#include "windows/widgets/Names.h"

namespace qismora {

namespace {

constexpr int columns = 3;
constexpr int rows = 4;
// The frame of the focus reaches out of a caption; the small box shows the focus of a covered one.
constexpr int focusMargin = 4;

}  // namespace

ClassIIPanel::ClassIIPanel(CaseStudy& form, Binder& binder, QWidget* parent)
    : QGroupBox(tr("Class II residuaries, in order of succession from left to right and from top to bottom"),
                parent),
      form_(form),
      binder_(binder),
      grid_(new QGridLayout(this)) {
  setObjectName(QStringLiteral("Frame3"));
  setAccessibleName(tr("Class II residuaries"));
  grid_->setContentsMargins(8, 2, 8, 4);
  grid_->setHorizontalSpacing(12);
  grid_->setVerticalSpacing(1);
  AddChecks();
  for (int column = 0; column < columns; ++column) {
    grid_->setColumnStretch(column, 1);
    AddCover(column, Indexed("Frame4", column), form_.Frame4(column).Visible, column,
             QStringLiteral("captions/urdu-classII-%1").arg(column));
    AddCover(column, Indexed("Frame6", column), form_.Frame6(column).Visible, column + columns,
             QStringLiteral("captions/arabic-classII-%1").arg(column));
  }
}

void ClassIIPanel::AddChecks() {
  for (int i = 0; i < columns * rows; ++i) {
    auto* check = new QCheckBox(this);
    check->setObjectName(Indexed("Check1", i));
    check->setAccessibleName(ToQt(form_.Check1(i).Caption.Get()).simplified());
    binder_.Check(form_.Check1(i), check);
    grid_->addWidget(check, i / columns, i % columns);
    checks_[static_cast<std::size_t>(i)] = check;
  }
}

// A panel with a picture covers the captions; without one it cannot be seen, so that they are read. It takes
// the mouse all the same.
void ClassIIPanel::AddCover(int column, const QString& frameName, Property<bool>& visible, int image,
                            const QString& file) {
  auto* frame = new QFrame(this);
  frame->setObjectName(frameName);
  frame->setAccessibleName(tr("Captions of class II, column %1").arg(column + 1));
  auto* picture = new PictureLabel(Indexed("Image37", image), file, Ink::Text, frame);
  picture->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  picture->setAccessibleName(tr("Who inherits among class II"));
  picture->ActOn(Gesture::DoubleClick, tr("Explain class II residuaries"),
                 [this, image] { form_.Image37_DblClick(image); });
  // A click on a line ticks its box, as one on a caption does. A double click is a question, and takes the
  // tick of its first half back.
  picture->Pressed = [this, picture, column](const QPoint& place) {
    clicked_ = CheckAt(*picture, column, place);
    if (clicked_ != nullptr) clicked_->toggle();
  };
  picture->PressedAgain = [this, picture, column](const QPoint& place) {
    if (clicked_ != nullptr && clicked_ == CheckAt(*picture, column, place)) clicked_->toggle();
    clicked_ = nullptr;
  };
  frame->setAutoFillBackground(picture->HasPicture());
  auto* inside = new QHBoxLayout(frame);
  inside->setContentsMargins(focusMargin, 0, 0, 0);
  inside->addWidget(picture);
  auto* beside = new QHBoxLayout;
  beside->addSpacing(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing) - focusMargin);
  beside->addWidget(frame);
  grid_->addLayout(beside, 0, column, rows, 1);
  binder_.Visible(visible, frame);
}

// The box whose caption is drawn there; none beside the captions.
QCheckBox* ClassIIPanel::CheckAt(const PictureLabel& picture, int column, const QPoint& place) const {
  if (picture.HasPicture() && !picture.PictureRect().contains(place)) return nullptr;
  const int index = place.y() * rows / qMax(1, picture.height()) * columns + column;
  return checks_[static_cast<std::size_t>(index)];
}

}  // namespace qismora
