#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>

#include "division/DivisionView.h"

class QScrollArea;

namespace qismora {

class EstateBar;
class FamilyTreeView;

/// The estate as a bar and the family as a tree, below the table.
class DivisionPictures : public QWidget {
  Q_DECLARE_TR_FUNCTIONS(DivisionWindow)

 public:
  explicit DivisionPictures(QWidget* parent);

  void Show(const DivisionView& view);
  void Choose(faraid::Kind heir);
  /// The names for screen readers in the current language.
  void Translate();
  /// How high it is when nothing of it scrolls: with text in full size, and in the smallest size.
  int FullHeight() const;
  int LeastHeight() const;

  /// Called when the user has chosen an heir in the tree.
  std::function<void(faraid::Kind)> Chosen;

 private:
  int HeightBeside(int tree) const;

  EstateBar* bar_;
  FamilyTreeView* tree_;
  QScrollArea* scroll_;
};

}  // namespace qismora
