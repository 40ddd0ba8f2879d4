// The radio interfaces of the start panel: an option button each, of which one is chosen.
#pragma once

#include <string>
#include <vector>

#include "core/controls/start_panel_controls.h"
#include "core/radio_rules.h"
#include "core/state/radio.h"
#include "core/texts/text.h"

namespace zepril {

// What stands in the port fields for an interface, also while another one is shown.
struct PortTexts {
  std::string Port;   // number, device or host
  std::string Speed;  // or host port
  std::string Held;   // `Port` as the settings have it: untouched it changes nothing
};

struct RadioInterface {
  OptionButton* Option;
  RadioMode Mode;
  PortTexts* Texts;  // null: it has no port
  Text Starting;     // START while it is under way: with a modem, how long its set-up takes
  bool Serial() const { return IsSerialModem(Mode); }
  bool MayGate() const { return GateIsPossible(Mode); }
};

class RadioInterfaces {
 public:
  explicit RadioInterfaces(StartPanelControls& controls);
  RadioInterfaces(const RadioInterfaces&) = delete;
  RadioInterfaces& operator=(const RadioInterfaces&) = delete;

  const std::vector<RadioInterface>& All() const { return all_; }
  // The packet engine on this computer where nothing else is chosen.
  const RadioInterface& Chosen() const;
  // The one of these settings; of a mode that has none here the chosen one.
  const RadioInterface& OfMode(RadioMode mode) const;
  void Choose(const RadioInterface& chosen);
  void Enable(bool enabled);

  PortTexts Pk232;
  PortTexts Host;
  PortTexts Scs;  // of both SCS modems

 private:
  const std::vector<RadioInterface> all_;
};

}  // namespace zepril
