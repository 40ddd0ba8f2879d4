// Reads the options and standard input, and prints records or what was decoded in all.
#include "tool/decode_command.h"

#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/system_clock.h"
#include "tool/arguments.h"
#include "tool/decode_station.h"
#include "tool/tnc2.h"

namespace zepril {
namespace {

constexpr std::array<ArgumentRule, 9> kRules{{{"--mode", true},
                                              {"--tnc2", false},
                                              {"--zone", true},
                                              {"--now", true},
                                              {"--utc-offset", true},
                                              {"--call", true},
                                              {"--limit", true},
                                              {"--pass", true},
                                              {"--stats", false}}};

constexpr std::size_t kBlock = 1u << 16;

// "2024-01-15T12:34", every digit in its place.
std::optional<LocalTime> TimeOfText(std::string_view text) {
  constexpr std::string_view kForm = "0000-00-00T00:00";
  if (text.size() != kForm.size()) return std::nullopt;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] == '0' ? !IsDigit(text[i]) : text[i] != kForm[i]) return std::nullopt;
  }
  const auto number = [text](std::ptrdiff_t column, std::ptrdiff_t length) {
    return static_cast<int>(Val(Mid(text, column, length)));
  };
  const LocalTime time{number(1, 4), number(6, 2), number(9, 2), number(12, 2), number(15, 2), 0};
  const bool exists = time.Month >= 1 && time.Month <= 12 && time.Day >= 1 && time.Hour < 24 &&
                      time.Minute < 60 && TimeOfSeconds(SecondsOf(time)).Day == time.Day;
  return exists ? std::optional<LocalTime>(time) : std::nullopt;
}

struct DecodeOptions {
  DecodeSettings Station;
  bool Tnc2 = false;
  std::size_t PassBytes = 500;
  bool Stats = false;
};

DecodeOptions ReadOptions(Arguments& arguments) {
  DecodeOptions options;
  options.Tnc2 = arguments.Has("--tnc2");
  options.Stats = arguments.Has("--stats");
  if (options.Tnc2 == arguments.Has("--mode")) arguments.Fail("give either --mode or --tnc2");
  if (options.Tnc2 && arguments.Has("--pass")) arguments.Fail("--pass goes with --mode only");

  constexpr int kPk232 = static_cast<int>(RadioMode::Pk232);
  constexpr int kHighestMode = static_cast<int>(RadioMode::ScsPtc);
  DecodeSettings& station = options.Station;
  station.RadioMode = arguments.Whole("--mode", 0, kHighestMode, kPk232);
  if (station.RadioMode == 2 || station.RadioMode == static_cast<int>(RadioMode::None)) {
    arguments.Fail("--mode must be 0, 1, 3, 5 or 6");
  }
  options.PassBytes = static_cast<std::size_t>(arguments.Whole("--pass", 1, 65536, 500));
  station.UtcOffsetHours = arguments.Whole("--utc-offset", -24, 24, 0);
  station.MoniAllLimit = arguments.Whole("--limit", 1, 2999, 666);
  station.MyCallFull = Upper(arguments.Value("--call").value_or(""));
  const auto zone = ZoneNumber(arguments.Value("--zone").value_or("U33"));
  if (!zone) arguments.Fail("--zone must be a zone from U01 to U60");
  station.Zone = zone.value_or(33);
  const auto now = arguments.Value("--now");
  const auto time = now ? TimeOfText(*now) : std::optional<LocalTime>(SystemClock().Now());
  if (!time) arguments.Fail("--now must read like 2024-01-15T12:34");
  station.Now = time.value_or(LocalTime{});
  return options;
}

void Flush(std::string& log) {
  std::fwrite(log.data(), 1, log.size(), stdout);
  log.clear();
}

// Standard input in the pieces that arrive in each pass.
void DecodePieces(std::size_t piece, DecodeStation& station) {
  std::string block(std::max(piece, kBlock - kBlock % piece), '\0');
  for (;;) {
    const std::size_t length = std::fread(block.data(), 1, block.size(), stdin);
    if (length == 0) return;
    for (std::size_t at = 0; at < length; at += piece) {
      station.Receive(std::string_view(block).substr(0, length).substr(at, piece));
    }
    if (station.LongLog().size() > kBlock) Flush(station.LongLog());
  }
}

// Standard input line by line, each packet in a pass of its own. Returns the number of lines that
// are no packets.
class LineDecoder {
 public:
  explicit LineDecoder(DecodeStation& station) : station_(station) {}

  std::int64_t Run() {
    std::string pending;
    std::string block(kBlock, '\0');
    for (;;) {
      const std::size_t length = std::fread(block.data(), 1, block.size(), stdin);
      if (length == 0) break;
      std::string_view rest(block.data(), length);
      for (std::size_t end = rest.find('\n'); end != std::string_view::npos;
           end = rest.find('\n')) {
        if (pending.empty()) {
          Take(rest.substr(0, end));
        } else {
          pending += rest.substr(0, end);
          Take(pending);
          pending.clear();
        }
        rest.remove_prefix(end + 1);
      }
      // A line without end is not kept for ever; what is over-long is no packet.
      if (pending.size() <= kLongestReceiveBuffer) pending += rest;
    }
    if (!pending.empty()) Take(pending);
    return refused_;
  }

 private:
  void Take(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!Tnc2ToNormal(line, normal_)) {
      ++refused_;
      return;
    }
    station_.Receive(normal_);
    if (station_.LongLog().size() > kBlock) Flush(station_.LongLog());
  }

  DecodeStation& station_;
  std::string normal_;
  std::int64_t refused_ = 0;
};

void PrintStats(const ReceptionCounts& counts, std::int64_t refused_lines) {
  const auto print = [](std::string_view label, std::int64_t count) {
    constexpr std::size_t kLabelWidth = 26;
    const std::string line = PadRight(label, kLabelWidth) + WholeNumber(count) + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
  };
  print("frames", counts.Frames);
  print("stored", counts.Stored);
  print("repeats", counts.Repeats);
  print("recoveries", counts.Recoveries);
  for (int i = 0; i < kDropReasons; ++i) {
    print(DropText(static_cast<DropReason>(i)), counts.Drops[static_cast<std::size_t>(i)]);
  }
  print("lines that are no packet", refused_lines);
}

}  // namespace

int RunDecode(std::span<const std::string_view> args) {
  Arguments arguments(args, kRules);
  const DecodeOptions options = arguments.Failed() ? DecodeOptions{} : ReadOptions(arguments);
  if (arguments.Failed()) return arguments.Report("decode");

  DecodeStation station(options.Station);
  std::int64_t refused_lines = 0;
  if (options.Tnc2) {
    refused_lines = LineDecoder(station).Run();
  } else {
    DecodePieces(options.PassBytes, station);
  }
  station.Drain();
  Flush(station.LongLog());
  if (options.Stats) PrintStats(station.Counts(), refused_lines);
  return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace zepril
