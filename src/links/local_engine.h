// The packet engine on this computer as a radio interface.
#pragma once

#include "core/state/identity.h"
#include "core/state/transmission.h"
#include "links/radio_link.h"
#include "platform/clock.h"
#include "platform/monitor_engine.h"

namespace zepril {

class LocalEngine final : public RadioLink {
 public:
  // Takes the engine's event.
  LocalEngine(const IdentityState& identity, const TransmissionState& transmission,
              MonitorEngine& engine, Clock& clock);

  bool Open() override;
  void Leave() override { engine_.AGWClose(); }
  bool IsUp() const override { return engine_.LinkIsUp(); }
  std::string LostNotice() const override;
  bool Send(std::string_view text, SecondMode second_mode) override;
  void DropUnsent() override { engine_.DropUnsent(); }
  // The engine knows the station by its call, which may have changed.
  void TakeNewSettings(Progress& progress) override;

 private:
  const IdentityState& identity_;
  const TransmissionState& transmission_;
  MonitorEngine& engine_;
  Clock& clock_;
};

}  // namespace zepril
