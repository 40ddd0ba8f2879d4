// The modem link and what waits in its buffers.
#pragma once

#include <cstdint>
#include <string>

namespace zepril {

enum class RadioMode {
  AgwLocal = 0,  // packet engine on this computer
  Pk232 = 1,
  AgwRemote = 3,  // packet engine on another computer, TCP/IP
  None = 4,       // internet monitoring only
  ScsTnc = 5,
  ScsPtc = 6,
};

// Another number that stood in the file stays there; it is not On.
enum class Digipeater { Off = 0, On = 1 };

struct RadioState {
  int RadioMode = 0;  // values of enum RadioMode; any other value collects nothing

  int TncPort = 1;  // PK-232
  std::string TncBaud = "1200";
  double ScsPort = 3;  // SCS TNC and SCS PTC
  std::string ScsBaud = "38400";
  std::string BaudMode = "300";  // "300", "300R", "1200", "9600", "19200"
  std::string BaudModeLabel = "300 Bd";
  std::string CrossMode = "NONE";
  int TxAudioLevel = 300;  // mV
  int TxAfc = 0;
  int HfDualOn = 0;
  Digipeater DigiOn = Digipeater::Off;

  std::string AgwHost = "QX7KB0";
  std::string AgwTcpPort = "8000";
  int AgwPort = 0;  // radio port of the engine: 0 for 300 Bd, 1 for 1200
  int AgwConnected = 0;
  std::string AgwRxBuffer;  // monitor text of the TCP link awaiting the receive pass
  std::string AgwFrame;     // last raw frame of the TCP link

  // Monotonic seconds of the last data of the link, below 0 when none came yet.
  double LastDataSeconds = -1.0;
};

inline RadioMode ModeOf(const RadioState& radio) {
  return static_cast<RadioMode>(radio.RadioMode);
}

// Beyond this many characters a receive buffer is emptied: no line grows without bound.
inline constexpr std::size_t kLongestReceiveBuffer = 65536;

}  // namespace zepril
