#include "Terms.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace qismora::documents {

namespace {

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream in(line);
  for (std::string field; std::getline(in, field, '\t');) fields.push_back(field);
  return fields;
}

}  // namespace

TermTable ReadTerms(const std::string& path) {
  std::ifstream in(path);
  std::string line;
  if (!std::getline(in, line)) throw std::runtime_error("cannot read " + path);
  const std::vector<std::string> names = Fields(line);
  TermTable terms;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields = Fields(line);
    fields.resize(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) terms[fields.front()][names[i]] = fields[i];
  }
  return terms;
}

}  // namespace qismora::documents
