// Where the web services are. One without an address is off.
#pragma once

#include <string>

namespace zepril {

struct ServicesState {
  std::string AprsCgiService;  // scheme and host, no slash at the end: "https://aprs.example"
  std::string AprsRestService;
  std::string IonoPageA;   // whole addresses: the observatory's page
  std::string IonoPageB;   // and the daily text of space weather
  std::string GoogleMaps;  // web maps that show a place
  std::string MinKarta;
  std::string Norgeskart;
  std::string Karttapaikka;
};

}  // namespace zepril
