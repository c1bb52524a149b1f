#include "divide/Messages.h"

#include <iostream>

#include "base/Encoding.h"
#include "base/Text.h"

namespace qismora::divide {

namespace {

/// Escapes control characters, so that no input controls the terminal.
std::string Plain(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (FindControlCharacter(text.substr(i, 2)) == 0) {
      plain += "\\x";
      AppendHex(plain, static_cast<unsigned char>(text[i]));
    } else {
      plain += text[i];
    }
  }
  return plain;
}

}  // namespace

Messages::Messages(bool quiet) : showsProgress_(!quiet && ErrorsGoToTerminal() && !OutputIsTerminal()) {}

void Messages::Print(std::string_view sentence) {
  ClearProgress();
  std::cerr << "qismora-divide: " + Plain(sentence) + "\n";
}

void Messages::Print(std::string_view place, std::int64_t line, std::string_view sentence) {
  std::string text(place);
  if (line > 0) text.append(":").append(std::to_string(line));
  Print(text.append(": ").append(sentence));
}

void Messages::ShowProgress(const Source& source) {
  const Clock::time_point now = Clock::now();
  if (now - shown_ < std::chrono::milliseconds(200)) return;
  shown_ = now;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  std::string text = "\r\x1b[K" + std::to_string(families_) + " families, " +
                     std::to_string(static_cast<std::int64_t>(static_cast<double>(families_) / seconds)) +
                     " a second";
  if (source.Length() > 0) {
    text +=
        ", " + std::to_string(source.BytesRead() * 100 / source.Length()) + " % of " + Plain(source.Name());
  }
  std::cerr << text << std::flush;
  progressShown_ = true;
}

void Messages::ClearProgress() {
  if (progressShown_) std::cerr << "\r\x1b[K" << std::flush;
  progressShown_ = false;
}

}  // namespace qismora::divide
