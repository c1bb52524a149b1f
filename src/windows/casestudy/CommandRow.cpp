#include "windows/casestudy/CommandRow.h"

#include <QBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

#include "windows/platform/Utf8.h"
#include "windows/style/PointerShape.h"
#include "windows/widgets/HoverFilter.h"
#include "windows/widgets/PictureWidgets.h"

namespace qismora {

namespace {

constexpr int rowHeight = 28;
constexpr int buttonWidth = 84;
constexpr int wideButton = 104;

/// The clear command. A press gives it a border until a field changes.
class ClearButton : public IconButton {
 public:
  ClearButton(CaseStudy& form, const QString& text, QWidget* parent)
      : IconButton(QStringLiteral("Image2"), QStringLiteral("image2"), text, parent), form_(form) {
    connect(this, &QAbstractButton::clicked, this, [this] { form_.Image2_Click(); });
    form_.Image2.BorderStyle.WhenChanged([this] { update(); });
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    form_.Image2_MouseDown();
    IconButton::mousePressEvent(event);
  }

  void paintEvent(QPaintEvent* event) override {
    IconButton::paintEvent(event);
    if (form_.Image2.BorderStyle == 1) QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  CaseStudy& form_;
};

}  // namespace

CommandRow::CommandRow(CaseStudy& form, Binder& binder, QWidget* parent)
    : QWidget(parent), form_(form), binder_(binder) {
  setFixedHeight(rowHeight);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(Clear());
  row->addWidget(Aul());
  row->addStretch();
  row->addWidget(FullReport());
  AddHidden();
}

QWidget* CommandRow::Clear() {
  auto* clear = new ClearButton(form_, QStringLiteral("Clear"), this);
  clear->setFixedSize(buttonWidth, rowHeight);
  clear->setAccessibleName(QStringLiteral("Clear the case"));
  clear->setToolTip(QStringLiteral("Clear all heirs and the results"));
  binder_.Visible(form_.Image2.Visible, clear);
  return clear;
}

QWidget* CommandRow::Aul() {
  auto* aul = new QPushButton(QStringLiteral("Aul/ Radd"), this);
  aul->setObjectName(QStringLiteral("AulRadd"));
  aul->setAccessibleName(QStringLiteral("Aul and Radd"));
  aul->setToolTip(QStringLiteral("Adjust the shares to the estate (F6)"));
  aul->setFixedSize(buttonWidth, rowHeight);
  const auto adjust = [this] {
    const PointerShape busy(Qt::WaitCursor);
    form_.AulRadd_Click();
  };
  connect(aul, &QPushButton::clicked, this, adjust);
  // The menu's entry stays disabled where only the button is offered; the key serves both.
  connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this, adjust] {
    if (form_.AulRadd.Visible || form_.AulRad.Enabled) adjust();
  });
  // Its place stays free, so that nothing moves when it is shown.
  QSizePolicy policy = aul->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  aul->setSizePolicy(policy);
  binder_.Visible(form_.AulRadd.Visible, aul);
  return aul;
}

QWidget* CommandRow::FullReport() {
  auto* report = new IconButton(QStringLiteral("FullReportxx"), QStringLiteral("image40"),
                                QStringLiteral("Full report"), this);
  report->setAccessibleName(QStringLiteral("Full report"));
  report->setToolTip(QStringLiteral("Make the full report and save it under the name of the deceased"));
  report->setFixedSize(wideButton, rowHeight);
  connect(report, &QPushButton::clicked, this, [this] {
    const PointerShape busy(Qt::WaitCursor);
    form_.FullReportxx_Click();
  });
  WhenMouseMoves(report, [this] { form_.FullReportxx_MouseMove(); });
  Binder::Follow(form_.FullReportxx, [this, report] { report->ShowPicture(ToQt(form_.FullReportxx.Get())); });
  return report;
}

void CommandRow::AddHidden() {
  auto* selected = new QPushButton(QStringLiteral("Execute Sel."), this);
  selected->setObjectName(QStringLiteral("SelectedReport"));
  connect(selected, &QPushButton::clicked, this, [this] { form_.SelectedReport_Click(); });
  auto* residuaries = new QPushButton(QStringLiteral("Residuaries"), this);
  residuaries->setObjectName(QStringLiteral("Residuaries"));
  connect(residuaries, &QPushButton::clicked, this, [this] { form_.Residuaries_Click(); });
  for (QPushButton* button : {selected, residuaries}) {
    button->setAccessibleName(button->text());
    button->hide();
  }
}

}  // namespace qismora
