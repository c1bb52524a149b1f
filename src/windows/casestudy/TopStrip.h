#pragma once

#include <QWidget>
#include <functional>

#include "screens/CaseStudy.h"
#include "windows/widgets/Binder.h"

namespace qismora {

/// The gender and name of the deceased, the choice of view, the number of executions, and the animation.
class TopStrip : public QWidget {
 public:
  TopStrip(CaseStudy& form, Binder& binder, QWidget* parent);

 private:
  void AddGender();
  void AddName();
  QWidget* Views();
  QWidget* Animation();
  QWidget* Executions();
  QWidget* Ornament(const char* name, int upper, Array<Picture, 1>& pictures,
                    const std::function<void()>& moved);

  CaseStudy& form_;
  Binder& binder_;
};

}  // namespace qismora
