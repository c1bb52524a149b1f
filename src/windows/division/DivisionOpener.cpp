#include "windows/division/DivisionOpener.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "windows/division/DivisionPlace.h"
#include "windows/division/DivisionWindow.h"

namespace qismora {

DivisionOpener::DivisionOpener(CaseStudy& form, Settings& store, QWidget* study)
    : QObject(study), form_(form), store_(store), study_(study) {
  study->installEventFilter(this);
}

DivisionOpener::~DivisionOpener() {
  if (window_ != nullptr && window_->isVisible()) window_->SavePlace();
}

void DivisionOpener::Make() {
  if (window_ != nullptr) return;
  window_ = std::make_unique<DivisionWindow>(form_, store_);
  window_->ShowCase = [this] {
    study_->setWindowState(study_->windowState() & ~Qt::WindowMinimized);
    study_->raise();
    study_->activateWindow();
  };
}

void DivisionOpener::Open() {
  Make();
  DivisionSettings(store_).SetWanted(true);
  window_->setAttribute(Qt::WA_ShowWithoutActivating, false);
  window_->ShowBeside(*study_);
  window_->TakeFocus();
}

void DivisionOpener::OpenBeside() {
  if (!study_->isVisible() || !DivisionSettings(store_).IsWanted() || !HasRoomBeside(*study_)) return;
  Make();
  window_->setAttribute(Qt::WA_ShowWithoutActivating, true);
  QWidget* active = QApplication::activeWindow();
  window_->ShowBeside(*study_);
  // Some platforms activate each new window.
  if (active != nullptr) active->activateWindow();
}

// A window that is minimized hides spontaneously; it does not hide this one.
bool DivisionOpener::eventFilter(QObject* watched, QEvent* event) {
  if (watched == study_ && window_ != nullptr && !event->spontaneous()) {
    if (event->type() == QEvent::Hide) {
      comesBack_ = window_->isVisible();
      window_->hide();
    } else if (event->type() == QEvent::Show && comesBack_) {
      OpenBeside();
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace qismora
