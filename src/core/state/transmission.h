// What the station transmits and when.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zepril {

struct TransmissionState {
  std::string TxDestination = "ZEPR";
  std::string TxPath = "WIDE1-1";
  std::array<std::string, 4> TxPathMemory;
  int TxIntervalMinutes = 0;  // 0: by hand
  int TxTimestamp = 0;
  int TxSymbolIndex = 14;
  std::string TxOverlay = "A";
  std::array<std::string, 6> InfoLine;
  std::array<int, 6> InfoLineActive{1, 1, 1, 1, 1, 1};
  std::array<std::string, 6> InfoLineMemory;
  int InfoLineIndex = 0;
  std::string AgwTxText;

  // Seconds of the local calendar (SecondsOf); 0 means long ago.
  std::int64_t LastBeaconTime = 0;
  std::int64_t LastObjectTime = 0;
  std::string LastIdBeaconTime;
  bool ChatDue = false;
  bool ObjectDue = false;
  bool BeaconDue = false;

  std::string ObjectName;
  std::string ObjectText;
  int ObjectSymbol = 37;
  std::string ObjectOverlay;
  double ObjectNorth = 0.0;  // km
  double ObjectEast = 0.0;   // km
  int ObjectTxOn = 0;
};

}  // namespace zepril
