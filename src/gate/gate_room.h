// The gate from radio to internet and the digipeater program, as one thing.
#pragma once

#include "core/controls/gate_controls.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "gate/aprs_is_link.h"
#include "gate/companion.h"
#include "gate/gate_notice.h"
#include "gate/radio_gate.h"
#include "platform/clock.h"
#include "platform/companion_programs.h"
#include "platform/files.h"
#include "platform/tcp_socket.h"

namespace zepril {

struct GateRoomSections {
  const IdentityState& Identity;
  RadioState& Radio;
  InternetState& Internet;
};

struct GateRoomTools {
  TcpSocket& Winsock2;  // the APRS-IS server
  CompanionPrograms& Programs;
  const Files& Disk;
  Clock& LocalClock;
};

struct GateRoom {
  GateRoom(GateRoomSections sections, GateControls& controls, GateRoomTools tools)
      : Link(sections.Internet, sections.Identity, tools.Winsock2),
        Radio(sections.Internet, sections.Identity, Link, tools.LocalClock),
        Digipeater({sections.Identity, sections.Radio, sections.Internet},
                   {tools.Programs, tools.Disk, tools.LocalClock}),
        Notice(sections.Internet, sections.Radio, Link, Radio, controls, tools.LocalClock) {}
  GateRoom(const GateRoom&) = delete;
  GateRoom& operator=(const GateRoom&) = delete;

  // Once a second, also while the main cycle rests.
  void SecondPassed() {
    Link.Look();
    Notice.Renew();
  }

  AprsIsLink Link;
  RadioGate Radio;
  Companion Digipeater;
  GateNotice Notice;
};

}  // namespace zepril
