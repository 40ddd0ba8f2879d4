// The table of the interfaces and what is chosen of it.
#include "station/start/radio_interfaces.h"

#include <algorithm>

#include "core/texts/status_texts.h"

namespace zepril {

RadioInterfaces::RadioInterfaces(StartPanelControls& controls)
    : all_{{&controls.Option1, RadioMode::Pk232, &Pk232, status_texts::kStartPk232},
           {&controls.Option2, RadioMode::AgwLocal, nullptr, status_texts::kWorking},
           {&controls.Option9, RadioMode::AgwRemote, &Host, status_texts::kWorking},
           {&controls.Option10, RadioMode::None, nullptr, status_texts::kWorking},
           {&controls.Option11, RadioMode::ScsTnc, &Scs, status_texts::kStartScsTnc},
           {&controls.Option13, RadioMode::ScsPtc, &Scs, status_texts::kStartScsPtc}} {}

const RadioInterface& RadioInterfaces::Chosen() const {
  const auto found = std::find_if(all_.begin(), all_.end(),
                                  [](const RadioInterface& one) { return one.Option->Value; });
  return found != all_.end() ? *found : OfMode(RadioMode::AgwLocal);
}

const RadioInterface& RadioInterfaces::OfMode(RadioMode mode) const {
  const auto found = std::find_if(all_.begin(), all_.end(),
                                  [mode](const RadioInterface& one) { return one.Mode == mode; });
  return found != all_.end() ? *found : Chosen();
}

void RadioInterfaces::Choose(const RadioInterface& chosen) {
  for (const RadioInterface& one : all_)
    one.Option->Value = &one == &chosen;
}

void RadioInterfaces::Enable(bool enabled) {
  for (const RadioInterface& one : all_)
    one.Option->Enabled = enabled;
}

}  // namespace zepril
