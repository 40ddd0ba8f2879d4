// Arbitrary bytes in arbitrary cuts through the whole receive pass, in every radio mode: every
// entry of the long log is a whole record, each stored one has its entry, and the passes come to
// rest.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tool/decode_station.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  constexpr int kModes[] = {0, 1, 3, 5, 6};
  zepril::DecodeSettings settings;
  settings.RadioMode = kModes[data[0] % 5];
  settings.Now = {2024, 1, 15, 12, 34, 0};
  settings.MyCallFull = "QX7KB";
  settings.MoniAllLimit = 50;
  settings.UtcOffsetHours = data[1] % 25 - 12;
  zepril::DecodeStation station(settings);

  // The byte before each piece is its length.
  std::string_view rest(reinterpret_cast<const char*>(data) + 2, size - 2);
  while (!rest.empty()) {
    const std::size_t length = static_cast<unsigned char>(rest.front()) + 1u;
    rest.remove_prefix(1);
    station.Receive(rest.substr(0, length));
    rest.remove_prefix(length < rest.size() ? length : rest.size());
  }
  station.Drain();

  constexpr std::size_t kEntry = 122;
  const std::string& log = station.LongLog();
  if (log.size() % kEntry != 0) std::abort();
  if (log.size() / kEntry != static_cast<std::size_t>(station.Counts().Stored)) std::abort();
  for (std::size_t at = 0; at < log.size(); at += kEntry) {
    const std::string_view record = std::string_view(log).substr(at, 120);
    if (record[12] != '\xFE' || record.find_first_of("\r\n") != std::string_view::npos)
      std::abort();
    if (record.substr(0, 4) != "2401" || log.compare(at + 120, 2, "\r\n") != 0) std::abort();
  }
  return 0;
}
