// Decodes the packets of one station as a database tells them, and keeps what they tell.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "core/symbol_table.h"
#include "internet/inet_lines.h"
#include "platform/clock.h"
#include "reception/decoded_packet.h"
#include "reception/record_keeper.h"

namespace zepril {

struct InetDecoderSections {
  const IdentityState& Identity;
  const MapViewState& View;
  const SettingsState& Settings;
};

struct InetDecoderTools {
  RecordKeeper& Keeper;
  const SymbolTable& Symbols;
  const Clock& LocalClock;
};

// A message frame among the lines.
struct InetMessage {
  std::string From;
  std::string Info;
  std::string Header;
  std::string Destination;
  std::int64_t AgeSeconds = 0;  // by its line's own time
};

struct DecodedLines {
  int Lines = 0;   // that have a time
  int Stored = 0;  // records that are new
  FrameLevel Level = FrameLevel::Nothing;
  std::vector<InetMessage> Messages;  // that have not been seen before, the oldest first
};

// Lines that have been told of, so that an overlap of two replies is not told of twice.
class KnownLines {
 public:
  static constexpr std::size_t kMostRemembered = 4096;

  // True when `line` has been asked for before; from now on it is known.
  bool IsKnown(std::string_view line);

 private:
  std::unordered_set<std::size_t> hashes_;
  std::deque<std::size_t> in_order_;
};

class InetLineDecoder {
 public:
  // More than these of a page are not worth a chat of eight lines: the newest count.
  static constexpr std::size_t kMostMessages = 400;
  // An emergency that is older, as a first page may tell of it, is not shown.
  static constexpr std::int64_t kShownSeconds = std::int64_t{24} * 3600;

  InetLineDecoder(InetDecoderSections sections, InetDecoderTools tools)
      : sections_(sections), tools_(tools) {}

  DecodedLines DecodeInetLines(std::string_view text);

 private:
  void DecodeLine(const InetLine& line, DecodedLines& decoded);
  void NoteMessage(const InetLine& line, DecodedLines& decoded);
  std::int64_t AgeOf(const InetLine& line) const;  // seconds
  void Keep(const InetLine& line, DecodedLines& decoded);
  FrameLevel TellEmergency(const InetLine& line, const StationRecord& record, bool is_held,
                           FrameLevel stored);

  InetDecoderSections sections_;
  InetDecoderTools tools_;
  AnalysedFrame frame_;
  DecodedPacket packet_;
  KnownLines messages_;
  KnownLines emergencies_;  // apart, so that no flood of messages drives them out
};

// A time further ahead of the local clock than clocks differ: what it stamps is not believed, for
// it would count as the newest of a station for ever.
bool IsFarAhead(std::int64_t seconds_utc, int utc_offset_hours, const Clock& clock);

}  // namespace zepril
