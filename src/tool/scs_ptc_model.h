// An SCS PTC: a main menu ("cmd:"), a packet menu ("pac:") and a converse mode, in which each line
// is a packet. ESC begins a command, and what stood before it on the line is forgotten.
//
//   cmd: PAC                      K
//   pac: UNPROTO ZEPR WIDE1-1     =4830.15N/00805.20E>     (transmitted)
//   *** UNPROTO: ZEPR WIDE1-1     1:fm N0CALL to APRS ctl UI pid F0
//   pac:                          !tst
#pragma once

#include "tool/modem_model.h"

namespace zepril {

class ScsPtcModel final : public ModemModel {
 public:
  ScsPtcModel();

  std::string_view Name() const override { return "scs-ptc"; }
  std::string Heard(const AirPacket& packet) const override;
  bool Runs() const override { return place_ == Place::Converse; }
  // The call of a channel, 1 to 31.
  std::string CallOfChannel(int channel) const;

 protected:
  void Reset() override;
  bool TakeControl(char byte) override;
  void TakeLine(const std::string& line) override;
  bool Echoes() const override { return Setting("TERM") != "0"; }

 private:
  enum class Place { MainMenu, PacketMenu, Converse };

  void Obey(const std::string& line);
  void Change(const ModemCommand& command, const std::string& value);
  void Act(const ModemCommand& command);
  void Prompt();

  Place place_ = Place::MainMenu;
  bool command_ = false;  // the line under way began with ESC
};

}  // namespace zepril
