// NMEA 0183 sentences of a text buffer: the last two of a kind, whether they agree, and what they
// tell. Pure functions; the buffer holds anything, and nothing in it is believed.
//
// A checksum is not looked at: a sentence is taken when it agrees with the one before it of its
// kind.
//
//   taken:    "$GPRMC,123040,A,4830.1500,N,00805.2000,E,12.4,90.0,140524,,*10" and the same of
//             123050, from whatever talker
//   refused:  one sentence alone, two whose latitudes are more than a minute of arc apart, a
//             latitude of 0, and what stands behind the last line end
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace zepril {

// Field `n` of a sentence that begins with its word ("RMC,..."): fields end with "," or "*", and
// field 1 is what stands behind the first "," (field 0 is the word). Empty when there is none. The
// text may go on behind the sentence.
std::string_view GetNmeaField(std::string_view sentence, int n);

// Where a kind of sentence has its fields; 0: it has none.
struct NmeaFields {
  std::string_view Word;  // with its ","
  int Time;
  int Latitude;
  int NorthSouth;
  int Longitude;
  int EastWest;
  int Date;
};

// The last two sentences of a kind, each to the end of the finished text.
struct NmeaPair {
  const NmeaFields* Kind;
  std::string_view Older;
  std::string_view Newer;
};

// The buffer up to its last line end: what stands behind it is not finished.
std::string_view FinishedNmea(std::string_view buffer);

// The last two RMC, or else GGA, or else GLL of a finished text. The search goes back until one of
// the three was seen four times. Nothing when none was seen twice.
std::optional<NmeaPair> LastNmeaPair(std::string_view finished);
bool PairAgrees(const NmeaPair& pair);

// The position of a sentence.
struct NmeaPosition {
  std::string Latitude;   // degrees, a "-" or a blank in front: " 48.50250", "-5.50000"
  std::string Longitude;  // " 8.08666", "-122.50000"
  std::string LatitudeShown;
  std::string LongitudeShown;  // shortened, with the letter: " 13.405E"
};
NmeaPosition PositionOf(const NmeaPair& pair);
// False for what no latitude and longitude can be, as of a sentence whose digits were torn.
bool IsOnEarth(const NmeaPosition& position);

// The time to which the newer sentence of a pair sets a clock `utc_offset_hours` ahead of UTC: five
// seconds more, for the way here. Nothing in the last five seconds of a minute, of a kind without a
// date, nor for what is no date or no time.
std::optional<LocalTime> ClockTimeOf(const NmeaPair& pair, int utc_offset_hours);

// The line over the map: position, height, speed, errors and satellites, as far as the finished
// text tells them. Each comes from the first sentence of its word.
std::string GpsInfoLine(std::string_view finished, const NmeaPosition& position);

}  // namespace zepril
