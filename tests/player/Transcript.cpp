#include "player/Transcript.h"

#include "base/Text.h"

namespace qismora::testing {

namespace {

const char* FlagText(bool flag) { return flag ? "True" : "False"; }

std::string Indexed(const char* name, int index) { return Join(name, "(", index, ")"); }

template <class Pictures>
void AddVisible(std::vector<ControlValue>& all, const char* name, const Pictures& pictures) {
  for (int i = 0; i < pictures.Size; ++i) {
    all.push_back({Indexed(name, i) + ".Visible", FlagText(pictures(i).Visible)});
  }
}

bool HasField(int index) { return (index >= 1 && index <= 7) || index >= 13; }

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\\\";
    } else if (c == '\t') {
      escaped += "\\t";
    } else if (c == '\r') {
      escaped += "\\r";
    } else if (c == '\n') {
      escaped += "\\n";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

void PrintPieces(std::ostream& out, std::string_view mark, std::string_view text) {
  for (;;) {
    const std::size_t end = text.find(CRLF);
    out << mark << Escaped(text.substr(0, end)) << '\n';
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + CRLF.size());
  }
}

std::vector<ControlValue> Snapshot(const CaseStudy& study) {
  std::vector<ControlValue> all = {
      {"Label2", study.Label2.Caption},
      {"Label3", study.Label3.Caption},
      {"StatusBar1", study.StatusBar1.Caption},
      {"Label13", study.Label13.Caption},
      {"Frame1", study.Frame1.Caption},
      {"Label1(1)", study.Label1(1).Caption},
      {"Combo1", Join(study.Combo1.ListIndex.Get())},
  };
  for (int i = 0; i < study.Text1.Size; ++i) {
    if (HasField(i)) all.push_back({Indexed("Text1", i), study.Text1(i).Text});
  }
  for (int i = 0; i < study.Check1.Size; ++i) {
    all.push_back({Indexed("Check1", i), Join(study.Check1(i).Value.Get())});
  }
  all.push_back({"Frame5.Visible", FlagText(study.Frame5.Visible)});
  all.push_back({"Text2.Visible", FlagText(study.Text2.Visible)});
  all.push_back({"Text3.Visible", FlagText(study.Text3.Visible)});
  all.push_back({"AulRadd.Visible", FlagText(study.AulRadd.Visible)});
  all.push_back({"AulRad.Enabled", FlagText(study.AulRad.Enabled)});
  all.push_back({"Text2.ForeColor", Join(study.Text2.ForeColor.Get())});
  all.push_back({"Text3.ForeColor", Join(study.Text3.ForeColor.Get())});
  for (int i = 0; i < study.Label4.Size; ++i) {
    all.push_back({Indexed("Label4", i) + ".BorderStyle", Join(study.Label4(i).BorderStyle.Get())});
    all.push_back({Indexed("Label4", i) + ".ForeColor", Join(study.Label4(i).ForeColor.Get())});
  }
  for (int i = 9; i <= 29; ++i) {
    all.push_back({Join("Image", i, ".Visible"), FlagText(study.Image(i).Visible)});
  }
  AddVisible(all, "Image30", study.Image30);
  AddVisible(all, "Image41", study.Image41);
  AddVisible(all, "Frame4", study.Frame4);
  AddVisible(all, "Frame6", study.Frame6);
  all.push_back({"Text2", study.Text2.Text, true});
  all.push_back({"Text3", study.Text3.Text, true});
  return all;
}

void PrintChanges(std::ostream& out, const std::vector<ControlValue>& before,
                  const std::vector<ControlValue>& after) {
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (before[i].Value == after[i].Value) continue;
    if (after[i].IsLong) {
      out << "  " << after[i].Name << ":\n";
      PrintPieces(out, "  | ", after[i].Value);
    } else {
      out << "  " << after[i].Name << " = " << Escaped(after[i].Value) << '\n';
    }
  }
}

}  // namespace qismora::testing
