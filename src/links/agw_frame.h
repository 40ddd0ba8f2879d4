// Frames of a packet engine's TCP/IP interface: 36 bytes of header, then data.
//
//   Offset  Size  Field
//   0       1     radio port
//   4       1     data kind, a letter
//   6       1     PID
//   8       10    from call, zero padded
//   18      10    to call, zero padded
//   28      4     data length, little-endian
//   32      4     user field
//   36      n     data
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zepril {

inline constexpr std::size_t kAgwHeaderLength = 36;

struct AgwFrameFields {
  int Port = 0;
  char Kind = ' ';
  int Pid = 0;
  std::string From;  // trimmed of zeros and blanks
  std::string To;
  std::uint32_t DataLength = 0;  // as the header says
  std::string User;
};

// Reads the header at the front of `bytes`, which holds at least 36.
AgwFrameFields ReadAgwHeader(std::string_view bytes);

// A frame with user field "ZEPR". Calls are upper-cased, trimmed and cut to 10 bytes; data beyond
// 65535 bytes is cut, since the high two bytes of its length are always sent as 0.
std::string MakeAgwFrame(int port, char kind, std::string_view from, std::string_view to,
                         std::string_view data);

// Data of a "V" frame: count of digipeaters, each zero-padded to 10 bytes, and the text. `path` is
// a comma list, upper case; an empty one has count 0 and no field, as has an empty element.
std::string AgwUnprotoData(std::string_view path, std::string_view text);

// Port by the radio mode: "1200" takes 1; a mode that reads as 300 takes 0; any other keeps `held`.
int AgwPortOf(std::string_view baud_mode, int held);

}  // namespace zepril
