#include "windows/casestudy/TopStrip.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QWheelEvent>

#include "windows/casestudy/CaseField.h"
#include "windows/widgets/HoverFilter.h"
#include "windows/widgets/Names.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr QSize animationSize{26, 26};
constexpr QMargins focusMargins{1, 1, 1, 1};
constexpr QSize ornamentSize{24, 24};
constexpr QMargins viewMargins{4, 4, 4, 4};
constexpr QMargins countMargins{2, 2, 2, 2};

constexpr const char* viewNames[] = {"Urdu view", "English view", "Arabic view"};

/// A mouse wheel that turns while it passes over the list must not change the gender.
class GenderList : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) return QComboBox::wheelEvent(event);
    event->ignore();
  }
};

}  // namespace

TopStrip::TopStrip(CaseStudy& form, Binder& binder, QWidget* parent)
    : QWidget(parent), form_(form), binder_(binder) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  AddGender();
  row->addSpacing(8);
  AddName();
  row->addSpacing(8);
  row->addWidget(Views());
  row->addWidget(Executions());
  row->addSpacing(4);
  row->addWidget(Ornament("Image6", 0, form_.Image6, [this] { form_.Image6_MouseMove(); }));
  row->addWidget(Ornament("Image4", 0, form_.Image4, [this] { form_.Image4_MouseMove(); }));
  row->addWidget(Ornament("Image7", 1, form_.Image7, [this] { form_.Image7_MouseMove(); }));
  row->addWidget(Animation());
}

void TopStrip::AddGender() {
  auto* gender = new GenderList(this);
  gender->setFocusPolicy(Qt::StrongFocus);
  gender->setObjectName(QStringLiteral("Combo1"));
  gender->setAccessibleName(QStringLiteral("Gender of the deceased"));
  binder_.Choice(form_.Combo1, gender);
  layout()->addWidget(Binder::FieldCaption(form_.Label1(0), Indexed("Label1", 0), gender));
  layout()->addWidget(gender);
}

void TopStrip::AddName() {
  auto* name = new CaseField(Indexed("Text1", NameField), Content::Name, this);
  name->setAccessibleName(QStringLiteral("Name of the deceased"));
  name->Toggle = [this] { form_.Text1_DblClick(NameField); };
  binder_.Field(form_.Text1(NameField), name);
  layout()->addWidget(Binder::FieldCaption(form_.Label1(NameField), Indexed("Label1", NameField), name));
  layout()->addWidget(name);
}

QWidget* TopStrip::Views() {
  auto* frame = new QFrame(this);
  frame->setObjectName(QStringLiteral("Frame7"));
  frame->setAccessibleName(QStringLiteral("Choice of view"));
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (int i = 0; i < form_.Label4.Size; ++i) {
    Label& control = form_.Label4(i);
    auto* view =
        new CaptionButton(Indexed("Label4", i), Gesture::Click, QString::fromUtf8(viewNames[i]), frame);
    view->setAccessibleName(QString::fromUtf8(viewNames[i]));
    view->setToolTip(QString::fromUtf8(viewNames[i]));
    view->setContentsMargins(viewMargins);
    view->SetAlignment(Qt::AlignCenter);
    connect(view, &QAbstractButton::clicked, this, [this, i] { form_.Label4_Click(i); });
    Binder::Caption(control, view);
    binder_.TextColour(control, view);
    Binder::Follow(control.BorderStyle, [&control, view] {
      view->SetBorder(control.BorderStyle == 1 ? QFrame::Box : QFrame::NoFrame);
    });
    row->addWidget(view);
  }
  return frame;
}

// One picture is shown at a time, so the button is the parent of all three.
QWidget* TopStrip::Animation() {
  auto* place = new CaptionButton(QStringLiteral("Image42"), Gesture::Click,
                                  QStringLiteral("Stop or start the animation"), this);
  place->setFixedSize(animationSize);
  place->setAccessibleName(QStringLiteral("Animation"));
  connect(place, &QAbstractButton::clicked, this, [this] { form_.Image42_Click(); });
  for (int i = 0; i < form_.Image42.Size; ++i) {
    auto* picture = new PictureLabel(Indexed("Image42", i), QStringLiteral("image42-%1").arg(i),
                                     QStringLiteral("Animation, picture %1").arg(i), place);
    picture->setGeometry(QRect(QPoint(), animationSize).marginsRemoved(focusMargins));
    binder_.Visible(form_.Image42(i).Visible, picture);
  }
  return place;
}

QWidget* TopStrip::Executions() {
  auto* count = new CaptionButton(QStringLiteral("Label13"), Gesture::DoubleClick,
                                  QStringLiteral("Number of executions"), this);
  count->setAccessibleName(QStringLiteral("Number of executions"));
  count->setToolTip(QStringLiteral("No. of Executions"));
  count->SetAlignment(Qt::AlignCenter);
  count->SetBorder(QFrame::StyledPanel);
  count->setContentsMargins(countMargins);
  count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("00000")) +
                         2 * viewMargins.left());
  Binder::Result(form_.Label13, count);
  connect(count, &QAbstractButton::clicked, this, [this] { form_.Label13_DblClick(); });
  return count;
}

// Two pictures in one place; moving the mouse over the upper one hides it.
QWidget* TopStrip::Ornament(const char* name, int upper, Array<Picture, 1>& pictures,
                            const std::function<void()>& moved) {
  auto* place = new QWidget(this);
  place->setFixedSize(ornamentSize);
  for (const int i : {1 - upper, upper}) {
    const QString file = QStringLiteral("%1-%2").arg(QString::fromLatin1(name).toLower()).arg(i);
    auto* picture = new PictureLabel(Indexed(name, i), file, QStringLiteral("Ornament"), place);
    picture->setFixedSize(ornamentSize);
    binder_.Visible(pictures(i).Visible, picture);
    WhenMouseMoves(picture, moved);
  }
  return place;
}

}  // namespace qismora
