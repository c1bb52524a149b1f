#include "windows/casestudy/Frame5Panel.h"

#include <QBoxLayout>

#include "windows/style/Pictures.h"

namespace qismora {

namespace {

constexpr int pictureHeight = 80;
constexpr int nameSize = 28;

CaptionLabel* Name(CaseStudy& form, Binder& binder, QWidget* parent) {
  auto* name = new CaptionLabel(QStringLiteral("Label6"), parent);
  QFont large = name->font();
  large.setPixelSize(nameSize);
  large.setBold(true);
  name->setFont(large);
  name->setAlignment(Qt::AlignCenter);
  name->setAccessibleName(QObject::tr("Name of this program"));
  binder.Caption(form.Label6, name);
  name->ActOn(Gesture::Click, QObject::tr("Which program is this?"), [&form] { form.Label6_Click(); });
  binder.Look(form.Label6, name);
  return name;
}

CaptionLabel* Link(CaseStudy& form, QWidget* parent) {
  auto* link = new CaptionLabel(QStringLiteral("AboutLink"), parent);
  QFont underlined = link->font();
  underlined.setUnderline(true);
  link->setFont(underlined);
  link->setForegroundRole(QPalette::Link);
  link->setCursor(Qt::PointingHandCursor);
  link->setAlignment(Qt::AlignCenter);
  link->setText(QObject::tr("About this program"));
  link->setAccessibleName(link->text());
  link->ActOn(Gesture::Click, link->text(), [&form] { form.About_Click(); });
  return link;
}

}  // namespace

Frame5Panel::Frame5Panel(CaseStudy& form, Binder& binder, QWidget* parent) : QGroupBox(parent) {
  setObjectName(QStringLiteral("Frame5"));
  setAccessibleName(tr("About the program"));
  setAutoFillBackground(true);

  auto* picture = new PictureLabel(QStringLiteral("Image38"), QStringLiteral("image38"), Ink::Own, this);
  picture->setAccessibleName(tr("Picture of this program"));
  picture->ActOn(Gesture::Click, tr("Which program is this?"), [&form] { form.Image38_Click(); });
  picture->setFixedHeight(picture->HasPicture() ? pictureHeight : 0);
  if (!picture->HasPicture()) picture->setFocusPolicy(Qt::NoFocus);
  auto* howTo = new QLabel(tr("Type how many heirs of each kind\nare alive, and the estate.\n\n"
                              "Then choose Case Analysis >\nResiduaries for the distribution,\n"
                              "or double-click an heir's caption\nfor the share of that heir."),
                           this);
  howTo->setObjectName(QStringLiteral("HowTo"));
  howTo->setAccessibleName(tr("How to begin"));
  howTo->setTextFormat(Qt::PlainText);
  howTo->setAlignment(Qt::AlignCenter);

  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(4);
  rows->addStretch(2);
  rows->addWidget(picture);
  rows->addWidget(Name(form, binder, this), 0, Qt::AlignHCenter);
  rows->addWidget(howTo);
  rows->addStretch(3);
  rows->addWidget(Link(form, this), 0, Qt::AlignHCenter);
  binder.Box(form.Frame5, this);
}

}  // namespace qismora
