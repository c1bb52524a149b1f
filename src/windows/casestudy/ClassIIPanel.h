#pragma once

#include <QGroupBox>
#include <array>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

class QCheckBox;
class QGridLayout;

namespace qismora {

/// The check boxes of the class II residuaries. In the Urdu and Arabic views a panel lies over the captions
/// of each column; the indicators stay uncovered.
class ClassIIPanel : public QGroupBox {
 public:
  ClassIIPanel(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  using Checks = std::array<QCheckBox*, 12>;
  class ColumnCaptions;

  void AddChecks();
  void AddCover(int column, const QString& frameName, Property<bool>& visible, int image,
                const QString& file);

  CaseStudy& form_;
  Binder& binder_;
  QGridLayout* grid_;
  Checks checks_{};
};

}  // namespace qismora
