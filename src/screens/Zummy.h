#pragma once

#include <array>
#include <functional>

#include "base/Ports.h"
#include "case/CaseRecord.h"
#include "shell/ShellRecord.h"

namespace qismora {

/// The form of the documents without its window. A double click on Documents in the main menu shows it. Back
/// hides it; its close button ends the session.
class Zummy {
 public:
  Zummy(CaseRecord& record, ShellRecord& shell, ShellPorts& ports);

  std::function<void()> ShowMainMenu;
  std::function<void()> Hide;
  /// Called before the program ends; it asks about a changed case. False keeps the program running.
  std::function<bool()> MayEnd;

  void HistBack_Click();
  void Meeraas_Click();
  void OriginDevelop_Click();
  void Schools_Click();
  void InhRules_Click();
  void Reference_Click();
  void RelationsEU_Click();
  void cmdLCM_Click();
  void Back_Click();
  void Form_QueryUnload();
  /// The exit routine has run.
  bool Ended() const { return shell_.Ended; }

 private:
  void Open(int document);

  CaseRecord& record_;
  ShellRecord& shell_;
  ShellPorts& ports_;
};

inline constexpr const char* ZummyTitle = "PDF Documents etc. Resources";

/// The buttons in their order.
struct ZummyButton {
  const char* Name;
  const char* Caption;
  void (Zummy::*Click)();
};

inline constexpr std::array<ZummyButton, 8> ZummyButtons = {{
    {"HistBack", "HistBack", &Zummy::HistBack_Click},
    {"Meeraas", "Aayaat-e-Meeraas", &Zummy::Meeraas_Click},
    {"OriginDevelop", "OriginDevelop", &Zummy::OriginDevelop_Click},
    {"Schools", "Schools", &Zummy::Schools_Click},
    {"InhRules", "InhRules", &Zummy::InhRules_Click},
    {"Reference", "Reference", &Zummy::Reference_Click},
    {"RelationsEU", "Relations", &Zummy::RelationsEU_Click},
    {"cmdLCM", "LCM", &Zummy::cmdLCM_Click},
}};

}  // namespace qismora
