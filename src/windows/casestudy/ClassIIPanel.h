#pragma once

#include <QGroupBox>
#include <array>

#include "screens/CaseStudy.h"
#include "windows/style/Pictures.h"
#include "windows/widgets/Binder.h"

class QCheckBox;
class QGridLayout;

namespace qismora {

/// The tick boxes of the class II residuaries. In the Urdu and Arabic views a panel lies over the captions
/// of each column; the small boxes stay uncovered.
class ClassIIPanel : public QGroupBox {
 public:
  ClassIIPanel(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  void AddChecks();
  void AddCover(int column, const QString& frameName, Property<bool>& visible, int image,
                const QString& file);
  QCheckBox* CheckAt(const PictureLabel& picture, int column, const QPoint& place) const;

  CaseStudy& form_;
  Binder& binder_;
  QGridLayout* grid_;
  std::array<QCheckBox*, 12> checks_{};
  QCheckBox* clicked_ = nullptr;
};

}  // namespace qismora
