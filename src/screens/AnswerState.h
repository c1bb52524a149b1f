#pragma once

#include <cstdint>
#include <string>

#include "base/Message.h"
#include "casefile/CaseTexts.h"

namespace qismora {

/// How far the answer that the screen shows can be relied on.
enum class AnswerStanding : std::uint8_t {
  NoAnswer,
  /// The share of one heir, or the reports of the sharers: what the residuaries take is not in it.
  Partial,
  /// The shares do not fit the estate: Aul or Radd is still to be applied.
  ToAdjust,
  Final,
  /// More is paid from the estate than there is, so nothing is left to divide.
  BelowZero,
  /// The figures are not those of the case.
  Refused,
  /// The fields hold another case than the one that was answered.
  Changed,
};

/// What a command answers: nothing where it only loads the case (a double click on the caption without a
/// text), the share of one heir, or those of all.
enum class AnswerOf : std::uint8_t { Nothing, OneShare, AllShares };

/// Follows the commands of the Case Study screen and the changes of its fields, and says how far the
/// shown answer can be relied on. It only watches.
class AnswerState {
 public:
  /// A command begins, under the name that its answer shall have.
  void Begin(AnswerOf what, std::string command);
  /// A load within the command has read the whole case.
  void LoadCompleted() { loaded_ = true; }
  /// The command has distributed the residue.
  void Distributed() { distributed_ = true; }
  /// A message has stopped a load, so that the record holds other figures than the fields, or a failure the
  /// command. The first reason counts.
  void Stopped(const std::string& reason);
  /// The command has shown the figures of Aul or Radd.
  void DoctrineApplied() { adjusted_ = true; }
  /// The command ends. The state of the adjustment is AulRaddState, the texts are those of the fields.
  void End(int adjustment, bool netBelowZero, const CaseTexts& texts);

  /// A field was changed, and the fields hold these texts now.
  void FieldsChanged(const CaseTexts& texts);
  /// The gender was switched, which takes the spouse from the record: only a new load brings the figures
  /// back.
  void GenderSwitched() { spouseLost_ = true; }
  /// The results were cleared.
  void Cleared();

  AnswerStanding Standing() const;
  /// The standing as a sentence: Answer of Residuaries: final.
  Message Sentence() const;

 private:
  AnswerStanding standing_ = AnswerStanding::NoAnswer;
  std::string command_;
  std::string reason_;
  bool radd_ = false;

  // The fields as the last load has read them.
  CaseTexts answered_;
  bool differ_ = false;
  bool spouseLost_ = false;
  // The fields when the last command ended, and whether they hold another case now.
  CaseTexts ended_;
  bool changedSince_ = false;

  // The command that runs.
  AnswerOf running_ = AnswerOf::Nothing;
  std::string runningCommand_;
  bool loaded_ = false;
  bool distributed_ = false;
  bool adjusted_ = false;
  bool stopped_ = false;
};

}  // namespace qismora
