#pragma once

#include <map>
#include <string>
#include <vector>

namespace qismora::documents {

/// The heirs in three languages: the rows of the table of terms by their key, each a map from the name
/// of a column to its text. The captions on the screen are made from the same table.
using TermTable = std::map<std::string, std::map<std::string, std::string>>;

TermTable ReadTerms(const std::string& path);

}  // namespace qismora::documents
