#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

namespace qismora::testing {

/// Records the text of every message box and closes it. A test takes the texts that it expects; what is left
/// at its end was unexpected.
class MessageBoxSpy : public QObject {
 public:
  MessageBoxSpy() { startTimer(5); }

  /// Leaves the message boxes to the test.
  void Leave() { watches_ = false; }
  void Watch() { watches_ = true; }

  /// Presses this button of each message box that has it.
  void Press(QMessageBox::StandardButton button) { press_ = button; }

  /// The texts recorded so far.
  QStringList Take() { return std::exchange(texts_, {}); }
  int Count() const { return static_cast<int>(texts_.size()); }
  /// The window that the last message box belonged to, and whether that box stayed on top.
  QString Owner() const { return owner_; }
  bool WasOnTop() const { return onTop_; }
  /// The texts of its buttons.
  QStringList Buttons() const { return buttons_; }

 protected:
  void timerEvent(QTimerEvent*) override {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || !watches_) return;
    auto* box = qobject_cast<QMessageBox*>(modal);
    texts_.append(box != nullptr ? box->text() : QStringLiteral("a modal window that is not a message box"));
    owner_ = modal->parentWidget() == nullptr ? QString() : modal->parentWidget()->objectName();
    buttons_.clear();
    for (const auto* button : modal->findChildren<QAbstractButton*>()) buttons_.append(button->text());
    onTop_ = (modal->windowFlags() & Qt::WindowStaysOnTopHint) != 0;
    if (box != nullptr && box->button(press_) != nullptr) return box->button(press_)->click();
    modal->close();
  }

 private:
  QStringList texts_;
  QString owner_;
  bool onTop_ = false;
  QStringList buttons_;
  QMessageBox::StandardButton press_ = QMessageBox::NoButton;
  bool watches_ = true;
};

}  // namespace qismora::testing
