#pragma once

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QFont>
#include <QList>
#include <optional>

#include "division/DivisionView.h"

namespace qismora {

/// A table of heirs as texts: what the model shows and the clipboard takes.
struct DivisionTable {
  enum class Place { Taker, Sum, Other };
  struct Row {
    faraid::Kind Heir = faraid::Kind::Remainder;
    Place Where = Place::Taker;
    QStringList Cells;
    /// The whole row for a screen reader.
    QString Sentence;
    /// The commands of Case Study, or the schools, differ here.
    bool Differs = false;
    bool operator==(const Row&) const = default;
  };
  QStringList Headings;
  /// The columns of figures are aligned to the end of their cell.
  QList<bool> Figures;
  /// The last columns of sentences are wrapped.
  int FirstSentence = 0;
  /// The column that is marked where something differs; -1 without.
  int Marked = -1;
  QList<Row> Rows;

  /// The division of one school; beside what the commands answer where that differs, and beside another
  /// division where one is given.
  static DivisionTable OfSchool(const DivisionView& view, const std::optional<DivisionView>& before,
                                const QString& beforeHeading);
  /// The four schools side by side, and why they differ.
  static DivisionTable OfFourSchools(const SchoolViews& views);

  Q_DECLARE_TR_FUNCTIONS(DivisionTable)
};

/// The table for a view. A change of some cells leaves the selection and the scroll position alone.
class DivisionModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(DivisionTable table);
  const DivisionTable& Table() const { return table_; }
  /// The swatches of the heirs are painted again: with other colours, or at another scale.
  void ForgetSwatches() { swatches_.clear(); }
  void SetFont(const QFont& font) { font_ = font; }
  /// The headings as the view sets them, in one line or two.
  void SetHeadings(QStringList headings);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant Swatch(faraid::Kind heir) const;
  Qt::Alignment SideOf(int column) const;

  DivisionTable table_;
  QStringList headings_;
  QFont font_;
  mutable QHash<int, QVariant> swatches_;
};

}  // namespace qismora
