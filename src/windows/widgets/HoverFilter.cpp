#include "windows/widgets/HoverFilter.h"

#include <QMouseEvent>
#include <QWidget>
#include <utility>

namespace qismora {

namespace {

class HoverFilter : public QObject {
 public:
  HoverFilter(QWidget* widget, std::function<void()> moved) : QObject(widget), moved_(std::move(moved)) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::MouseMove) return false;
    moved_();
    return static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton;
  }

 private:
  std::function<void()> moved_;
};

}  // namespace

void WhenMouseMoves(QWidget* widget, std::function<void()> moved) {
  new HoverFilter(widget, std::move(moved));
}

}  // namespace qismora
