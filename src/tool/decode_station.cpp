// Joins the receive pass to played links and collects what it stores.
#include "tool/decode_station.h"

#include <algorithm>
#include <utility>

#include "core/controls/main_window_controls.h"
#include "core/quiet_actions.h"
#include "core/state/gps.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "reception/reception_room.h"
#include "tool/tool_machine.h"

namespace zepril {
namespace {

// The clock stands where it was set.
class StandingClock final : public Clock {
 public:
  explicit StandingClock(const LocalTime& now) : now_(now) {}
  LocalTime Now() const override { return now_; }
  double SecondsSinceMidnight() const override {
    return now_.Hour * 3600.0 + now_.Minute * 60.0 + now_.Second;
  }
  double MonotonicSeconds() const override { return 0.0; }
  std::int64_t FileTimeNs() const override { return 0; }
  void Wait(double) override {}
  void WaitPumping(double) override {}
  void HandOver() override {}
  std::int64_t LoopsPerSecond() override { return 0; }

 private:
  LocalTime now_;
};

// A serial line whose input is set by hand.
class FedModem final : public SerialPort {
 public:
  bool Open(const std::string&, int) override { return true; }
  void Close() override {}
  bool IsOpen() const override { return true; }
  void Write(std::string_view) override {}
  std::string ReadAll() override { return std::exchange(Input, {}); }
  std::size_t BytesToWrite() const override { return 0; }

  std::string Input;
};

// An engine that hands out the monitored texts in its input, one after the other.
class FedEngine final : public MonitorEngine {
 public:
  bool AGWStartPoll(std::string_view, std::string_view) override { return true; }
  std::string AGWGetData() override {
    constexpr std::size_t kLongestText = 4000;
    const std::size_t pair = Input.find("\r\r");
    if (pair == std::string::npos && Input.size() < kLongestText) return {};
    const std::size_t length = std::min(pair == std::string::npos ? pair : pair + 2, kLongestText);
    std::string text = Input.substr(0, length);
    Input.erase(0, text.size());
    return text;
  }
  bool AGWPutData(std::string_view, std::string_view) override { return false; }
  void AGWClose() override {}
  bool LinkIsUp() const override { return true; }
  void DropUnsent() override {}

  std::string Input;
};

// Keeps what is appended to the long log, lets everything else go.
class LogKeeper final : public Files {
 public:
  std::optional<std::string> ReadAll(const std::string&, std::size_t) const override { return {}; }
  std::optional<std::string> ReadRange(const std::string&, std::int64_t,
                                       std::size_t) const override {
    return {};
  }
  bool ReadLines(const std::string&, const LineReader&) const override { return false; }
  bool Append(const std::string& path, std::string_view text) override {
    if (path.ends_with("_LOGL_.TXT")) LongLog += text;
    return true;
  }
  bool Write(const std::string&, std::string_view) override { return true; }
  bool Replace(const std::string&, std::string_view) override { return true; }
  bool ReplaceKeeping(const std::string&, std::string_view, const std::string&) override {
    return true;
  }
  bool Remove(const std::string&) override { return true; }
  bool Rename(const std::string&, const std::string&) override { return true; }
  bool MakeFolder(const std::string&) override { return true; }
  std::string NativePath(const std::string& path) const override { return path; }
  std::optional<FileStamp> Stamp(const std::string&) const override { return {}; }
  std::vector<FolderEntry> List(const std::string&, const std::string&) const override {
    return {};
  }

  std::string LongLog;
};

}  // namespace

struct DecodeStation::Station {
  explicit Station(const DecodeSettings& settings)
      : TheClock(settings.Now),
        Room({Identity, Radio, Reception, Stores, Followed, Map, Gps, Alarms, Settings, Internet},
             {Controls.Window, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Record,
              Controls.Status},
             {Given.FileSystem, Given.LocalClock, Given.Boxes, Heard, Symbols, Actions, Actions,
              Actions, Timer1}) {
    constexpr int kTickMilliseconds = 6000;
    Timer1.Arm(kTickMilliseconds);
    Identity.MyCallFull = settings.MyCallFull;
    Identity.MyCall = settings.MyCallFull.substr(0, settings.MyCallFull.find('-'));
    Identity.MapZoneName = "U" + ZeroPadded(settings.Zone, 2);
    Map.MapCentralMeridian = UtmMeridianOfZone(settings.Zone);
    Map.MapFalseEasting = kUtmFalseEasting;
    Settings.UtcOffsetHours = settings.UtcOffsetHours;
    Radio.RadioMode = settings.RadioMode;
    Radio.AgwConnected = 1;
    Stores.MoniAllRecords.Limit = settings.MoniAllLimit;
    Stores.Moni1Records.Limit = settings.Moni1Limit;
    Stores.LogsOn = 1;
    // Nobody is followed: the long log holds all stations alike.
    Followed.Moni1Call.clear();
  }

  void Feed(std::string_view bytes) {
    switch (static_cast<RadioMode>(Radio.RadioMode)) {
      case RadioMode::AgwLocal:
        Engine.Input += bytes;
        break;
      case RadioMode::AgwRemote:
        Radio.AgwRxBuffer += bytes;
        break;
      default:
        Modem.Input += bytes;
        break;
    }
  }

  std::size_t Waiting() const {
    return Engine.Input.size() + Modem.Input.size() + Radio.AgwRxBuffer.size() +
           Reception.ModemText.size() + Reception.ScsRxBuffer.size() + Reception.RxBuffer.size();
  }

  IdentityState Identity;
  RadioState Radio;
  ReceptionState Reception;
  StoresState Stores;
  MapViewState Map;
  AlarmState Alarms;
  SettingsState Settings;
  InternetState Internet;
  FollowedStationState Followed;
  GpsState Gps;
  MainWindowControls Controls;
  SymbolTable Symbols;
  Timer Timer1{1};
  StandingClock TheClock;
  FedModem Modem;
  FedEngine Engine;
  HeardTexts Heard{Radio, Reception, Engine, Modem, TheClock};
  LogKeeper Logs;
  QuietActions Actions;
  ToolMachine Tool;
  Machine Given{Tool.Given(Logs, TheClock)};
  ReceptionRoom Room;
};

DecodeStation::DecodeStation(const DecodeSettings& settings)
    : station_(std::make_unique<Station>(settings)) {}

DecodeStation::~DecodeStation() = default;

void DecodeStation::Receive(std::string_view bytes) {
  station_->Feed(bytes);
  station_->Room.Pass.Run();
}

void DecodeStation::Drain() {
  // A last line without its end is given up after some passes in which nothing else happens.
  for (int idle = 0; idle <= SerialText::kMostPasses; ++idle) {
    const std::size_t waiting = station_->Waiting();
    station_->Room.Pass.Run();
    if (station_->Waiting() != waiting) idle = 0;
  }
}

std::string& DecodeStation::LongLog() {
  return station_->Logs.LongLog;
}

const ReceptionCounts& DecodeStation::Counts() const {
  return station_->Room.Pass.Counts();
}

}  // namespace zepril
