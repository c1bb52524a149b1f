#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <utility>

#include "division/DivisionView.h"

// What the paper of a division says beside its tables, in the current language. The clipboard has it too.
namespace qismora {

/// A caption and what stands beside it.
using PaperFact = std::pair<QString, QString>;

QString DateOnPaper(const QDate& date);
/// The deceased, the date and the school.
QList<PaperFact> FactsOnPaper(const DivisionView& view, const QDate& date);
/// Why nobody receives anything, and who is alive, where debts exceed the estate.
QStringList NothingLeft(const DivisionView& view);
/// That amounts differ by a hundredth; empty where none do.
QString NoteOnHundredths(const DivisionView& view);
/// That the commands of Case Study give other amounts, and why; empty where they do not.
QString NoteOnOtherReport(const DivisionView& view);

}  // namespace qismora
