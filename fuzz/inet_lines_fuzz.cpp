// Replies of any bytes as pages of both station databases: lines keep to their forms and order, and
// what is stored of them are whole records of the calls that the reply tells, in histories and logs
// whose lines have their length.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text_fields.h"
#include "fuzz/page_world.h"
#include "internet/inet_line_decoder.h"
#include "internet/inet_lines.h"

namespace {

using namespace zepril;

// Each line stands in its text, is no shorter than a line may be, and none is older than the one
// before.
void CheckLines(std::string_view text) {
  std::int64_t before = 0;
  for (const InetLine& line : CutInetLines(text)) {
    Require(line.Text.size() >= 40);
    Require(line.Text.data() >= text.data() &&
            line.Text.data() + line.Text.size() <= text.data() + text.size());
    Require(line.Text.find('\n') == std::string_view::npos);
    Require(line.Seconds >= before);
    before = line.Seconds;
  }
}

void CheckStores(const PageWorld& station, std::string_view reply) {
  // A return within a call is a blank in its record.
  std::string upper = Upper(reply);
  std::erase(upper, '\0');
  std::replace(upper.begin(), upper.end(), '\r', ' ');
  for (const StationRecord& record : station.Stores.MoniAllRecords.All()) {
    Require(upper.find(Trim(record.Columns(33, 41))) != std::string::npos);
    Require(record.Text().find_first_of("\n") == std::string_view::npos);
  }
  Require(station.Stores.MoniAllRecords.Count() <= station.Stores.MoniAllRecords.Limit);
  const auto& history = station.Stores.Moni1Records.All();
  Require(std::is_sorted(history.begin(), history.end(), [](const auto& a, const auto& b) {
    return a.DateAndTime() < b.DateAndTime();
  }));
  for (const StationRecord& record : history)
    Require(EqualFolded(record.Call(), "QX7GW"));
  station.Logged();
}

}  // namespace

// The first byte chooses the service; the rest is its reply, which comes twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view reply(reinterpret_cast<const char*>(data) + 1, size - 1);
  const bool cgi = (data[0] & 1) != 0;
  const std::string lines = cgi ? LinesOfCgiReply(reply, "QX7GW") : LinesOfRestReply(reply);
  Require(lines.find('\0') == std::string::npos);
  Require(lines.empty() || lines.ends_with('\n'));
  CheckLines(lines);
  CheckLines(reply);

  PageWorld station;
  InetLineDecoder decoder({station.Identity, station.Map, station.Settings},
                          {station.Keeper, station.Symbols, station.Time});
  const DecodedLines first = decoder.DecodeInetLines(lines);
  Require(first.Stored <= first.Lines);
  CheckStores(station, reply);
  const int history = station.Stores.Moni1Records.Count();
  const DecodedLines again = decoder.DecodeInetLines(lines);
  Require(again.Messages.empty());
  Require(station.Stores.Moni1Records.Count() == history);
  return 0;
}
