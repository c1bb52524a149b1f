#include "screens/AnswerState.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "case/CaseRecord.h"

namespace qismora {

namespace {

using enum AnswerStanding;

/// What a command has done to the answer.
enum class Outcome : std::uint8_t {
  Stopped,
  OnlyLoaded,
  NetBelowZero,
  OneShare,
  SharesDoNotFit,
  ReportsFit,
  DistributionFits,
  Adjusted,
};

struct Transition {
  /// Nothing means any standing.
  std::optional<AnswerStanding> Before;
  Outcome What;
  AnswerStanding After;
};

// The first row that fits decides. Aul/ Radd uses the result of the last sufficiency test and the fractions
// of the last command. So its answer is right only once, and only directly after that test.
constexpr Transition transitions[] = {
    {std::nullopt, Outcome::Stopped, Refused},         {std::nullopt, Outcome::OnlyLoaded, NoAnswer},
    {std::nullopt, Outcome::NetBelowZero, BelowZero},  {std::nullopt, Outcome::OneShare, Partial},
    {std::nullopt, Outcome::SharesDoNotFit, ToAdjust}, {std::nullopt, Outcome::ReportsFit, Partial},
    {std::nullopt, Outcome::DistributionFits, Final},  {ToAdjust, Outcome::Adjusted, Final},
    {std::nullopt, Outcome::Adjusted, Refused},
};

AnswerStanding After(AnswerStanding before, Outcome what) {
  return std::ranges::find_if(
             transitions,
             [&](const Transition& row) { return row.What == what && row.Before.value_or(before) == before; })
      ->After;
}

bool DoNotFit(int adjustment) {
  return adjustment == AulBesideResiduary || adjustment == Aul || adjustment == Radd;
}

// The name of the deceased stands in the texts of the answer and in none of its figures. About the consent of
// the heirs the commands ask themselves.
bool IsAnotherCase(CaseTexts texts, const CaseTexts& before) {
  texts.Fields[NameField] = before.Fields[NameField];
  texts.HeirsConsent = before.HeirsConsent;
  return texts != before;
}

/// The outcome of a command that has loaded the case.
Outcome OutcomeOf(AnswerOf what, int adjustment, bool netBelowZero, bool distributed) {
  if (what == AnswerOf::Nothing) return Outcome::OnlyLoaded;
  if (netBelowZero) return Outcome::NetBelowZero;
  if (what == AnswerOf::OneShare) return Outcome::OneShare;
  if (DoNotFit(adjustment)) return Outcome::SharesDoNotFit;
  return distributed ? Outcome::DistributionFits : Outcome::ReportsFit;
}

}  // namespace

void AnswerState::Begin(AnswerOf what, std::string command) {
  running_ = what;
  runningCommand_ = std::move(command);
  loaded_ = distributed_ = adjusted_ = stopped_ = false;
}

void AnswerState::Stopped(const std::string& reason) {
  if (stopped_) return;
  stopped_ = true;
  reason_ = reason.substr(0, reason.find('\r'));
}

void AnswerState::End(int adjustment, bool netBelowZero, const CaseTexts& texts) {
  ended_ = texts;
  if (stopped_) {
    standing_ = After(standing_, Outcome::Stopped);
    return;
  }
  if (loaded_) {
    standing_ = After(standing_, OutcomeOf(running_, adjustment, netBelowZero, distributed_));
    command_ = runningCommand_;
    radd_ = adjustment == Radd;
    answered_ = texts;
    differ_ = spouseLost_ = false;
  }
  if (!adjusted_) return;
  const bool again = standing_ == Final;
  standing_ = After(standing_, Outcome::Adjusted);
  command_ = runningCommand_;
  if (standing_ == Refused) {
    reason_ = again
                  ? Translatable(
                        "Aul/ Radd worked on figures that it had adjusted already. Choose Residuaries again.")
                  : Translatable("Aul/ Radd was applied to other shares. Choose Residuaries first.");
  }
}

void AnswerState::FieldsChanged(const CaseTexts& texts) {
  differ_ = IsAnotherCase(texts, answered_);
  changedSince_ = IsAnotherCase(texts, ended_);
}

void AnswerState::Cleared() { standing_ = NoAnswer; }

AnswerStanding AnswerState::Standing() const {
  if (standing_ == NoAnswer || standing_ == Refused) return standing_;
  return differ_ || spouseLost_ ? Changed : standing_;
}

Message AnswerState::Sentence() const {
  const std::vector<Message::Value> command = {{"command", command_}};
  switch (Standing()) {
    case NoAnswer:
      return Message{"No answer yet."};
    case Partial:
      return Message{"Answer of {command}: not the whole distribution, which Residuaries (F5) gives.",
                     command};
    case ToAdjust:
      if (radd_) {
        return Message{"Answer of {command}, not final: Radd is still to be applied (Aul/ Radd, F6).",
                       command};
      }
      return Message{"Answer of {command}, not final: Aul is still to be applied (Aul/ Radd, F6).", command};
    case Final:
      return Message{"Answer of {command}: final.", command};
    case BelowZero:
      return Message{"Answer of {command}: the net estate is below 0, nothing is left to divide.", command};
    case Refused:
      if (changedSince_) return Message{"Refused; fields have changed since. Choose Residuaries (F5)."};
      return Message{"Refused: these figures are not your case. {reason}", {{"reason", reason_}}};
    case Changed:
      return Message{"Fields have changed since the answer of {command}.", command};
  }
  return {};
}

}  // namespace qismora
