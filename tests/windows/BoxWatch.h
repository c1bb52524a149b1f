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

  /// The texts of the boxes so far.
  QStringList Take() { return std::exchange(texts_, {}); }
  int Count() const { return static_cast<int>(texts_.size()); }

 protected:
  void timerEvent(QTimerEvent*) override {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    auto* box = qobject_cast<QMessageBox*>(modal);
    texts_.append(box != nullptr ? box->text() : QStringLiteral("a modal window that is no box"));
    modal->close();
  }

 private:
  QStringList texts_;
};

}  // namespace qismora::testing
