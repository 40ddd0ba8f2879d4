// What the tests of the modem models share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tool/air_devices.h"
#include "tool/air_script.h"
#include "tool/modem_model.h"

namespace zepril {

using Lines = std::vector<std::string>;

// The packet of one line of a script.
inline AirPacket Packet(std::string_view line) {
  const AirScript script = ReadAirScript(line);
  return script.Packets.empty() ? AirPacket{} : script.Packets.front();
}

template <class Model>
class ModemModelTest : public ::testing::Test {
 protected:
  ModemModelTest() {
    modem.Sent = [this](const ModemSending& sending) {
      sent.push_back(ModemSentLine(modem.Name(), sending));
    };
    modem.CommandCame = [this](const std::string& command) { commands.push_back(command); };
  }
  std::string Take(std::string_view bytes) { return modem.Take(bytes); }

  Model modem;
  Lines sent;
  Lines commands;
};

}  // namespace zepril
