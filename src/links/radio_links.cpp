// The radio interfaces by their numbers.
#include "links/radio_links.h"

#include "links/heard_texts.h"
#include "links/modem_kind.h"
#include "links/pk232.h"
#include "links/scs_ptc.h"
#include "links/scs_tnc.h"

namespace zepril {
namespace {

struct ModemRow {
  RadioMode Mode;
  const ModemKind* Kind;
};

// A row a serial modem.
const ModemRow kModems[] = {
    {RadioMode::Pk232, &kPk232},
    {RadioMode::ScsTnc, &kScsTnc},
    {RadioMode::ScsPtc, &kScsPtc},
};

// Which of three the interface of `mode` is; null without a radio.
template <class Interface>
Interface* Choose(RadioMode mode, Interface& engine_here, Interface& engine_elsewhere,
                  Interface& modem) {
  if (mode == RadioMode::AgwLocal) return &engine_here;
  if (mode == RadioMode::AgwRemote) return &engine_elsewhere;
  return ModemKindOf(mode) ? &modem : nullptr;
}

}  // namespace

const ModemKind* ModemKindOf(RadioMode mode) {
  for (const ModemRow& row : kModems) {
    if (row.Mode == mode) return row.Kind;
  }
  return nullptr;
}

HeardText* HeardTexts::Active() {
  return Choose<HeardText>(ModeOf(radio_), local_, remote_, modem_);
}

RadioLinks::RadioLinks(RadioLinksSections sections, RadioLinksTools tools)
    : radio_(sections.Radio),
      local_(sections.Identity, sections.Transmission, tools.EngineHere, tools.LocalClock),
      remote_(sections.Radio, sections.Transmission, tools.EngineElsewhere),
      serial_(sections.Radio, sections.Received, tools.Modem, tools.Port, tools.LocalClock) {
  for (RadioLink* link : {static_cast<RadioLink*>(&local_), static_cast<RadioLink*>(&remote_),
                          static_cast<RadioLink*>(&serial_)}) {
    link->Changed = [this] {
      if (Changed) Changed();
    };
  }
}

RadioLink* RadioLinks::Active() {
  return Choose<RadioLink>(ModeOf(radio_), local_, remote_, serial_);
}

}  // namespace zepril
