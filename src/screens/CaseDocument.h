#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "casefile/CaseFile.h"
#include "screens/CaseStudy.h"

namespace qismora {

/// The case of the Case Study screen as a document: its file, whether it has changed since it was saved, and
/// the commands that open and save it. A changed case is not lost without a question.
class CaseDocument {
 public:
  /// The example that a new screen shows counts as saved, because it is not the user's work.
  CaseDocument(CaseStudy& form, CasePorts& ports);

  /// Puts a message into the language of the user; English unless a window sets it.
  std::function<std::string(const Message&)> Translate = [](const Message& message) {
    return English(message);
  };
  /// Writes the title again, for when that language has changed.
  void UpdateTitle();

  // The commands of the menu.
  /// Empties all fields, including the example's estate.
  void New();
  void Open();
  void Save();
  void SaveAs();

  /// Opens a case file. A damaged file is refused with the number of the faulty line, and changes nothing.
  /// Lines of a newer version are skipped and listed. False if the file is not opened.
  bool OpenFile(const std::string& path);

  /// Asks about a changed case: Save, Discard or Cancel. True if it may be left.
  bool MayLeave();

  bool IsChanged() const;
  /// The path of the file; empty before there is one.
  const std::string& Path() const { return path_; }
  /// The name of the file, and whether the case has changed: "estate.qismora, changed". Without a file: "Not
  /// saved" if the case has changed, else empty.
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
  std::string SentenceOf(const CaseFileFault& fault) const;
  std::string SentenceOf(const std::vector<CaseLine>& unknown) const;
  void Remember(const std::string& path, bool exists);
  std::string Folder() const;
  std::string SuggestedPath() const;

  CaseStudy& form_;
  CasePorts& ports_;
  std::string path_;
  CaseTexts kept_;
  /// The file has lines of a newer version, which saving under its name would lose.
  bool incomplete_ = false;
  bool starting_ = false;
};

}  // namespace qismora
