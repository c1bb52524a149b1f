#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

namespace qismora::testing {

/// Reads every message box that comes up and presses its first button. A test takes the texts that it
/// expects; what is left at its end came unexpectedly.
class BoxWatch : public QObject {
 public:
  BoxWatch() { startTimer(5); }

  /// Leaves the boxes to the test.
  void Leave() { watches_ = false; }
  void Watch() { watches_ = true; }

  /// The texts of the boxes so far.
  QStringList Take() { return std::exchange(texts_, {}); }
  int Count() const { return static_cast<int>(texts_.size()); }
  /// The window that the last box belonged to, and whether that box stayed on top of all.
  QString Owner() const { return owner_; }
  bool WasOnTop() const { return onTop_; }

 protected:
  void timerEvent(QTimerEvent*) override {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || !watches_) return;
    auto* box = qobject_cast<QMessageBox*>(modal);
    texts_.append(box != nullptr ? box->text() : QStringLiteral("a modal window that is no box"));
    owner_ = modal->parentWidget() == nullptr ? QString() : modal->parentWidget()->objectName();
    onTop_ = (modal->windowFlags() & Qt::WindowStaysOnTopHint) != 0;
    modal->close();
  }

 private:
  QStringList texts_;
  QString owner_;
  bool onTop_ = false;
  bool watches_ = true;
};

}  // namespace qismora::testing
