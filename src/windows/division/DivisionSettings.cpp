#include "windows/division/DivisionSettings.h"

#include <QStringList>
#include <algorithm>

#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

constexpr const char* application = "Qismora";
constexpr const char* section = "Division";
constexpr const char* schoolNames[] = {"Hanafi", "Maliki", "Shafii", "Hanbali"};

}  // namespace

std::string DivisionSettings::Read(const char* key) const { return store_.Read(application, section, key); }

void DivisionSettings::Write(const char* key, const std::string& value) {
  store_.Write(application, section, key, value);
}

bool DivisionSettings::IsWanted() const { return Read("Open") != "no"; }

void DivisionSettings::SetWanted(bool wanted) { Write("Open", wanted ? "yes" : "no"); }

faraid::School DivisionSettings::School() const {
  const auto* found = std::find(std::begin(schoolNames), std::end(schoolNames), Read("School"));
  return found == std::end(schoolNames) ? faraid::School::Hanafi
                                        : static_cast<faraid::School>(found - std::begin(schoolNames));
}

void DivisionSettings::SetSchool(faraid::School school) {
  Write("School", schoolNames[static_cast<std::size_t>(school)]);
}

QList<int> DivisionSettings::Numbers(const char* key, qsizetype count) const {
  QList<int> numbers;
  for (const QString& word : ToQt(Read(key)).split(QLatin1Char(','))) {
    bool isNumber = false;
    numbers.append(word.toInt(&isNumber));
    if (!isNumber) return {};
  }
  return numbers.size() == count ? numbers : QList<int>();
}

void DivisionSettings::SetNumbers(const char* key, const QList<int>& numbers) {
  QStringList words;
  for (const int number : numbers) words.append(QString::number(number));
  Write(key, FromQt(words.join(QLatin1Char(','))));
}

}  // namespace qismora
