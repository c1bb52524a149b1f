#include "windows/casestudy/HeirsPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <span>

#include "windows/casestudy/CaseField.h"
#include "windows/platform/Utf8.h"
#include "windows/widgets/CaptionButton.h"
#include "windows/widgets/Names.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

enum class RowKind { Title, Spouse, Heir, Estate, Blank };

/// What stands in a row, and what screen readers and tool tips call it.
struct Row {
  RowKind What;
  int Field;
  const char* Words;
};

constexpr Row leftRows[] = {
    {RowKind::Title, 0, "Spouse and descendants"},
    {RowKind::Spouse, SpouseField, ""},
    {RowKind::Heir, SonsField, "Sons"},
    {RowKind::Heir, DaughtersField, "Daughters"},
    {RowKind::Heir, GrandSonsField, "Grandsons (son's sons)"},
    {RowKind::Heir, GrandDaughtersField, "Granddaughters (son's daughters)"},
    {RowKind::Heir, GtGrandSonsField, "Great-grandsons (son's son's sons)"},
    {RowKind::Heir, GtGrandDaughtersField, "Great-granddaughters (son's son's daughters)"},
    {RowKind::Title, 0, "Brothers and sisters"},
    {RowKind::Heir, FullBrothersField, "Full brothers"},
    {RowKind::Heir, FullSistersField, "Full sisters"},
    {RowKind::Heir, ConsSistersField, "Consanguine sisters (same father)"},
    {RowKind::Heir, ConsBrothersField, "Consanguine brothers (same father)"},
    {RowKind::Heir, UterineSistersField, "Uterine sisters (same mother)"},
    {RowKind::Heir, UterineBrothersField, "Uterine brothers (same mother)"},
    {RowKind::Blank, BlankCaption, ""},
};

constexpr Row rightRows[] = {
    {RowKind::Title, 0, "Ascendants"},
    {RowKind::Heir, FatherField, "Father"},
    {RowKind::Heir, GrandFatherField, "Grandfather (father's father)"},
    {RowKind::Heir, GtGrandFatherField, "Great-grandfather (father's father's father)"},
    {RowKind::Heir, MotherField, "Mother"},
    {RowKind::Heir, MothersMotherField, "Mother's mother"},
    {RowKind::Heir, MothersMothersMotherField, "Great-grandmother (mother's mother's mother)"},
    {RowKind::Heir, FathersMotherField, "Father's mother"},
    {RowKind::Heir, GrandFathersMotherField, "Grandfather's mother (father's father's mother)"},
    {RowKind::Heir, FathersGrandMotherField, "Father's grandmother (father's mother's mother)"},
    {RowKind::Title, 0, "Estate"},
    {RowKind::Estate, GrossEstateField, "Gross estate"},
    {RowKind::Estate, FuneralField, "Funeral expenses"},
    {RowKind::Estate, DebtsField, "Debts"},
    {RowKind::Estate, WillsField, "Wills"},
    {RowKind::Estate, NetEstateField, "Net estate"},
};

// Columns of the grid: caption, picture and field of the left heirs, a gap, and the same on the right.
constexpr int rightColumn = 4;
constexpr int gapColumn = 3;
constexpr int gapWidth = 14;
constexpr int fieldWidth = 40;
// A picture may extend beyond its column; only short captions stand beside long pictures.
constexpr QSize pictureSize{80, 20};
constexpr int pictureColumnWidth = 66;

constexpr const char* computeShare = "Compute the share";
constexpr const char* inUrdu = "%1, in Urdu";
constexpr const char* inArabic = "%1, in Arabic";
constexpr const char* fieldTip = "%1\nDouble-click or F2: 0 or 1";
constexpr const char* captionTip = "%1\nDouble-click or Enter: compute the share";

/// The number of a field among those that have a caption picture of their own.
int PictureNumber(int field) {
  return static_cast<int>(std::ranges::find(HeirFieldIndexes, field) - HeirFieldIndexes.begin()) - 1;
}

QLabel* Title(const char* words, QWidget* parent) {
  auto* title = new QLabel(QString::fromUtf8(words), parent);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  return title;
}

}  // namespace

HeirsPanel::HeirsPanel(CaseStudy& form, Binder& binder, QWidget* parent)
    : QGroupBox(parent), form_(form), binder_(binder), grid_(new QGridLayout(this)) {
  setObjectName(QStringLiteral("Frame1"));
  setAccessibleName(QStringLiteral("Heirs and estate of the deceased"));
  binder.Group(form.Frame1, this);
  grid_->setContentsMargins(8, 1, 8, 2);
  grid_->setHorizontalSpacing(4);
  grid_->setVerticalSpacing(0);
  grid_->setColumnMinimumWidth(gapColumn, gapWidth);
  for (const int column : {0, rightColumn}) {
    grid_->setColumnStretch(column, 1);
    grid_->setColumnMinimumWidth(column + 1, pictureColumnWidth);
  }

  int column = 0;
  for (const std::span<const Row> rows : {std::span<const Row>(leftRows), std::span<const Row>(rightRows)}) {
    int line = 0;
    for (const Row& row : rows) {
      const QString words = QString::fromUtf8(row.Words);
      switch (row.What) {
        case RowKind::Title:
          grid_->addWidget(Title(row.Words, this), line, column, 1, 3, Qt::AlignBottom);
          break;
        case RowKind::Spouse:
          AddSpouse(line);
          break;
        case RowKind::Heir:
          AddHeir(line, column, row.Field, words);
          break;
        case RowKind::Estate:
          AddEstate(line, row.Field, words);
          break;
        case RowKind::Blank:
          AddBlankCaption(line);
          break;
      }
      grid_->setRowStretch(line++, 1);
    }
    column = rightColumn;
  }
}

CaseField* HeirsPanel::AddField(int field, const QString& accessibleName) {
  auto* widget = new CaseField(Indexed("Text1", field), Content::Figure, this);
  widget->setAccessibleName(accessibleName);
  widget->SetTip(QString::fromUtf8(fieldTip).arg(accessibleName));
  widget->setAlignment(Qt::AlignRight);
  widget->Toggle = [this, field] { form_.Text1_DblClick(field); };
  binder_.Field(form_.Text1(field), widget);
  if (field == NetEstateField) return widget;  // the program writes it
  const auto mark = [this, field, widget] { widget->Mark(ToQt(form_.MisreadingOf(field))); };
  Binder::Follow(form_.Text1(field).Text, mark);
  form_.EventsEnded.WhenChanged(mark);
  return widget;
}

CaptionButton* HeirsPanel::AddCaption(int field, const QString& accessibleName) {
  auto* caption = new CaptionButton(Indexed("Label1", field), Gesture::DoubleClick,
                                    QString::fromUtf8(computeShare), this);
  Binder::Caption(form_.Label1(field), caption);
  connect(caption, &QAbstractButton::clicked, this, [this, field] { form_.Label1_DblClick(field); });
  caption->setAccessibleName(accessibleName);
  caption->setToolTip(QString::fromUtf8(captionTip).arg(accessibleName));
  return caption;
}

// The pictures stand beside the caption, which stays readable in every view, and act as it does.
void HeirsPanel::AddPicture(int row, int column, int field, const QString& accessibleName,
                            const QString& name, const QString& file, Picture& control) {
  auto* picture = new PictureButton(name, QStringLiteral("captions/") + file, Colours::OfText,
                                    Gesture::DoubleClick, QString::fromUtf8(computeShare), this);
  connect(picture, &QAbstractButton::clicked, this, [this, field] { form_.Label1_DblClick(field); });
  picture->setFixedSize(pictureSize);
  picture->SetAlignment(Qt::AlignRight | Qt::AlignVCenter);
  picture->setAccessibleName(accessibleName);
  picture->setFocusPolicy(Qt::NoFocus);
  binder_.Visible(control.Visible, picture);
  grid_->addWidget(picture, row, column, 1, 2, Qt::AlignRight | Qt::AlignVCenter);
}

void HeirsPanel::AddHeir(int row, int column, int field, const QString& heir) {
  const int number = PictureNumber(field);
  CaseField* input = AddField(field, heir);
  input->setFixedWidth(fieldWidth);
  input->Explain = [this, field] { form_.Label1_DblClick(field); };
  grid_->addWidget(AddCaption(field, heir), row, column);
  AddPicture(row, column, field, QString::fromUtf8(inUrdu).arg(heir),
             QStringLiteral("Image%1").arg(number + 9), QStringLiteral("urdu-%1").arg(field),
             form_.Image(number + 9));
  AddPicture(row, column, field, QString::fromUtf8(inArabic).arg(heir), Indexed("Image41", number + 2),
             QStringLiteral("arabic-%1").arg(field), form_.Image41(number + 2));
  grid_->addWidget(input, row, column + 2, Qt::AlignVCenter);
}

// Wives or husband, as the gender of the deceased has it.
void HeirsPanel::AddSpouse(int row) {
  CaseField* input = AddField(SpouseField, {});
  input->setFixedWidth(fieldWidth);
  input->Explain = [this] { form_.Label1_DblClick(SpouseField); };
  CaptionButton* caption = AddCaption(SpouseField, {});
  Binder::Follow(form_.Label1(SpouseField).Caption, [this, input, caption] {
    const QString words = ToQt(form_.Label1(SpouseField).Caption.Get());
    input->setAccessibleName(words);
    input->SetTip(QString::fromUtf8(fieldTip).arg(words));
    caption->setAccessibleName(words);
    caption->setToolTip(QString::fromUtf8(captionTip).arg(words));
  });
  grid_->addWidget(caption, row, 0);
  const QString spouses[] = {QStringLiteral("Wives"), QStringLiteral("Husband")};
  const QString files[] = {QStringLiteral("wives"), QStringLiteral("husband")};
  for (const int i : {0, 1}) {
    AddPicture(row, 0, SpouseField, QString::fromUtf8(inUrdu).arg(spouses[i]), Indexed("Image30", i),
               QStringLiteral("urdu-") + files[i], form_.Image30(i));
  }
  for (const int i : {0, 1}) {
    AddPicture(row, 0, SpouseField, QString::fromUtf8(inArabic).arg(spouses[i]), Indexed("Image41", i),
               QStringLiteral("arabic-") + files[i], form_.Image41(i));
  }
  grid_->addWidget(input, row, 2, Qt::AlignVCenter);
}

void HeirsPanel::AddEstate(int row, int field, const QString& figure) {
  CaseField* input = AddField(field, figure);
  input->setReadOnly(field == NetEstateField);
  QLabel* caption = Binder::FieldCaption(form_.Label1(field), Indexed("Label1", field), input);
  grid_->addWidget(caption, row, rightColumn);
  grid_->addWidget(input, row, rightColumn + 1, 1, 2, Qt::AlignVCenter);
}

// It has no text; its name is shown while it has the focus.
void HeirsPanel::AddBlankCaption(int row) {
  CaptionButton* caption = AddCaption(BlankCaption, QStringLiteral("Load the case only"));
  caption->setToolTip({});
  grid_->addWidget(caption, row, 0, 1, 3);
}

}  // namespace qismora
