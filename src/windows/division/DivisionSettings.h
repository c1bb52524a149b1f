#pragma once

#include <QList>
#include <string>

#include "base/Ports.h"
#include "faraid/School.h"

namespace qismora {

/// What the Division window remembers, in a section of the settings of its own.
class DivisionSettings {
 public:
  explicit DivisionSettings(Settings& store) : store_(store) {}

  /// Whether the user wants the window beside Case Study: yes, until the user closes it.
  bool IsWanted() const;
  void SetWanted(bool wanted);
  /// Hanafi before any is chosen.
  faraid::School School() const;
  void SetSchool(faraid::School school);
  /// The numbers under a key; none unless there are exactly this many.
  QList<int> Numbers(const char* key, qsizetype count) const;
  void SetNumbers(const char* key, const QList<int>& numbers);

 private:
  std::string Read(const char* key) const;
  void Write(const char* key, const std::string& value);

  Settings& store_;
};

}  // namespace qismora
