// The ways in which radio interfaces write what they hear: a file and a row each, which brings raw
// text to the normal form of a frame (`reception/agw_monitor`).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zepril {

struct Brought {
  std::size_t Taken = 0;       // characters at the front of the raw text that were used
  std::string_view ForGate{};  // what of it a gate hands on as it came
  bool More = false;           // another piece may be asked for in the same go
};

struct Dialect {
  std::string_view Name;
  // Appends the normal form of the complete frames of `raw` to `normal`.
  Brought (*Bring)(std::string_view raw, std::string& normal);
};

// None of this name: null.
const Dialect* DialectNamed(std::string_view name);

}  // namespace zepril
