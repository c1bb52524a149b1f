#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <vector>

namespace qismora::tour {

/// What a user does with a control of the window in use, by the control's name.
enum class Do { Click, DoubleClick, Hover, Choose, Pick, Type, Bottom, Close };

struct Step {
  Do What;
  const char* Name = "";
  const char* Text = "";
};

/// What a picture shows: the window in use behind the steps, or the message box that comes up on the way.
enum class Shown { Window, Box };

struct Stop {
  const char* Picture;
  std::vector<Step> Steps;
  Shown Shows = Shown::Window;
};

using Album = std::map<QString, QImage>;

/// Starts the program with its real windows, walks the road and brings a picture from each stop. It makes the
/// QApplication itself, since much of what has to be fixed must be so before.
Album Walk(const std::vector<Stop>& road, int argc, char** argv);

}  // namespace qismora::tour
