#include "windows/casestudy/Frame5Panel.h"

#include <QBoxLayout>

#include "windows/style/Fonts.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr int pictureHeight = 80;
constexpr int nameSize = 28;
constexpr const char* whichProgram = "Which program is this?";

CaptionButton* Name(CaseStudy& form, Binder& binder, QWidget* parent) {
  auto* name =
      new CaptionButton(QStringLiteral("Label6"), Gesture::Click, QString::fromUtf8(whichProgram), parent);
  name->setFont(HeadingFont(name->font(), nameSize));
  name->SetAlignment(Qt::AlignCenter);
  name->setAccessibleName(QStringLiteral("Name of this program"));
  Binder::Caption(form.Label6, name);
  binder.TextColour(form.Label6, name);
  QObject::connect(name, &QAbstractButton::clicked, name, [&form] { form.Label6_Click(); });
  return name;
}

CaptionButton* AboutLink(CaseStudy& form, QWidget* parent) {
  const QString words = QStringLiteral("About this program");
  auto* link = new CaptionButton(QStringLiteral("AboutLink"), Gesture::Click, words, parent);
  QFont underlined = link->font();
  underlined.setUnderline(true);
  link->setFont(underlined);
  link->setForegroundRole(QPalette::Link);
  link->setCursor(Qt::PointingHandCursor);
  link->SetAlignment(Qt::AlignCenter);
  link->setText(words);
  link->setAccessibleName(words);
  QObject::connect(link, &QAbstractButton::clicked, link, [&form] { form.About_Click(); });
  return link;
}

}  // namespace

Frame5Panel::Frame5Panel(CaseStudy& form, Binder& binder, QWidget* parent) : QGroupBox(parent) {
  setObjectName(QStringLiteral("Frame5"));
  setAccessibleName(QStringLiteral("About the program"));
  setAutoFillBackground(true);

  auto* picture = new PictureButton(QStringLiteral("Image38"), QStringLiteral("image38"), Colours::OfPicture,
                                    Gesture::Click, QString::fromUtf8(whichProgram), this);
  picture->setAccessibleName(QStringLiteral("Picture of this program"));
  picture->setFixedHeight(pictureHeight);
  connect(picture, &QAbstractButton::clicked, this, [&form] { form.Image38_Click(); });
  auto* howTo = new QLabel(QStringLiteral("Type how many heirs of each kind\nare alive, and the estate.\n\n"
                                          "Then choose Case Analysis >\nResiduaries for the distribution,\n"
                                          "or double-click an heir's caption\nfor the share of that heir."),
                           this);
  howTo->setObjectName(QStringLiteral("HowTo"));
  howTo->setAccessibleName(QStringLiteral("How to begin"));
  howTo->setTextFormat(Qt::PlainText);
  howTo->setAlignment(Qt::AlignCenter);

  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(4);
  rows->addStretch(2);
  rows->addWidget(picture);
  rows->addWidget(Name(form, binder, this), 0, Qt::AlignHCenter);
  rows->addWidget(howTo);
  rows->addStretch(3);
  rows->addWidget(AboutLink(form, this), 0, Qt::AlignHCenter);
  binder.Group(form.Frame5, this);
}

}  // namespace qismora
