#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace qismora {

/// What a field is for.
enum class Content { Figure, Name };

/// A line edit that cleans what the user types, pastes or drops. It removes line breaks and control
/// characters. In a figure the digits of every script become 0 to 9, and blanks around a pasted text are
/// removed. A text that the program sets is not changed.
class CleanLineEdit : public QLineEdit {
 public:
  CleanLineEdit(Content content, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  /// The standard context menu, with a paste that cleans. The caller owns it.
  QMenu* CreateContextMenu();

 private:
  QString Typed(const QString& text) const;
  QString Pasted(const QString& text) const;
  void Paste(QClipboard::Mode mode);

  Content content_;
};

}  // namespace qismora
