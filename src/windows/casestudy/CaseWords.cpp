#include "windows/casestudy/CaseWords.h"

#include "windows/division/DivisionWords.h"
#include "windows/language/Languages.h"
#include "windows/platform/Utf8.h"

namespace qismora {

namespace {

/// What stands in a place: the name of a field and a reason have translations, all else is as it was typed.
/// In English a field has its caption.
QString InPlace(const Message::Value& value) {
  if (value.Place == "field" && CurrentLanguage() != Language::English) return words::Field(value.Text);
  if (value.Place == "reason") return CaseWords::tr(value.Text.c_str());
  return ToQt(value.Text);
}

}  // namespace

QString CaseWords::Of(const Message& message) {
  std::vector<Message::Value> values = message.Values;
  for (Message::Value& value : values) value.Text = FromQt(Isolated(InPlace(value)));
  return ToQt(Filled(FromQt(tr(message.Pattern)), values));
}

Answer CaseDialogs::Show(BoxStyle style, BoxButtons buttons, const std::string& text) {
  const DialogsInLanguage ours;
  // A sentence may begin with the name of a file, which must not turn it around.
  const std::string mark = CurrentDirection() == Qt::RightToLeft ? FromQt(QChar(0x200F)) : std::string();
  return boxes_.Show(style, buttons, mark + text);
}

std::optional<std::string> CaseDialogs::AskPath(const std::string& suggestedName, const std::string& filter) {
  return dialog_.AskPath(suggestedName, filter);
}

std::optional<std::string> CaseDialogs::AskCaseToOpen(const std::string& folder) {
  const DialogsInLanguage ours;
  return dialog_.AskCaseToOpen(folder);
}

std::optional<std::string> CaseDialogs::AskCaseToSave(const std::string& suggestedPath) {
  const DialogsInLanguage ours;
  return dialog_.AskCaseToSave(suggestedPath);
}

}  // namespace qismora
