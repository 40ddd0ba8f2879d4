// An SCS TNC in terminal mode: lines that begin with ESC are commands, every other line is a
// packet.
//
//   ESC %B300                     * OK *
//   ESC CZEPR WIDE1-1             * OK *
//   =4830.15N/00805.20E>          (transmitted)
//                                 fm N0CALL to APRS via WIDE1-1* ctl UI pid F0
//                                 !tst
#pragma once

#include "tool/modem_model.h"

namespace zepril {

class ScsTncModel final : public ModemModel {
 public:
  ScsTncModel();

  std::string_view Name() const override { return "scs-tnc"; }
  std::string Heard(const AirPacket& packet) const override;
  // Unnumbered frames are monitored.
  bool Runs() const override;

 protected:
  void Reset() override;
  bool TakeControl(char byte) override;
  void TakeLine(const std::string& line) override;
  bool Echoes() const override { return Setting("E") == "1"; }

 private:
  void Obey(const std::string& line);

  bool command_ = false;  // the line under way began with ESC
};

}  // namespace zepril
