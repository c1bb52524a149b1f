#pragma once

#include <QLabel>

namespace qismora {

/// A line of text that screen readers announce. A text that is too long is shortened at its end; the tool tip
/// shows all of it.
class AnnouncedLabel : public QLabel {
 public:
  AnnouncedLabel(const QString& name, QWidget* parent);

  /// Shows the words. If they are new, a screen reader announces them on request.
  void Show(const QString& words, bool announce);

  QSize minimumSizeHint() const override;

 protected:
  void SetWords(const QString& words);
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qismora
