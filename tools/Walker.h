#pragma once

#include <QImage>
#include <QString>
#include <map>
#include <vector>

namespace qismora::tour {

/// What a user does with a control of the active window, which is given by its name. SetLanguage chooses the
/// language with that name.
enum class Do { Click, DoubleClick, Hover, Choose, Pick, Type, Bottom, SetLanguage, Close };

struct Step {
  Do What;
  const char* Name = "";
  const char* Text = "";
};

/// What a picture shows: the active window after the steps, the same with Case Study to its left, or the
/// first message box that the steps open.
enum class Shown { Window, BesideCaseStudy, MessageBox };

struct Stop {
  const char* Picture;
  std::vector<Step> Steps;
  Shown Shows = Shown::Window;
};

/// The pictures by name.
using Album = std::map<QString, QImage>;

/// Starts the program with its real windows, plays the stops in order and takes a picture at each. It creates
/// the QApplication itself, since the environment must be fixed before that.
Album Walk(const std::vector<Stop>& stops, int argc, char** argv);

}  // namespace qismora::tour
