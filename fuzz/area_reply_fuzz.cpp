// Area replies of any bytes: what is read are calls and places that the text tells, records keep
// their columns, and a reply that comes again brings nothing new.
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text_fields.h"
#include "fuzz/page_world.h"
#include "internet/area_decoder.h"
#include "internet/area_reply.h"

namespace {

using namespace zepril;

void CheckStation(const AreaStation& station, const std::string& upper) {
  Require(!station.Call.empty());
  Require(upper.find(station.Call + "\",") != std::string::npos);
  Require(station.Call.find_first_of(" \r\n\"") == std::string::npos);
  Require(std::fabs(station.Lat) > 0.01 && std::fabs(station.Lon) > 0.01);
  Require(station.Symbol.size() == 2 || station.Symbol.size() == 3);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view reply(reinterpret_cast<const char*>(data), size);
  const std::string upper = Upper(reply);
  AreaReply stations(reply);
  int count = 0;
  while (const auto station = stations.Next()) {
    CheckStation(*station, upper);
    ++count;
  }
  Require(count == 0 || reply.find('[') != std::string_view::npos);

  PageWorld world;
  AreaDecoder decoder({world.Stores, world.Map, world.Settings},
                      {world.Keeper, world.Symbols, world.Time});
  const DecodedArea first = decoder.DecodeInetArea(reply);
  Require(first.Stations <= count && first.Stored <= first.Stations);
  Require(world.Stores.Moni1Records.Count() == 0);
  for (const StationRecord& record : world.Stores.MoniAllRecords.All()) {
    Require(record.HeardViaField() == "inet" && record.Info().empty());
    Require(record.Text().find_first_of("\r\n") == std::string_view::npos);
  }
  Require(world.Logged() == static_cast<std::size_t>(first.Stored));
  const bool all_held = first.Stored == world.Stores.MoniAllRecords.Count();
  if (all_held) Require(decoder.DecodeInetArea(reply).Stored == 0);
  return 0;
}
