#pragma once

#include <array>

#include "base/Ports.h"

namespace qismora {

/// A document that is delivered with the program. Its number is that of the control of Zummy that
/// holds it, OLE1 to OLE7.
struct Document {
  int Number;
  const char* Title;
  const char* FileName;
};

inline constexpr std::array<Document, 7> Documents = {{
    {1, "Historical Background", "Historical Background.pdf"},
    {2, "Origin and Development", "Origin and Development.pdf"},
    {3, "Schools of Thoughts", "Schools of Thoughts.pdf"},
    {4, "Rules of Inheritance", "RULES OF DISTRIBUTION.pdf"},
    {5, "References", "References.pdf"},
    {6, "Relations Made Easy", "RelationsEU.pdf"},
    {7, "Aayaat -e- Meeraas", "Aayaat -e- Meeraas.pdf"},
}};

/// Opens a document in the platform's viewer. The program cannot know whether a viewer appears, so a message
/// box always shows the path. Throws Failure(SubscriptOutOfRange) for a number
/// without a document.
void OpenDocument(int number, ShellPorts& ports);

}  // namespace qismora
