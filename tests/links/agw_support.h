// Monitor frames, and a link to another computer's packet engine on a scripted socket in virtual
// time.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "links/agw_frame.h"
#include "links/agw_link.h"
#include "links/agw_pulse.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

inline std::string MonitorFrameOf(std::string_view text) {
  return MakeAgwFrame(0, 'U', "QX1AB", "APRS", text);
}

class RemoteLinkTest : public ::testing::Test {
 protected:
  RadioState radio;
  IdentityState identity;
  TransmissionState transmission;
  FakeSocket socket;
  VirtualClock clock;
  ScriptedDialogs dialogs;
  NotedEnd program;
  AgwLink link{radio, identity, transmission, socket, clock, dialogs, program};
  Timer& looks = link.LookTimer();
};

}  // namespace zepril
