#pragma once

#include <QPlainTextEdit>

namespace qismora {

/// A read-only text. The keyboard scrolls and selects; Tab moves the focus on. Copying without a selection
/// copies the whole text.
class ReadingText : public QPlainTextEdit {
 public:
  ReadingText(const QString& name, const QString& accessibleName, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// The context menu includes the actions of the widget.
  void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace qismora
