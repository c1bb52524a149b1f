#pragma once

#include <QList>
#include <QString>

#include "division/DivisionView.h"

// Who signs the paper of a division.
namespace qismora {

/// A line of the table of signatures.
struct SignatureLine {
  /// "Mother", "Daughter 2", "100 Sons".
  QString Who;
  /// More heads than the paper has lines for: they sign a list of their own.
  bool OnAList = false;
};

/// A line for each head who takes. Where the heads are more than a page has space for, the heir with the most
/// heads has one line for all of them, and so on.
QList<SignatureLine> SignatureLines(const DivisionView& view);

/// The lines as a table to be filled in by hand; empty where no heir takes anything.
QString TableOfSignatures(const DivisionView& view);
/// Space for the names and signatures of who has prepared the paper and of two witnesses.
QString OtherSignatures();

}  // namespace qismora
