// Internet databases, the gateway link, space-weather numbers.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zepril {

// A line that went through the gate, and when, in seconds of the local calendar.
struct GatedLine {
  std::string Text;
  std::int64_t Seconds = 0;
};

// The gateway as it is switched. Another number that stood in the file stays there; it is not On.
enum class Gate { Off = 0, On = 1 };
// Its link to a server.
enum class GateLink { Down = 0, Up = 1 };

// Where the packets of the followed station come from.
enum class InternetSource { RestService = 0, CgiService = 1 };

struct InternetState {
  std::string AprsIsServer;
  std::string AprsIsPort = "14580";
  Gate IGateOn = Gate::Off;
  GateLink IGateConnected = GateLink::Down;
  std::string AprsIsPasscode = "0";
  std::string AprsIsRxBuffer;              // what the server has sent since the last connect
  std::array<GatedLine, 5> RecentlyGated;  // newest last
  int UiDigiWindow = 0;  // process of the digipeater program beside the engine; 0: none runs

  InternetSource InetSource = InternetSource::RestService;
  bool InetNoData = false;      // the last reply said that there is nothing; kept, nothing reads it
  int InetTries = 0;            // fetches since the switch was set, at most 3; nothing reads it
  std::string WebRequestUrl;    // the address being loaded
  std::string InetRawText;      // lines waiting for decoding
  double InetSwitchTime = 0.0;  // timer value of the last operation of an internet switch
  double InetMaxOnSeconds = 900.0;
  int Moni1ScanOn = 0;
  int Moni1ScanTicks = 0;
  int LastMoni1InternetMinute = -5000;  // decimal hhmm of the last fetch
  int LastMoniAllInternetMinute = 0;

  double SunspotNumber = 40.0;
  double KpIndex = 2.0;
  int IonoAutoOn = 1;
  bool IonoNeedSunspot = false;
  bool IonoNeedK = false;
  double LastIonoTimer = 0.0;  // timer value
};

}  // namespace zepril
