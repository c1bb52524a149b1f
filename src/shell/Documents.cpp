#include "shell/Documents.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/Files.h"
#include "base/Text.h"

namespace qismora {

void OpenDocument(int number, ShellPorts& ports) {
  const auto* document = std::ranges::find(Documents, number, &Document::Number);
  if (document == Documents.end()) throw Failure(SubscriptOutOfRange);
  const std::string path = Join(ports.Folders.Documents(), "/", document->FileName);
  if (!FileExists(path)) {
    ports.Boxes.Inform(BoxStyle::Warning, Join("The document \"", document->Title,
                                               "\" is missing. It should lie at", CRLF, path));
    return;
  }
  if (!ports.Viewer.Open(path)) {
    ports.Boxes.Inform(BoxStyle::Warning, Join("There is no PDF viewer on this computer. The document \"",
                                               document->Title, "\" lies at", CRLF, path));
    return;
  }
  ports.Boxes.Inform(BoxStyle::Information,
                     Join("The document \"", document->Title,
                          "\" opens in your PDF viewer. If none comes up, you find it at", CRLF, path));
}

}  // namespace qismora
