// Sentences of a GPS as tests have them said: with line end, and a checksum that nobody looks at.
#pragma once

#include <string>

namespace zepril {

// "4830.1500,N,00805.2000,E"
inline constexpr const char* kSomewhere = "4830.1500,N,00805.2000,E";

inline std::string RmcLine(const std::string& time, const std::string& place = kSomewhere,
                           const std::string& date = "140524", const std::string& knots = "12.4",
                           const std::string& talker = "GP") {
  return "$" + talker + "RMC," + time + ",A," + place + "," + knots + ",90.0," + date + ",,*10\r\n";
}

inline std::string GgaLine(const std::string& time, const std::string& place = kSomewhere,
                           const std::string& height = "545.4,M",
                           const std::string& talker = "GP") {
  return "$" + talker + "GGA," + time + "," + place + ",1,08,0.9," + height + ",46.9,M,,*47\r\n";
}

inline std::string GllLine(const std::string& time, const std::string& place = kSomewhere) {
  return "$GPGLL," + place + "," + time + ",A*31\r\n";
}

}  // namespace zepril
