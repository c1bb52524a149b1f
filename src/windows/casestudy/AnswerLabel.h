#pragma once

#include <QLabel>

namespace qismora {

/// A line of the answer. One that is longer than its place, such as an amount of hundreds of digits, never
/// widens the form: dots stand for its middle, and its tool tip shows it whole.
class AnswerLabel : public QLabel {
 public:
  AnswerLabel(const QString& name, const QString& spoken, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool IsCut() const;
};

}  // namespace qismora
