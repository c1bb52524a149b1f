#include "windows/casestudy/TopStrip.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QWheelEvent>

#include "windows/casestudy/CaseBox.h"
#include "windows/style/Pictures.h"
#include "windows/widgets/HoverWatch.h"
#include "windows/widgets/Names.h"

namespace qismora {

namespace {

constexpr QSize animationSize{26, 26};
constexpr QMargins focusRoom{1, 1, 1, 1};
constexpr QSize ornamentSize{24, 24};
constexpr int viewMargin = 4;

constexpr const char* viewNames[] = {"Urdu view", "English view", "Arabic view"};

/// A wheel that is turned on the way over the list must not change who has died.
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
  auto* caption = new CaptionLabel(Indexed("Label1", 0), this);
  auto* gender = new GenderList(this);
  gender->setFocusPolicy(Qt::StrongFocus);
  gender->setObjectName(QStringLiteral("Combo1"));
  gender->setAccessibleName(tr("Gender of the deceased"));
  caption->setAccessibleName(tr("Gender of the deceased"));
  caption->setBuddy(gender);
  binder_.Caption(form_.Label1(0), caption);
  binder_.Choice(form_.Combo1, gender);
  layout()->addWidget(caption);
  layout()->addWidget(gender);
}

void TopStrip::AddName() {
  auto* caption = new CaptionLabel(Indexed("Label1", NameBox), this);
  auto* name = new CaseBox(Indexed("Text1", NameBox), Content::Name, this);
  name->setAccessibleName(tr("Name of the deceased"));
  name->Toggle = [this] { form_.Text1_DblClick(NameBox); };
  caption->setAccessibleName(tr("Name of the deceased"));
  caption->setBuddy(name);
  binder_.Caption(form_.Label1(NameBox), caption);
  binder_.Box(form_.Text1(NameBox), name);
  layout()->addWidget(caption);
  layout()->addWidget(name);
}

QWidget* TopStrip::Views() {
  auto* frame = new QFrame(this);
  frame->setObjectName(QStringLiteral("Frame7"));
  frame->setAccessibleName(tr("Choice of view"));
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (int i = 0; i < 3; ++i) {
    auto* view = new CaptionLabel(Indexed("Label4", i), frame);
    view->setAccessibleName(tr(viewNames[i]));
    view->setToolTip(tr(viewNames[i]));
    view->setMargin(viewMargin);
    view->setAlignment(Qt::AlignCenter);
    binder_.Caption(form_.Label4(i), view);
    view->ActOn(Gesture::Click, tr(viewNames[i]), [this, i] { form_.Label4_Click(i); });
    binder_.Look(form_.Label4(i), view);
    row->addWidget(view);
  }
  return frame;
}

// The pictures take turns, so it is the place of all three that holds the focus.
QWidget* TopStrip::Animation() {
  auto* place = new CaptionLabel(QStringLiteral("Image42"), this);
  place->setFixedSize(animationSize);
  place->setAccessibleName(tr("Animation"));
  const QString words = tr("Stop or start the animation");
  bool any = false;
  for (int i = 0; i < 3; ++i) {
    auto* picture =
        new PictureLabel(Indexed("Image42", i), QStringLiteral("image42-%1").arg(i), Ink::Own, place);
    picture->setGeometry(QRect(QPoint(), animationSize).marginsRemoved(focusRoom));
    picture->setAccessibleName(tr("Animation, picture %1").arg(i));
    picture->ActOn(Gesture::Click, words, [this] { form_.Image42_Click(); });
    picture->setFocusPolicy(Qt::NoFocus);
    binder_.Visible(form_.Image42(i).Visible, picture);
    any = any || picture->HasPicture();
  }
  place->setAttribute(Qt::WA_TransparentForMouseEvents, !any);
  if (any) place->ActOn(Gesture::Click, words, [this] { form_.Image42_Click(); });
  return place;
}

QWidget* TopStrip::Executions() {
  auto* count = new CaptionLabel(QStringLiteral("Label13"), this);
  count->setAccessibleName(tr("Number of executions"));
  count->setToolTip(tr("No. of Executions"));
  count->setAlignment(Qt::AlignCenter);
  count->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Sunken));
  count->setMargin(viewMargin - 2);
  count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 2 * viewMargin);
  binder_.SpokenCaption(form_.Label13, count);
  count->ActOn(Gesture::DoubleClick, tr("Number of executions"), [this] { form_.Label13_DblClick(); });
  return count;
}

// Two pictures in one place; moving the mouse over the upper one takes it away.
QWidget* TopStrip::Ornament(const char* name, int upper, Array<Picture, 1>& pictures,
                            const std::function<void()>& moved) {
  auto* place = new QWidget(this);
  place->setFixedSize(ornamentSize);
  for (const int i : {1 - upper, upper}) {
    const QString file = QStringLiteral("%1-%2").arg(QString::fromLatin1(name).toLower()).arg(i);
    auto* picture = new PictureLabel(Indexed(name, i), file, Ink::Own, place);
    picture->setFixedSize(ornamentSize);
    picture->setAccessibleName(tr("Ornament"));
    binder_.Visible(pictures(i).Visible, picture);
    WhenMouseMoves(picture, moved);
    place->setAttribute(Qt::WA_TransparentForMouseEvents, !picture->HasPicture());
  }
  return place;
}

}  // namespace qismora
