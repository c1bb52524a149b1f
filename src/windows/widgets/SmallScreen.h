#pragma once

#include <QMainWindow>
#include <QSize>

namespace qismora {

/// Gives a window the size that its form needs. In a room smaller than that the window takes what there is
/// and the form, so large inside of it, scrolls.
void FitWindow(QMainWindow* window, const QSize& needed, const QSize& form, const QSize& room);

}  // namespace qismora
