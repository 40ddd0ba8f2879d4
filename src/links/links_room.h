// The radio links as one thing: the packet engines, the serial modem with its terminal, and what
// the operator is told of them.
#pragma once

#include <functional>
#include <vector>

#include "core/actions/map_actions.h"
#include "core/actions/program_actions.h"
#include "core/controls/raw_list_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/terminal_controls.h"
#include "core/progress.h"
#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/transmission.h"
#include "core/timer.h"
#include "links/agw_link.h"
#include "links/agw_local.h"
#include "links/heard_texts.h"
#include "links/link_watch.h"
#include "links/radio_links.h"
#include "links/serial_modem.h"
#include "links/temporary_mode.h"
#include "links/terminal.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/loop.h"
#include "platform/serial_port.h"
#include "platform/tcp_socket.h"

namespace zepril {

struct LinksSections {
  const IdentityState& Identity;
  RadioState& Radio;
  ReceptionState& Received;
  TransmissionState& Transmission;
};

struct LinksControls {
  TerminalControls& Talk;
  RawListControls& Raw;
  StatusControls& Status;
};

struct LinksTools {
  TcpSocket& Winsock1;  // the packet engine
  SerialPort& MSComm1;  // the modem
  Clock& LocalClock;
  Loop& Steps;
  Dialogs& Boxes;
  ProgramActions& Program;
  MapActions& Map;
  Progress& LongWork;
  Timer& Timer1;
  Timer& Timer2;
};

struct LinksRoom {
  // Sets the events of the controls; the object must outlive them.
  LinksRoom(LinksSections sections, LinksControls controls, LinksTools tools);
  LinksRoom(const LinksRoom&) = delete;
  LinksRoom& operator=(const LinksRoom&) = delete;

  // The start of the run, with the radio interface of the settings. False when the program is to
  // end.
  bool Open();
  // Its end.
  void Leave();
  void ClosePort();
  void RunTerminalHandler();
  // A modem on two modes listens on the second one too.
  void KeepSecondModeMonitored();

  // Those of the links.
  std::vector<DrivenTimer> Timers();

  // The terminal was opened or closed; may be empty.
  Event<> TerminalChanged;
  // A panel holds the main cycle, or a tick is under way; set before the start.
  std::function<bool()> CycleIsHeld;
  std::function<bool()> InTick;

  AgwLink Remote;
  AgwLocal Local;
  SerialModem Modem;
  HeardTexts Heard;
  RadioLinks Radios;
  Terminal Talk;
  TemporaryMode OtherMode;
  LinkWatch Watch;

 private:
  void BindModem();
  void TerminalOpenedOrClosed();

  LinksSections sections_;
  LinksControls controls_;
  LinksTools tools_;
};

}  // namespace zepril
