#pragma once

#include <string>
#include <utility>
#include <vector>

namespace qismora::documents {

// The sources are a small subset of Markdown, read without a toolkit, so that a test can play the worked
// cases of a document without drawing it.

/// A command of the screen and every line that the program answers.
struct Played {
  std::string Command;
  std::vector<std::string> Lines;
};

/// A worked case: what is typed into the boxes, by their captions, and the answers in the order of the
/// commands.
struct WorkedCase {
  std::string Title;
  std::vector<std::pair<std::string, std::string>> Boxes;
  std::vector<Played> Answers;
};

/// A verse with its Arabic, letter for letter.
struct Verse {
  int Surah = 0;
  int Number = 0;
  std::string SurahName;
  std::string SurahArabic;
  std::string Arabic;
};

enum class BlockKind {
  Heading,
  Paragraph,
  Bullet,
  Numbered,
  Note,
  Table,
  Case,
  VerseText,
  Figure,
  Terms,
  PageBreak
};

struct Block {
  BlockKind Kind = BlockKind::Paragraph;
  /// The level of a heading, or the number of a list item.
  int Level = 0;
  /// The text with its inline marks; the name of a figure; the keys of the terms.
  std::string Text;
  /// The rows of a table, its heads first, and the relative widths of its columns.
  std::vector<std::vector<std::string>> Rows;
  std::vector<int> Widths;
  WorkedCase Case;
  Verse Ayah;
};

struct Source {
  std::string Title;
  std::string TitleArabic;
  std::string Subtitle;
  /// The name of the PDF.
  std::string File;
  std::vector<Block> Blocks;
};

/// Both throw a std::runtime_error that names the line which cannot be read.
Source ParseSource(const std::string& text);
Source ReadSource(const std::string& path);
/// The worked cases of a text in any other Markdown.
std::vector<WorkedCase> ReadCases(const std::string& path);

/// The two sides of `box = value`.
std::pair<std::string, std::string> SplitEntry(const std::string& line);

/// The cells of a table row, `| a | b |`.
std::vector<std::string> SplitCells(const std::string& line);
std::string Trim(const std::string& text);

}  // namespace qismora::documents
