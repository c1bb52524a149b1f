#pragma once

#include <QRect>

#include "windows/division/DivisionSettings.h"

class QWidget;

namespace qismora {

/// Whether the screen has room for the Division window beside Case Study.
bool HasRoomBeside(const QWidget& study);

/// Where the Division window shall stand: where it was when it was last closed, or beside Case Study, or at
/// the right of a screen without room beside it. It covers Case Study only at the user's request. The title
/// bar is added above.
QRect DivisionPlace(const QWidget& study, const DivisionSettings& settings, bool opensByItself, int titleBar);

}  // namespace qismora
