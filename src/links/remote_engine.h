// The packet engine on another computer as a radio interface.
#pragma once

#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "links/agw_link.h"
#include "links/radio_link.h"

namespace zepril {

class RemoteEngine final : public RadioLink {
 public:
  // Takes the engine's event.
  RemoteEngine(const RadioState& radio, TransmissionState& transmission, AgwLink& engine);

  bool Open() override { return engine_.ConnectAgw(); }
  void Leave() override { engine_.DisconnectAgw(); }
  bool IsUp() const override { return engine_.LinkIsUp(); }
  std::string LostNotice() const override;
  bool Send(std::string_view text, SecondMode second_mode) override;
  void DropUnsent() override { engine_.DropUnsent(); }
  // A new call is told with the next connection.
  void TakeNewSettings(Progress& progress) override { progress.Done(); }

 private:
  const RadioState& radio_;
  TransmissionState& transmission_;
  AgwLink& engine_;
};

}  // namespace zepril
