#pragma once

#include <QGroupBox>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

class QGridLayout;

namespace qismora {

class CaptionLabel;
class CaseBox;

/// The boxes of the heirs and of the estate with their captions: spouse and descendants, brothers and
/// sisters; ascendants, estate.
class HeirsPanel : public QGroupBox {
 public:
  HeirsPanel(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  void AddHeir(int row, int column, int box, const QString& spoken);
  void AddSpouse(int row);
  void AddEstate(int row, int box, const QString& spoken);
  void AddBlankCaption(int row);
  CaseBox* AddBox(int box, const QString& spoken);
  CaptionLabel* AddCaption(int box, const QString& spoken);
  void AddPicture(int row, int column, int box, const QString& spoken, const QString& name,
                  const QString& file, Picture& control);

  CaseStudy& form_;
  Binder& binder_;
  QGridLayout* grid_;
};

}  // namespace qismora
