// A PK-232: command lines behind the prompt "cmd:", a converse mode in which each line is a packet.
//
//   cmd:MYCALL QX7KB-10           K
//   MYCALL   was PK232            =4830.15N/00805.20E>     (transmitted)
//   MYCALL   now QX7KB-10         N0CALL*>WIDE1-1>APRS <UI>:
//   cmd:                          !tst
#pragma once

#include "tool/modem_model.h"

namespace zepril {

class Pk232Model final : public ModemModel {
 public:
  Pk232Model();

  std::string_view Name() const override { return "pk232"; }
  std::string Heard(const AirPacket& packet) const override;
  bool Runs() const override { return converse_; }

 protected:
  void Reset() override;
  bool TakeControl(char byte) override;
  void TakeLine(const std::string& line) override;
  bool Echoes() const override { return Setting("ECHO") == "ON"; }

 private:
  void Obey(const std::string& line);
  void Change(const ModemCommand& command, const std::string& value);
  void Act(const ModemCommand& command);
  void Transmit(const std::string& text);

  bool converse_ = false;
  std::size_t host_bytes_ = 0;  // of a host block under way
};

}  // namespace zepril
