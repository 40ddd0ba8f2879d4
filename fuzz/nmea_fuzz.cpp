// A GPS says anything: what is read of it keeps to its columns, does not hang on how the bytes were
// cut on their way nor on what is not finished yet, and is nothing without two sentences that
// agree.
//
// Input: the length of the pieces in a byte, then the bytes.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "gps/nmea_sentences.h"
#include "tests/gps/gps_world.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

void CheckTexts(std::string_view finished) {
  const auto pair = zepril::LastNmeaPair(finished);
  if (!pair) return;
  Expect(pair->Older.size() > pair->Newer.size() && pair->Older.ends_with(pair->Newer));
  const bool agrees = zepril::PairAgrees(*pair);
  // A sentence agrees with itself unless its place is none.
  const zepril::NmeaPair twice{pair->Kind, pair->Newer, pair->Newer};
  Expect(!agrees || zepril::PairAgrees(twice));
  const zepril::NmeaPosition place = zepril::PositionOf(*pair);
  Expect(place.Latitude.size() == 8 || place.Latitude.size() == 9);
  Expect(place.Longitude.size() >= 8 && place.Longitude.size() <= 10);
  Expect(place.Latitude[0] == ' ' || place.Latitude[0] == '-');
  Expect(zepril::GpsInfoLine(finished, place).size() < 300);
  const auto time = zepril::ClockTimeOf(*pair, 14);
  Expect(!time || (time->Year >= 2000 && time->Year <= 2100 && time->Month >= 1 &&
                   time->Month <= 12 && time->Second >= 5));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t piece = data[0] + 1U;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  zepril::GpsWorld whole;
  whole.SayAndTick(text);
  zepril::GpsWorld cut;
  for (std::size_t at = 0; at < text.size(); at += piece)
    cut.Say(text.substr(at, piece));
  cut.Tick();
  Expect(whole.Gps.NmeaBuffer == cut.Gps.NmeaBuffer);
  Expect(whole.Gps.NmeaBuffer.size() <= zepril::GpsState::kLongestBuffer);
  Expect(whole.Gps.GpsFixValid == cut.Gps.GpsFixValid);
  Expect(whole.Gps.GpsNorthText == cut.Gps.GpsNorthText);
  Expect(whole.Gps.GpsNorthText.empty() || whole.Gps.GpsNorthText.size() == 9);
  Expect(whole.Gps.GpsEastText.empty() || whole.Gps.GpsEastText.size() == 9);
  Expect(whole.Gps.GpsNorthKm <= 9999.99);
  const std::string finished(zepril::FinishedNmea(text));
  CheckTexts(finished);
  // Without what is not finished the same is read, where all of it is held.
  if (text.size() > zepril::GpsState::kLongestBuffer) return 0;
  zepril::GpsWorld shorter;
  shorter.SayAndTick(finished);
  Expect(shorter.Gps.GpsFixValid == whole.Gps.GpsFixValid);
  Expect(shorter.Gps.GpsEastText == whole.Gps.GpsEastText);
  return 0;
}
