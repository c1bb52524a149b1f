#pragma once

#include <QLabel>

namespace qismora {

/// A line of text that screen readers announce. A text that is too long is shortened at its end; then Tab
/// stops at the line, and Return, Space or a click shows all of it.
class AnnouncedLabel : public QLabel {
 public:
  AnnouncedLabel(const QString& name, QWidget* parent);

  /// Shows the words. If they are new, a screen reader announces them on request.
  void Show(const QString& words, bool announce);
  /// The words of the line, and all of them where the line has only a part.
  void SetWords(const QString& words, const QString& all = {});

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  /// Whether there is more to read than the line shows.
  bool IsCut() const;
  void ShowAll();
  void OfferAll();

  QString all_;
};

}  // namespace qismora
