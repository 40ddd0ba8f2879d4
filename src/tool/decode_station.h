// A receiving station without windows, for batch decoding: the program's own receive pass over
// links that are fed from memory. The clock stands, nothing is drawn, and of the logs only the long
// one is kept, in memory.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "reception/receive_pass.h"

namespace zepril {

struct DecodeSettings {
  int RadioMode = 1;  // dialect of the text: 0, 1, 3, 5 or 6
  int Zone = 33;      // UTM zone of the map grid
  LocalTime Now;
  int UtcOffsetHours = 0;
  std::string MyCallFull;
  int MoniAllLimit = 666;
  int Moni1Limit = 3330;
};

class DecodeStation {
 public:
  explicit DecodeStation(const DecodeSettings& settings);
  ~DecodeStation();

  // Lets `bytes` arrive at the link and runs one receive pass.
  void Receive(std::string_view bytes);
  // Runs passes until one changes nothing.
  void Drain();

  // What the long log has got since the last Clear.
  std::string& LongLog();
  const ReceptionCounts& Counts() const;

 private:
  struct Station;
  std::unique_ptr<Station> station_;
};

}  // namespace zepril
