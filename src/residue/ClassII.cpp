#include "residue/ClassII.h"

#include "base/NumberText.h"
#include "base/Text.h"

namespace qismora {

// Fixed wording; do not correct: the double blank in the last caption, the short name "F.UN. SON".
const std::array<ClassIIRow, 12> ClassIIRows = {{
    {"Full Brother's son", " will go to Full Brother's Son(s).", "BROTHER's SON(s) = ", "BROTHER's SON"},
    {"Consanguine Brother's son", " will go to Consanguine Brother's Son(s).",
     "Cons. Brother's son(s) = ", "C.B. SON"},
    {"Full Brother's son's son", " will go to Full Brother's Son's Son(s) -> F.B.S SON(s).",
     "F.B.S SON(s) = ", "F.B.S SON"},
    {"Consanguine Brother's son's son", " will go to Consanguine Brother's Son's Son(s) -> C.B.S SON(s).",
     "C.B.S SON(s) = ", "C.B.S SON"},
    {"Full Uncle", " will go to Full Uncle.", "FULL UNCLE = ", "FULL UNCLE"},
    {"Consanguine Uncle", " will go to Consanguine Uncle.", "CON. UNCLE = ", "CON. UNCLE"},
    {"Full Uncle's son", " will go to Full Uncle's Son(s).", "UNCLE's SON(s) = ", "UNCLE's SON"},
    {"Consanguine Uncle's son", " will go to Consanguine Uncle's Son(s).", "C.UN. SON(s) = ", "C.UN. SON"},
    {"Full Uncle's son's son", " will go to Full Uncle's Son's Son(s) -> F.UN.S SON(s).",
     "F.UN.S SON(s) = ", "F.UN. SON"},
    {"Cons. Uncle's son's son", " will go to Consanguine Uncle's Son's Son(s) -> C.UN.S SON(s).",
     "C.UN.S SON(s) = ", "C.UN.S SON"},
    {"Uncle's son's son's son", " will go to Full Uncle's Son's Son's Son(s) -> F.UN.S.S SON(s).",
     "F.UN.S.S SON(s) = ", "F.UN.S.S SON"},
    {"Cons. Uncle's  SS son", " will go to Consanguine Uncle's Son's Son's Son(s) -> C.UN.S.S SON(s).",
     "C.UN.S.S SON(s) = ", "C.UN.S.S SON"},
}};

void NameClassIIHeir(CaseRecord& c) {
  c.ClassIINarrative = "";
  c.ClassIIText = "";
  if (c.Residue <= 0) return;
  for (int i = 0; i < c.ClassIIFlag.Size; ++i) {
    if (c.ClassIIFlag(i) <= 0) continue;
    const ClassIIRow& row = ClassIIRows[static_cast<std::size_t>(i)];
    // The amount of the consanguine brother's son is stored in the place of the full brother's son, so the
    // first figure of his sentence is 0.
    const int place = i == 1 ? 0 : i;
    c.ClassIIAmount(place) = ParseStrict(F(c.Residue));
    c.ClassIINarrative = Join("The Residual Estate of ", GeneralNumber(c.ClassIIAmount(i)), row.SentenceEnd,
                              CRLF, CRLF, row.AmountLine, GeneralNumber(c.ClassIIAmount(place)));
    c.ClassIIText = row.ShortName;
    return;
  }
}

void ExplainClassII(CaseScreen& screen) {
  const std::string text =
      "WE ARE CLASS II RESIDUARIES [ASABA'T] AND INHERIT IN ABSENCE OF CLASS I\r\n"
      "RESIDUARIES [ASABA'T] (WHO ARE IN THE ABOVE FRAME), MOREOVER, WE\r\n"
      "SUCCEED IN ORDER OF OUR APPEARANCE IN THIS LIST FROM LEFT TO\r\n"
      "RIGHT & FROM TOP TO BOTTOM.";
  screen.Frame5.Visible = false;
  ShowLongText(screen, false);
  screen.Text2.Text = text;
  screen.Label2.Caption = "CLASS II RESIDUARY (ASABA')";
  screen.Label3.Caption = "0(0/1)";
  screen.Ports.Boxes.Inform(BoxStyle::Information, text);
}

}  // namespace qismora
