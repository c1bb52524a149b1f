#pragma once

#include <QAbstractItemModel>
#include <QTableView>
#include <QTest>

#include "CaseStudyFixture.h"
#include "windows/division/DivisionOpener.h"
#include "windows/division/DivisionWindow.h"

namespace qismora::testing {

/// The Division window beside Case Study, for tests that derive from it.
class DivisionFixture : public QObject {
 protected:
  void Start() {
    study_ = std::make_unique<CaseStudyFixture>();
    OpenWithKey();
  }

  DivisionOpener& Opener() { return study_->Window().Division(); }
  DivisionWindow* Division() { return Opener().Window(); }

  void OpenWithKey() {
    study_->Window().activateWindow();
    QTest::keyClick(&study_->Window(), Qt::Key_F8);
    QTRY_VERIFY(Division() != nullptr && Division()->isVisible());
  }

  /// A wife, two daughters, a grandfather, the mother and a consanguine brother, who is excluded.
  void TypeFamily() {
    for (const auto& [field, number] : {std::pair("Text1(1)", 1),
                                        {"Text1(3)", 2},
                                        {"Text1(14)", 1},
                                        {"Text1(16)", 1},
                                        {"Text1(31)", 1},
                                        {"Text1(25)", 24000},
                                        {"Text1(26)", 0},
                                        {"Text1(27)", 0},
                                        {"Text1(28)", 0}}) {
      study_->Type(field, QString::number(number));
    }
    OpenWithKey();
    QTRY_VERIFY(Row("Consanguine brother") > Row("Sum"));
  }

  void Activate() {
    Division()->activateWindow();
    QTRY_VERIFY(Division()->isActiveWindow());
  }

  template <class Found = QWidget>
  Found* Find(const char* name) {
    return testing::Find<Found>(Division(), name);
  }

  /// The row of an heir; -1 without.
  int Row(const char* heir) {
    const QAbstractItemModel* model = Find<QTableView>("DivisionTable")->model();
    for (int row = 0; row < model->rowCount(); ++row) {
      if (model->index(row, 0).data().toString() == QLatin1String(heir)) return row;
    }
    return -1;
  }
  QString Cell(const char* heir, int column) {
    const int row = Row(heir);
    return row < 0 ? QString()
                   : Find<QTableView>("DivisionTable")->model()->index(row, column).data().toString();
  }
  int Column(const char* heading) {
    const QAbstractItemModel* model = Find<QTableView>("DivisionTable")->model();
    for (int column = 0; column < model->columnCount(); ++column) {
      if (model->headerData(column, Qt::Horizontal).toString() == QLatin1String(heading)) return column;
    }
    return 0;
  }
  QString CellBefore(const char* heir) { return Cell(heir, Column("Kept")); }
  QString CellDifference(const char* heir) { return Cell(heir, Column("Difference")); }

  std::unique_ptr<CaseStudyFixture> study_;
};

}  // namespace qismora::testing
