// Puts the words for digipeater, gateway and relay together.
#include "transmit/identification.h"

#include "core/radio_rules.h"

namespace zepril {
namespace {

std::string RelayText(const std::string& cross_mode) {
  if (cross_mode.starts_with("R")) return "Gate -> RPR " + cross_mode.substr(1) + "Bd";
  return "Gate to FSK " + cross_mode + "Bd";
}

}  // namespace

std::string IdentificationText(const RadioState& radio, bool gate_connected) {
  const std::string name = "ZEPRIL  ";
  if (radio.DigiOn != Digipeater::On)
    return gate_connected ? name + "IGate R->I active" : std::string();
  const std::string what = RelaysToAnotherMode(radio) ? RelayText(radio.CrossMode) : "Digi";
  return name + what + (gate_connected ? " & IGate R->I active" : " active");
}

}  // namespace zepril
