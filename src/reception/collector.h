// Collects what the active radio link has delivered, whatever its dialect, as normal frames.
#pragma once

#include <string>
#include <string_view>

#include "core/actions/gate_actions.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "links/serial_text.h"
#include "platform/clock.h"
#include "platform/monitor_engine.h"
#include "platform/serial_port.h"
#include "reception/scs_monitor.h"

namespace zepril {

class Collector {
 public:
  Collector(RadioState& radio, ReceptionState& reception, const InternetState& internet,
            Clock& clock, MonitorEngine& engine, SerialPort& modem, GateActions* gate);

  // A receive pass begins; it collects once or several times.
  void PassBegins() { modem_text_.PassBegins(); }
  // Appends the normal form of everything complete to `collected` (empty before); text that is not
  // complete stays in the link's buffer. A copy of the raw text goes to the gateway while it is
  // logged in, except from a remote engine. Waits 0.01 s or a few times that with an SCS modem.
  void Collect(std::string& collected);
  // Characters that the next collecting could take at once.
  std::size_t Waiting() const;

 private:
  void CollectFromEngine(std::string& collected);
  void CollectFromRemoteEngine(std::string& collected);
  void CollectFromPk232(std::string& collected);
  void CollectFromScs(ScsDialect dialect, std::string& collected);
  bool ReadScsText();
  bool TakeScsText();
  void MakeRoomForScsText();
  void HandToGate(std::string_view text);
  void DataCame();

  RadioState& radio_;
  ReceptionState& reception_;
  const InternetState& internet_;
  Clock& clock_;
  MonitorEngine& engine_;
  SerialText modem_text_;
  GateActions* gate_;  // may be missing
};

}  // namespace zepril
