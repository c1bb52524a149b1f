#include "shell/AppSettings.h"

#include "base/NumberText.h"

namespace qismora {

Long Setting::Read(Settings& store) const {
  return RoundTo<Long>(ParsePrefix(store.Read(Application, Section, Key)));
}

void Setting::Write(Settings& store, const std::string& text) const {
  store.Write(Application, Section, Key, text);
}

}  // namespace qismora
