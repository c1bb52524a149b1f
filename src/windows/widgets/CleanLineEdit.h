#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace qismora {

/// What a field is for.
enum class Content { Figure, Name };

/// A line edit that cleans what its user types, pastes or drops, before it takes it. Line breaks and control
/// characters never get in. In a figure the digits of every script become 0 to 9, and blanks around what is
/// pasted are dropped. A text that the program sets is left as it is.
class CleanLineEdit : public QLineEdit {
 public:
  CleanLineEdit(Content content, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  /// The standard context menu; it belongs to the caller.
  QMenu* CreateContextMenu();

 private:
  QString Typed(const QString& text) const;
  QString Pasted(const QString& text) const;
  void Paste(QClipboard::Mode mode);

  Content content_;
};

}  // namespace qismora
