// The columns of the title, renewed one after the other.
#include "station/title_markers.h"

#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "core/title_line.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {

void ShowTitleMarkers(const IdentityState& identity, const RadioState& radio,
                      const InternetState& internet, SettingsState& settings,
                      WindowControls& window) {
  std::string& title = settings.TitleText;
  // The call may have got another SSID.
  const std::string base = BaseTitle(identity.ProgramVersion, identity.MyCallFull);
  PutInTitle(title, 1, base.substr(0, kTitleBaseColumns));
  PutInTitle(title, 61, DigiMarker(radio));
  if (internet.IGateOn == Gate::On) {
    PutInTitle(title, 76, status_texts::kGate);
  } else {
    BlankInTitle(title, 76, 80);
  }
  window.Title = std::string(Trim(title));
}

}  // namespace zepril
