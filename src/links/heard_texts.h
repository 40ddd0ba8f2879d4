// What each radio interface has heard, chosen by `RadioMode`.
#pragma once

#include <string>

#include "core/state/radio.h"
#include "core/state/reception.h"
#include "links/heard_text.h"
#include "links/serial_text.h"
#include "platform/clock.h"
#include "platform/monitor_engine.h"
#include "platform/serial_port.h"

namespace zepril {

// The packet engine on this computer: a frame's text at a time.
class LocalEngineText final : public HeardText {
 public:
  LocalEngineText(RadioState& radio, MonitorEngine& engine, const Clock& clock)
      : radio_(radio), engine_(engine), clock_(clock) {}
  std::string_view Dialect() const override;
  std::string_view Next() override;
  void Taken(std::size_t) override {}

 private:
  RadioState& radio_;
  MonitorEngine& engine_;
  const Clock& clock_;
  std::string text_;
};

// The packet engine on another computer: its texts are cut from `AgwRxBuffer`. Pieces that are no
// frame are thrown away.
class RemoteEngineText final : public HeardText {
 public:
  RemoteEngineText(RadioState& radio, const Clock& clock) : radio_(radio), clock_(clock) {}
  std::string_view Dialect() const override;
  std::string_view Next() override;
  void Taken(std::size_t) override {}

 private:
  RadioState& radio_;
  const Clock& clock_;
  std::string text_;
};

// A serial modem: whole lines, or what has come until it fell silent, as its kind needs.
class ModemHeard final : public HeardText {
 public:
  ModemHeard(RadioState& radio, ReceptionState& reception, SerialPort& port, Clock& clock)
      : radio_(radio), reception_(reception), clock_(clock), text_(port, reception) {}
  std::string_view Dialect() const override;
  void PassBegins() override { text_.PassBegins(); }
  std::string_view Next() override;
  void Taken(std::size_t count) override;
  std::size_t Waiting() const override;

 private:
  bool ReadsUntilSilent() const;
  std::string_view NextLines();
  std::string_view NextUntilSilent();
  void Read();
  bool TakeMore();
  void MakeRoom();

  RadioState& radio_;
  ReceptionState& reception_;
  Clock& clock_;
  SerialText text_;
  std::string lines_;
};

class HeardTexts {
 public:
  HeardTexts(RadioState& radio, ReceptionState& reception, MonitorEngine& engine, SerialPort& port,
             Clock& clock)
      : radio_(radio),
        local_(radio, engine, clock),
        remote_(radio, clock),
        modem_(radio, reception, port, clock) {}

  // None without a radio.
  HeardText* Active();

 private:
  const RadioState& radio_;
  LocalEngineText local_;
  RemoteEngineText remote_;
  ModemHeard modem_;
};

}  // namespace zepril
