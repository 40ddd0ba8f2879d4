// Who is on the air in the demonstration, and where. All calls begin with Q, which is given to no
// station in the world.
#pragma once

#include "make_demo_traffic/aprs_text.h"

#include <string>
#include <vector>

namespace zepril {

enum class Form { Plain, Compressed, MicE };

struct Mover {
  std::string call;
  std::string symbol;
  Form form = Form::Plain;
  double kmh = 0;
  double period_s = 60;
  std::string comment;
  std::vector<Place> route;
  double climb_ms = 0;  // metres a second; with a height the altitude is told
  double height_m = 0;  // at the start
};

struct FixedStation {
  std::string call;
  std::string symbol;
  Place at;
  double period_s = 600;
  std::string comment;
};

struct WeatherStation {
  std::string call;
  Place at;
  double celsius = 8;
  double wind_ms = 5;
  std::string comment;
};

struct MapObject {
  std::string name;  // up to nine characters
  std::string sender;
  std::string symbol;
  Place at;
  std::string comment;
};

struct MessageLine {
  double second = 0;
  std::string from, to;
  std::string text;  // with its "{" and number, or an acknowledgement
};

// The place the traffic is heard at.
inline constexpr Place kListener{54.15, 12.10};

const std::vector<Mover>& Movers();
const std::vector<FixedStation>& Digipeaters();
const std::vector<FixedStation>& FixedStations();
const std::vector<WeatherStation>& WeatherStations();
const std::vector<MapObject>& MapObjects();
const std::vector<MessageLine>& Messages();

}  // namespace zepril
