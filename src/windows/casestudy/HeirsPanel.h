#pragma once

#include <QGroupBox>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

class QGridLayout;

namespace qismora {

class CaptionButton;
class CaseField;

/// The fields of the heirs and of the estate with their captions: spouse and descendants, brothers and
/// sisters; ascendants, estate.
class HeirsPanel : public QGroupBox {
 public:
  HeirsPanel(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  void AddHeir(int row, int column, int field, const QString& heir);
  void AddSpouse(int row);
  void AddEstate(int row, int field, const QString& figure);
  void AddBlankCaption(int row);
  CaseField* AddField(int field, const QString& accessibleName);
  CaptionButton* AddCaption(int field, const QString& accessibleName);
  void AddPicture(int row, int column, int field, const QString& accessibleName, const QString& name,
                  const QString& file, Picture& control);

  CaseStudy& form_;
  Binder& binder_;
  QGridLayout* grid_;
};

}  // namespace qismora
