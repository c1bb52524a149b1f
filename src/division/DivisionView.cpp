#include "division/DivisionView.h"

#include <algorithm>

#include "base/Text.h"
#include "casefile/HeirFields.h"

namespace qismora {

namespace {

using faraid::Change;
using faraid::Kind;
using faraid::Standing;

/// Whether a residuary takes something.
bool HasResiduary(const faraid::Division& division) {
  return std::ranges::any_of(division.Rows, [](const faraid::Row& row) {
    return row.Heir != Kind::Remainder && row.Share > 0 && row.As != Standing::Sharer;
  });
}

DivisionOutcome OutcomeOf(const faraid::Division& division) {
  const auto has = [&](auto condition) { return std::ranges::any_of(division.Rows, condition); };
  if (division.Base == 0) return DivisionOutcome::NoHeirs;
  if (division.RaisedTo > 0) return DivisionOutcome::AwlApplied;
  if (has([](const faraid::Row& row) { return row.Why.Changed == Change::Radd; }))
    return DivisionOutcome::RaddApplied;
  if (has([](const faraid::Row& row) { return row.Heir == Kind::Remainder; }))
    return DivisionOutcome::Remainder;
  return HasResiduary(division) ? DivisionOutcome::Residue : DivisionOutcome::FitsExactly;
}

std::int64_t PartsOf(const faraid::Fraction& share, std::int64_t base) {
  return share.Num() * (base / share.Den());
}

void Fill(DivisionView& view, const faraid::Division& division) {
  view.Outcome = OutcomeOf(division);
  view.Division = division;
  const faraid::Amounts amounts = faraid::AmountsOf(division, view.Settlement.Net);
  for (std::size_t i = 0; i < division.Rows.Size(); ++i) {
    const faraid::Row& row = division.Rows[i];
    const DivisionLine line = {row, amounts[i], PartsOf(row.Share, division.CorrectedBase)};
    (line.Takes() ? view.Takers : view.Others).push_back(line);
    if (!line.Takes()) continue;
    view.Sum.Heads += row.Heir == Kind::Remainder ? 0 : row.Heads;
    view.Sum.Parts += line.Parts;
    view.Sum.Together += line.Amount.Together;
  }
}

/// What is the same for all schools.
DivisionView ViewWithoutLines(const CaseTexts& texts, const DivisionInput& input) {
  DivisionView view;
  view.Name = texts.Field(NameField);
  view.Gender = texts.Gender;
  view.Unreadable = input.Unreadable;
  view.Family = input.Family;
  view.Estate = input.Estate;
  for (const ExampleFigure& example : ExampleFigures) {
    if (texts.Field(example.Index) == example.Text) view.Examples.push_back(example.Index);
  }
  if (view.Name == ExampleName) view.Examples.push_back(NameField);
  if (!view.Unreadable.empty()) return view;
  view.Settlement = faraid::Settle(input.Estate);
  view.Outcome = view.Settlement.Shortfall > 0 ? DivisionOutcome::Short : DivisionOutcome::NoHeirs;
  return view;
}

}  // namespace

bool DivisionView::ConsentMatters() const {
  if (!IsDivided()) return false;
  faraid::Estate withoutConsent = Estate;
  withoutConsent.HeirsConsent = false;
  return faraid::Settle(withoutConsent).Bequests < Estate.Bequests;
}

const DivisionLine* DivisionView::Find(Kind heir) const {
  for (const auto* lines : {&Takers, &Others}) {
    const auto found = std::ranges::find(*lines, heir, &DivisionLine::Heir);
    if (found != lines->end()) return &*found;
  }
  return nullptr;
}

DivisionView ViewDivision(const CaseTexts& texts, faraid::School school) {
  const DivisionInput input = ReadDivisionInput(texts);
  DivisionView view = ViewWithoutLines(texts, input);
  view.School = school;
  if (view.IsDivided()) Fill(view, faraid::Divide(input.Family, school));
  return view;
}

DivisionView ViewDivision(const CaseScreen& screen, bool heirsConsent, faraid::School school) {
  const CaseTexts texts = ReadScreen(screen, heirsConsent);
  DivisionView view = ViewDivision(texts, school);
  if (view.IsDivided()) {
    view.Own = OwnAnswerOf(texts);
    view.Differs = Compare(ReadDivisionInput(texts), *view.Own, school);
  }
  return view;
}

SchoolViews ViewFourSchools(const CaseTexts& texts) {
  const DivisionInput input = ReadDivisionInput(texts);
  SchoolViews views;
  for (std::size_t i = 0; i < views.size(); ++i) {
    views[i] = ViewWithoutLines(texts, input);
    views[i].School = static_cast<faraid::School>(i);
    if (views[i].IsDivided()) Fill(views[i], faraid::Divide(input.Family, views[i].School));
  }
  return views;
}

bool SchoolsDiffer(const SchoolViews& views, Kind heir) {
  const DivisionLine* first = views[0].Find(heir);
  return std::ranges::any_of(views, [&](const DivisionView& view) {
    const DivisionLine* line = view.Find(heir);
    if (line == nullptr || first == nullptr) return line != first;
    return line->Law.Share != first->Law.Share || line->Law.Why != first->Law.Why;
  });
}

std::vector<HeirChange> ChangesBetween(const DivisionView& before, const DivisionView& now) {
  std::vector<HeirChange> changes;
  for (std::size_t i = 0; i <= faraid::KindCount; ++i) {
    const auto kind = static_cast<Kind>(i);
    const DivisionLine* old = before.Find(kind);
    const DivisionLine* present = now.Find(kind);
    if (old == nullptr && present == nullptr) continue;
    HeirChange change{kind, {}, {}};
    if (old != nullptr) change.Before = old->Amount.Together;
    if (present != nullptr) change.Now = present->Amount.Together;
    changes.push_back(change);
  }
  return changes;
}

CaseTexts WithHeads(CaseTexts texts, Kind heir, int heads) {
  if (heir == Kind::Remainder) return texts;
  const auto index = static_cast<std::size_t>(heir);
  if (index < HeirFields.size()) {
    texts.Field(HeirFields[index].Index) = std::to_string(heads);
  } else {
    texts.ClassII[index - HeirFields.size()] = heads > 0;
  }
  return texts;
}

}  // namespace qismora
