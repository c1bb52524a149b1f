#include "windows/casestudy/ClassIIPanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QMouseEvent>
#include <QStyle>

#include "windows/platform/Utf8.h"
#include "windows/widgets/Names.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr int classIIColumns = 3;
constexpr int rows = 4;
// The frame of the focus reaches out of a caption; the indicator shows the focus of a covered one.
constexpr int focusMargin = 4;

}  // namespace

/// The captions of a column as one picture. A click on a line ticks its check box, as one on a plain caption
/// does. A double click explains the column, and undoes the tick of its first click.
class ClassIIPanel::ColumnCaptions : public PictureButton {
 public:
  ColumnCaptions(const QString& name, const QString& file, const Checks& checks, int column, QWidget* parent)
      : PictureButton(name, file, Colours::OfText, Gesture::DoubleClick,
                      QStringLiteral("Explain class II residuaries"), parent),
        checks_(checks),
        column_(column) {
    SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setAccessibleName(QStringLiteral("Who inherits among class II"));
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    clicked_ = CheckAt(event->position().toPoint());
    if (clicked_ != nullptr) clicked_->toggle();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (clicked_ != nullptr && clicked_ == CheckAt(event->position().toPoint())) clicked_->toggle();
    clicked_ = nullptr;
    PictureButton::mouseDoubleClickEvent(event);
  }

 private:
  // None beside the captions.
  QCheckBox* CheckAt(const QPoint& place) const {
    if (!PictureRect().contains(place)) return nullptr;
    const int index = place.y() * rows / height() * classIIColumns + column_;
    return checks_[static_cast<std::size_t>(index)];
  }

  const Checks& checks_;
  int column_;
  QCheckBox* clicked_ = nullptr;
};

ClassIIPanel::ClassIIPanel(CaseStudy& form, Binder& binder, QWidget* parent)
    : QGroupBox(QStringLiteral(
                    "Class II residuaries, in order of succession from left to right and from top to bottom"),
                parent),
      form_(form),
      binder_(binder),
      grid_(new QGridLayout(this)) {
  setObjectName(QStringLiteral("Frame3"));
  setAccessibleName(QStringLiteral("Class II residuaries"));
  grid_->setContentsMargins(8, 1, 8, 2);
  grid_->setHorizontalSpacing(12);
  grid_->setVerticalSpacing(0);
  AddChecks();
  for (int column = 0; column < classIIColumns; ++column) {
    grid_->setColumnStretch(column, 1);
    AddCover(column, Indexed("Frame4", column), form_.Frame4(column).Visible, column,
             QStringLiteral("captions/urdu-classII-%1").arg(column));
    AddCover(column, Indexed("Frame6", column), form_.Frame6(column).Visible, column + classIIColumns,
             QStringLiteral("captions/arabic-classII-%1").arg(column));
  }
}

void ClassIIPanel::AddChecks() {
  for (int i = 0; i < classIIColumns * rows; ++i) {
    auto* check = new QCheckBox(this);
    check->setObjectName(Indexed("Check1", i));
    check->setAccessibleName(ToQt(form_.Check1(i).Caption.Get()).simplified());
    binder_.Check(form_.Check1(i), check);
    grid_->addWidget(check, i / classIIColumns, i % classIIColumns);
    checks_[static_cast<std::size_t>(i)] = check;
  }
}

// The panel covers the captions and takes the mouse from them.
void ClassIIPanel::AddCover(int column, const QString& frameName, Property<bool>& visible, int image,
                            const QString& file) {
  auto* frame = new QFrame(this);
  frame->setObjectName(frameName);
  frame->setAccessibleName(QStringLiteral("Captions of class II, column %1").arg(column + 1));
  frame->setAutoFillBackground(true);
  auto* picture = new ColumnCaptions(Indexed("Image37", image), file, checks_, column, frame);
  connect(picture, &QAbstractButton::clicked, this, [this, image] { form_.Image37_DblClick(image); });
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

}  // namespace qismora
