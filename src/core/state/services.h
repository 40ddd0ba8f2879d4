// Where the web services are. One without a host is off.
#pragma once

#include <string>

namespace zepril {

struct ServicesState {
  std::string AprsCgiService;  // scheme and host, no slash at the end: "https://aprs.example"
};

}  // namespace zepril
