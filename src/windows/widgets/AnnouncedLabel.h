#pragma once

#include <QLabel>

namespace qismora {

/// A line of text that a screen reader announces when it changes. One that is too long is shortened at its
/// end, and its tool tip shows the whole.
class AnnouncedLabel : public QLabel {
 public:
  AnnouncedLabel(const QString& name, QWidget* parent);

  void Show(const QString& words, bool announce);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qismora
