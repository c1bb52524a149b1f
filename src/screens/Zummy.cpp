#include "screens/Zummy.h"

#include "aulradd/FindLCM.h"
#include "screens/Event.h"
#include "shell/Documents.h"
#include "shell/SessionLog.h"

namespace qismora {

Zummy::Zummy(CaseRecord& record, ShellRecord& shell, ShellPorts& ports)
    : record_(record), shell_(shell), ports_(ports) {}

void Zummy::Open(int document) {
  GuardedEvent(ports_.Boxes, [&] { OpenDocument(document, ports_); });
}

void Zummy::HistBack_Click() { Open(1); }
// The same document as HistBack. The verses themselves are opened by the main menu only.
void Zummy::Meeraas_Click() { Open(1); }
void Zummy::OriginDevelop_Click() { Open(2); }
void Zummy::Schools_Click() { Open(3); }
void Zummy::InhRules_Click() { Open(4); }
void Zummy::Reference_Click() { Open(5); }
void Zummy::RelationsEU_Click() { Open(6); }

// Works on the values of the last calculation, and shows nothing.
void Zummy::cmdLCM_Click() {
  GuardedEvent(ports_.Boxes, [&] { FindLCM(record_); });
}

void Zummy::Back_Click() {
  GuardedEvent(ports_.Boxes, [&] {
    Call(ShowMainMenu);
    Call(Hide);
  });
}

void Zummy::Form_QueryUnload() {
  if (MayEnd && !MayEnd()) return;
  GuardedEvent(ports_.Boxes, [&] { Inhp(shell_, record_, ports_); });
}

}  // namespace qismora
