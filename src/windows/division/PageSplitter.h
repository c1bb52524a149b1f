#pragma once

#include <QSplitter>
#include <functional>
#include <utility>

namespace qismora {

/// The table above the pictures, as a part of a page that scrolls. It has a least height.
class PageSplitter : public QSplitter {
 public:
  explicit PageSplitter(QWidget* parent) : QSplitter(Qt::Vertical, parent) {}

  /// Called for each new size, which it also has when the sentences above it grow.
  std::function<void()> Resized;

  void SetLeastHeight(int height) {
    if (std::exchange(least_, height) != height) updateGeometry();
  }
  // A scroll area asks for the one where sentences wrap, and for the other where they do not.
  QSize sizeHint() const override { return {QSplitter::sizeHint().width(), least_}; }
  QSize minimumSizeHint() const override { return {QSplitter::minimumSizeHint().width(), least_}; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QSplitter::resizeEvent(event);
    Resized();
  }

 private:
  int least_ = 0;
};

}  // namespace qismora
