// qismora-divide: divides many estates, from tables or case files, without a window.

#include <algorithm>

#include "divide/Answers.h"
#include "divide/Families.h"
#include "divide/Messages.h"

namespace qismora::divide {

namespace {

/// One run of the program: divides family by family.
class Run {
 public:
  explicit Run(const Options& options)
      : options_(options), format_(FormatOf(options)), messages_(options.Quiet), number_(options.First) {}

  /// Reads all sources and writes all answers. Faults go to standard error.
  ExitStatus DivideAll() {
    try {
      if (format_.Begin != nullptr) format_.Begin(options_, out_.Buffer);
      for (const std::string& path : options_.Paths) ReadSource(path);
      if (format_.End != nullptr) format_.End(out_.Buffer);
      out_.Flush();
    } catch (const CannotWrite& failure) {
      messages_.Print(failure.what());
      return NotDone;
    }
    if (refused_ == 0) return status_;
    if (!options_.Quiet) {
      messages_.Print(std::to_string(refused_) + " of " + std::to_string(divided_ + refused_) +
                      " families were not divided.");
    }
    return std::max(status_, SomeNotDivided);
  }

 private:
  void ReadSource(const std::string& path) {
    try {
      Source source(path, [this] { out_.Flush(); });
      const InputEvents events = {
          .Family =
              [&](const InputFamily& family) {
                if (family.Faults.empty()) {
                  Divide(family);
                } else {
                  Refuse(source, family);
                }
                messages_.Progress(source);
              },
          .Skipped = [&](std::int64_t line,
                         const std::string& sentence) { messages_.Print(source.Name(), line, sentence); },
      };
      try {
        ReadFamilies(source, options_, number_, events);
      } catch (const InputFault& fault) {
        messages_.Print(source.Name(), fault.Line, fault.Sentence);
        status_ = NotDone;
      }
    } catch (const CannotRead& failure) {
      messages_.Print(failure.what());
      status_ = NotDone;
    }
  }

  void Divide(const InputFamily& family) {
    answer_.Id = family.Id;
    answer_.Name = family.Texts->Fields[static_cast<std::size_t>(NameField)];
    answer_.Estate = family.Input.Estate;
    answer_.Estate.HeirsConsent = answer_.Estate.HeirsConsent || options_.HeirsConsent;
    answer_.Settlement = faraid::Settle(answer_.Estate);
    answer_.Schools.resize(answer_.Settlement.Shortfall > 0 ? 0 : options_.Schools.size());
    for (std::size_t i = 0; i < answer_.Schools.size(); ++i) {
      SchoolDivision& school = answer_.Schools[i];
      school.School = options_.Schools[i];
      school.Division = faraid::Divide(family.Input.Family, school.School);
      school.Amounts = faraid::AmountsOf(school.Division, answer_.Settlement.Net);
    }
    if (options_.Compare) CompareWithCommands(family);
    format_.Write(answer_, options_, divided_ == 0, out_.Buffer);
    ++divided_;
    out_.FlushIfFull();
  }

  void CompareWithCommands(const InputFamily& family) {
    CaseTexts texts = *family.Texts;
    texts.HeirsConsent = answer_.Estate.HeirsConsent;
    const DivisionInput input = {.Family = family.Input.Family, .Estate = answer_.Estate, .Unreadable = {}};
    answer_.Commands = OwnAnswerOf(texts);
    for (SchoolDivision& school : answer_.Schools) {
      school.Differs = Compare(input, *answer_.Commands, school.School);
    }
    if (answer_.Schools.empty()) {
      answer_.Differs = Compare(input, *answer_.Commands, options_.Schools.front());
    }
  }

  void Refuse(const Source& source, const InputFamily& family) {
    ++refused_;
    if (OutputIsTerminal()) out_.Flush();  // the fault stands where its family would
    for (const std::string& fault : family.Faults) messages_.Print(source.Name(), family.Line, fault);
  }

  const Options& options_;
  const AnswerFormat& format_;
  Messages messages_;
  Sink out_;
  Answer answer_;
  std::int64_t number_;
  std::int64_t divided_ = 0;
  std::int64_t refused_ = 0;
  ExitStatus status_ = AllDivided;
};

}  // namespace

}  // namespace qismora::divide

int main(int count, char** words) {
  const qismora::divide::Options options = qismora::divide::ReadOptions(count, words);
  return qismora::divide::Run(options).DivideAll();
}
