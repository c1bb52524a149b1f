#pragma once

#include <utility>

namespace qismora {

/// Holds the form of a window. It is the first base class of the window, so the form outlives the widgets
/// that show it.
template <class FormType>
class FormHolder {
 public:
  template <class... Arguments>
  explicit FormHolder(Arguments&&... arguments) : form_(std::forward<Arguments>(arguments)...) {}

  FormType& Form() { return form_; }

 protected:
  FormType form_;
};

}  // namespace qismora
