// What is common to the modems' conversations, around the lines of each.
#include "links/setup_sequences.h"

#include "links/modem_lines.h"

namespace zepril {
namespace {

const ModemKind* KindOf(const RadioState& radio) {
  return ModemKindOf(ModeOf(radio));
}

}  // namespace

std::string ModemDevice(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  return kind ? kind->Device(radio) : std::string();
}

int ModemBaud(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  return kind ? BaudOf(kind->Speed(radio)) : 0;
}

ModemScript TncSetupScript(const ModemSections& sections) {
  const ModemKind* kind = KindOf(sections.Radio);
  return kind ? kind->SetUp(sections) : ModemScript();
}

ModemScript PrepareModemScript(const ModemSections& sections) {
  constexpr int kReads = 11;
  const ModemKind* kind = KindOf(sections.Radio);
  ModemScript script;
  script.Close().Open(ModemDevice(sections.Radio), ModemBaud(sections.Radio));
  if (kind && !kind->AtOpening.empty()) script.Send(kind->AtOpening, 0.2);
  for (int reads = 0; reads < kReads; ++reads)
    script.ReadAway().Wait(0.1);
  return script;
}

ModemScript ConverseScript(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  ModemScript script;
  if (kind && !kind->IntoConverse.empty()) script.Send(kind->IntoConverse, 0.2);
  return script;
}

std::string WipeLineBytes(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  return kind ? std::string(kind->WipeLine) : std::string();
}

ModemScript LeaveConverseScript(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  return kind ? kind->OutOfConverse() : ModemScript();
}

ModemScript ApplyTxSetupScript(const ModemSections& sections) {
  const ModemKind* kind = KindOf(sections.Radio);
  return kind ? kind->ApplyTxSetup(sections) : ModemScript();
}

ModemScript LeaveModemScript(const RadioState& radio) {
  const ModemKind* kind = KindOf(radio);
  ModemScript script = kind ? kind->Leave() : ModemScript();
  // In every mode the window system is served once more.
  return script.WaitPumping(0.2);
}

ModemScript SecondModeScript(const RadioState& radio, bool on) {
  const ModemKind* kind = KindOf(radio);
  return kind && kind->SecondMode ? kind->SecondMode(on) : ModemScript();
}

}  // namespace zepril
