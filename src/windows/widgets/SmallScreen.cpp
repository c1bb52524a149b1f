#include "windows/widgets/SmallScreen.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

namespace qismora {

void FitWindow(QMainWindow* window, const QSize& needed, const QSize& form, const QSize& room) {
  const int title = window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
  QSize size = needed.boundedTo(room - QSize(0, title));
  if (size != needed) {
    QWidget* focus = window->focusWidget();
    auto* scroll = new QScrollArea(window);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    QWidget* ground = window->takeCentralWidget();
    ground->setMinimumSize(form);
    scroll->setWidget(ground);
    scroll->setWidgetResizable(true);
    ground->show();
    if (focus != nullptr) focus->setFocus();
    window->setCentralWidget(scroll);
    // The bar takes its room beside the form where there is any.
    if (size.height() < needed.height()) {
      size.setWidth(std::min(room.width(), size.width() + scroll->verticalScrollBar()->sizeHint().width()));
    }
  }
  window->setMinimumSize(size);
  window->resize(size);
}

}  // namespace qismora
