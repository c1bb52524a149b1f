#pragma once

#include <QPlainTextEdit>

namespace qismora {

/// A text to be read: the keys scroll it and select in it, Tab leads on. What is copied while nothing is
/// selected is the whole.
class ReadingText : public QPlainTextEdit {
 public:
  ReadingText(const QString& name, const QString& spoken, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// Takes the actions of the text in, too.
  void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace qismora
