// The window title: a text of at least 90 columns in which each capability has its place.
//
//   Columns  Content
//   1-55     program, version, own call
//   56-58    "GPS" while the computer's clock was set from GPS
//   61-71    digipeater
//   76-90    gateway
#pragma once

#include <string>
#include <string_view>

#include "core/state/radio.h"

namespace zepril {

inline constexpr std::size_t kTitleColumns = 90;
inline constexpr std::size_t kTitleBaseColumns = 55;

// "ZEP RIL  V 8.08  QX7KB-9", padded.
std::string BaseTitle(std::string_view version, std::string_view call);
// Writes `text` over the columns from `first` on; the title keeps its length.
void PutInTitle(std::string& title, std::size_t first, std::string_view text);
// Blanks columns `first` to `last`.
void BlankInTitle(std::string& title, std::size_t first, std::size_t last);

// What stands in columns 61-71 once the modem was set up: "Digi active", "Digi X-mode" when an SCS
// TNC relays to another mode, else blanks. With a local packet engine each tick looks for its
// digipeater program and writes over it.
std::string DigiMarker(const RadioState& radio);

}  // namespace zepril
