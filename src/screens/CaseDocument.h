#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/CaseStudy.h"

namespace qismora {

/// The case of the Case Study screen as a document: under which file it is kept, whether it has changed
/// since, and the commands that open and save it. What is changed is not left without a question.
class CaseDocument {
 public:
  /// The example that a new screen shows counts as kept: it is no work of the user.
  CaseDocument(CaseStudy& form, Ports& ports);

  // The commands of the menu.
  /// Empties everything, the estate of the example too.
  void New();
  void Open();
  void Save();
  void SaveAs();

  /// Opens a case file. A damaged file is refused with the number of its line and changes nothing; lines of a
  /// newer version are named. False where the file is not open then.
  bool OpenFile(const std::string& path);

  /// Asks about a changed case: Save, Discard or Cancel. True if it may be left.
  bool MayLeave();

  bool IsChanged() const;
  /// The path of the file; empty before there is one.
  const std::string& Path() const { return path_; }
  /// The name of the file, and whether the case has changed: estate.qismora, changed. Without a file: Not
  /// saved, or nothing.
  Property<std::string> Title;

  /// The files that were opened or saved last, the latest first.
  std::vector<std::string> Recent() const;
  static constexpr int MostRecent = 8;

 private:
  bool SaveTo(const std::string& path);
  bool SaveOrAsk();
  bool AskAndSave();
  void Start(const CaseTexts& texts, const std::string& path);
  CaseTexts Texts() const;
  void Review();
  void Remember(const std::string& path, bool exists);
  std::string Folder() const;
  std::string SuggestedPath() const;

  CaseStudy& form_;
  Ports& ports_;
  std::string path_;
  CaseTexts kept_;
  /// Lines of the file are not known here; saving in its place would lose them.
  bool incomplete_ = false;
  bool starting_ = false;
};

}  // namespace qismora
