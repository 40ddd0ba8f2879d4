// Half an hour of invented traffic as a file: make_demo_traffic <target file>
//
// Writes half an hour of invented traffic, a line a frame, sorted by time:
//   @12.3 QX7KB-9>APRS,QX0DIG*,WIDE2-1:!5405.12N/01208.40E>182/063 comment
// The seconds run from 0 to 1800; a path without "*" was heard directly. The same program writes
// the same bytes each time.

#include "make_demo_traffic/cast.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>

namespace zepril {
namespace {

constexpr double kEnd = 1800;

// A small generator of even spread, so that the file depends on no library.
class Dice {
 public:
  double Unit() {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<double>(state_ >> 40) / 16777216.0;
  }
  double Between(double low, double high) { return low + (high - low) * Unit(); }
  bool Chance(double part) { return Unit() < part; }

 private:
  std::uint64_t state_ = 20080808;
};

struct Heard {
  int tenths = 0;
  std::string line;
};

class Air {
 public:
  std::string Write() {
    for (const Mover& mover : Movers())
      Drive(mover);
    for (const FixedStation& station : Digipeaters())
      Beacon(station, "W2, ");
    for (const FixedStation& station : FixedStations())
      Beacon(station, "");
    for (const WeatherStation& station : WeatherStations())
      Report(station);
    for (const MapObject& object : MapObjects())
      Announce(object);
    for (const MessageLine& message : Messages())
      Say(message);
    StatusAndTelemetry();
    Gated();
    std::stable_sort(heard_.begin(), heard_.end(),
                     [](const Heard& a, const Heard& b) { return a.tenths < b.tenths; });
    std::string text;
    for (const Heard& frame : heard_)
      text += frame.line + "\n";
    return text;
  }

 private:
  void Put(double second, const std::string& frame) {
    const int tenths = static_cast<int>(std::lround(second * 10));
    if (tenths < 0 || tenths > static_cast<int>(kEnd * 10)) return;
    std::string line(1, '@');
    line.append(std::to_string(tenths / 10)).append(".").append(std::to_string(tenths % 10));
    heard_.push_back({tenths, line.append(" ").append(frame)});
  }

  static const FixedStation& Nearest(Place at) {
    const auto& all = Digipeaters();
    return *std::min_element(all.begin(), all.end(), [&](const auto& a, const auto& b) {
      return DistanceKm(a.at, at) < DistanceKm(b.at, at);
    });
  }

  // Near the listener half the frames come directly; far away two digipeaters are needed.
  std::string Path(const std::string& call, Place at, double height_m = 0) {
    const double range = DistanceKm(at, kListener);
    const double reach = 55 + std::sqrt(height_m) * 3;
    if (range < reach && dice_.Chance(0.5)) return "WIDE1-1,WIDE2-1";
    const FixedStation& first = Nearest(at);
    const std::string& last = Digipeaters().front().call;
    if (first.call == call || first.call == last || DistanceKm(first.at, kListener) < 90) {
      return (first.call == call ? last : first.call) + "*,WIDE2-1";
    }
    return first.call + "," + last + "*,WIDE2";
  }

  static Place Along(const std::vector<Place>& route, double km, double& course) {
    for (std::size_t i = 1; i < route.size(); ++i) {
      const double leg = DistanceKm(route[i - 1], route[i]);
      course = CourseDegrees(route[i - 1], route[i]);
      if (km <= leg) {
        const double t = leg > 0 ? km / leg : 0;
        return {route[i - 1].lat + t * (route[i].lat - route[i - 1].lat),
                route[i - 1].lon + t * (route[i].lon - route[i - 1].lon)};
      }
      km -= leg;
    }
    return route.back();
  }

  static double Length(const std::vector<Place>& route) {
    double km = 0;
    for (std::size_t i = 1; i < route.size(); ++i)
      km += DistanceKm(route[i - 1], route[i]);
    return km;
  }

  void Drive(const Mover& mover) {
    const double length = Length(mover.route);
    double km = 0, before = 0;
    for (double second = dice_.Between(2, mover.period_s); second < kEnd;
         second += mover.period_s * dice_.Between(0.8, 1.2)) {
      const double kmh = mover.kmh * dice_.Between(0.88, 1.06);
      km += kmh * (second - before) / 3600;
      before = second;
      Motion motion{0, kmh / 1.852};
      const Place at = Along(mover.route, std::min(km, length), motion.course);
      if (km >= length) motion.knots = 0;
      Sighting(mover, at, motion, second);
    }
  }

  void Sighting(const Mover& mover, Place at, Motion motion, double second) {
    const double height = mover.height_m + mover.climb_ms * second;
    const std::string path = Path(mover.call, at, height);
    const bool told = dice_.Chance(0.4) || mover.call == "QX7KB-9";
    const std::string comment = told ? mover.comment : "";
    if (mover.form == Form::MicE) {
      const MicEFrame frame = MicEPosition(at, mover.symbol, motion, comment);
      Put(second, mover.call + ">" + frame.destination + "," + path + ":" + frame.info);
    } else if (mover.form == Form::Compressed) {
      Put(second, mover.call + ">APRS," + path +
                      ":=" + CompressedPosition(at, mover.symbol, motion) + comment);
    } else {
      std::string text = CourseSpeed(motion);
      if (height > 0) text += "/A=" + Digits(static_cast<int>(height / 0.3048), 6);
      if (!text.empty() && !comment.empty()) text += " ";
      Put(second,
          mover.call + ">APRS," + path + ":!" + PlainPosition(at, mover.symbol) + text + comment);
    }
  }

  void Beacon(const FixedStation& station, const std::string& prefix) {
    const std::string head = prefix.empty() ? "=" : "!";
    for (double second = dice_.Between(5, std::min(station.period_s, 700.0)); second < kEnd;
         second += station.period_s + dice_.Between(-4, 4)) {
      Put(second, station.call + ">APRS," + Path(station.call, station.at) + ":" + head +
                      PlainPosition(station.at, station.symbol) +
                      (station.comment.starts_with("W2") ? "" : prefix) + station.comment);
    }
  }

  // The wind comes from the west and freshens; the sky stays dry but for a shower late in the hour.
  void Report(const WeatherStation& station) {
    const double pressure = 1016.5 - (station.at.lat - 52) * 1.4;
    for (double second = dice_.Between(5, 300); second < kEnd; second += 300) {
      Weather now;
      now.wind_degrees = 250 + static_cast<int>(dice_.Between(0, 40));
      now.wind_ms = station.wind_ms * dice_.Between(0.85, 1.1) + second / 1800;
      now.gust_ms = now.wind_ms * dice_.Between(1.3, 1.7);
      now.celsius = station.celsius + dice_.Between(-0.3, 0.3);
      now.rain_hour_mm = second > 1100 && station.at.lon < 11 ? 0.5 : 0;
      now.rain_day_mm = now.rain_hour_mm + (station.at.lat > 55 ? 2.3 : 0.8);
      now.humidity = 70 + static_cast<int>(dice_.Between(0, 12));
      now.hectopascal = pressure - second / 2400;
      Put(second, station.call + ">APRS," + Path(station.call, station.at) + ":!" +
                      PlainPosition(station.at, "/_") + WeatherText(now) +
                      (station.comment.empty() ? "" : " " + station.comment));
    }
  }

  void Announce(const MapObject& object) {
    std::string name = object.name;
    name.resize(9, ' ');
    for (double second = dice_.Between(10, 600); second < kEnd;
         second += 600 + dice_.Between(-5, 5)) {
      Put(second, object.sender + ">APRS," + Path(object.sender, object.at) + ":;" + name +
                      "*111111z" + PlainPosition(object.at, object.symbol) + object.comment);
    }
  }

  void Say(const MessageLine& message) {
    std::string to = message.to;
    to.resize(9, ' ');
    Put(message.second,
        message.from + ">APRS," + Path(message.from, kListener) + "::" + to + ":" + message.text);
  }

  void StatusAndTelemetry() {
    const auto& stations = FixedStations();
    for (std::size_t i = 0; i < stations.size(); i += 3) {
      Put(dice_.Between(20, kEnd), stations[i].call + ">APRS," +
                                       Path(stations[i].call, stations[i].at) + ":>" +
                                       stations[i].comment + ", station is on");
    }
    for (int i = 0; i < 12; ++i) {
      const int battery = 128 + static_cast<int>(dice_.Between(0, 12));
      const int sun = 20 + i + static_cast<int>(dice_.Between(0, 6));
      Put(60 + 150 * i + dice_.Between(0, 20), "QX0RGN>APRS,QX0DIG*,WIDE2-1:T#" +
                                                   Digits(300 + i, 3) + "," + Digits(battery, 3) +
                                                   "," + Digits(sun, 3) + ",074,000,000,00000000");
    }
  }

  // Frames from the network that a gateway puts on the air in a frame of its own.
  void Gated() {
    struct Far {
      const char* call;
      const char* symbol;
      Place at;
      const char* comment;
    };
    static constexpr Far kFar[] = {
        {"QX6VIE-9", "/>", {48.210, 16.370}, "Wien"},
        {"QX6PRG", "/-", {50.080, 14.430}, "Praha"},
        {"QX5OSL-9", "/>", {59.910, 10.750}, "Oslo sentrum"},
        {"QX5BGO", "/-", {60.390, 5.330}, "Bergen"},
        {"QX3STO-10", "/I", {59.330, 18.060}, "Stockholm"},
        {"QX5HEL-9", "/>", {60.170, 24.940}, "Helsinki"},
        {"QX5TLL", "/-", {59.430, 24.750}, "Tallinn"},
        {"QX5RIX-9", "/k", {56.950, 24.110}, "Riga"},
        {"QX4WAW", "/-", {52.230, 21.010}, "Warszawa"},
        {"QX6AMS-9", "/b", {52.370, 4.900}, "Amsterdam"},
        {"QX6LON", "/-", {51.510, -0.120}, "London"},
        {"QX6EDI-9", "/>", {55.950, -3.190}, "Edinburgh"},
        {"QX1MUC", "/-", {48.140, 11.570}, "Muenchen"},
        {"QX1FRA-9", "/>", {50.110, 8.680}, "Frankfurt"},
    };
    for (const Far& far : kFar) {
      for (double second = dice_.Between(15, 500); second < kEnd;
           second += dice_.Between(420, 560)) {
        const double drift = far.call[std::string(far.call).size() - 1] == '9' ? second / 40000 : 0;
        const Place at{far.at.lat + drift, far.at.lon + drift};
        Put(second, std::string("QX1WAR-10>APRS,") + (dice_.Chance(0.6) ? "WIDE1-1" : "QX0DIG*") +
                        ":}" + far.call + ">APRS,TCPIP,QX1WAR-10*:!" +
                        PlainPosition(at, far.symbol) + far.comment);
      }
    }
  }

  Dice dice_;
  std::vector<Heard> heard_;
};

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_demo_traffic <target file>\n", stderr);
    return 2;
  }
  const std::string text = zepril::Air().Write();
  std::ofstream file(argv[1], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  return file.good() ? 0 : 1;
}
