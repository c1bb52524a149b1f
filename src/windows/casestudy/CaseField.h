#pragma once

#include <functional>

#include "windows/widgets/CleanLineEdit.h"

namespace qismora {

/// A field that a figure of the case is typed into. A double click, F2 or an entry of its context menu
/// toggles it, Ctrl+Return or an entry explains the share of its heir; the arrows lead to the fields above
/// and below.
class CaseField : public CleanLineEdit {
 public:
  CaseField(const QString& name, Content content, QWidget* parent);

  std::function<void()> Toggle;
  std::function<void()> Explain;
  /// What the field is for; its tool tip.
  void SetTip(const QString& tip);
  /// Marks a field whose text is read differently than the user sees it: the field is tinted, and its tool
  /// tip says how. Empty words remove the mark.
  void Mark(const QString& words);

  /// No higher than the rows of the form allow.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void initStyleOption(QStyleOptionFrame* option) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool entering_ = false;
  QString tip_;
  QString mark_;
};

}  // namespace qismora
