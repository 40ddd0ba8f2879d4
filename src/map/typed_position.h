// A position as an operator types it into two fields, north and east.
//
//   5817.860 | 391.394              kilometres in the map's zone
//   52.5041 13.4051                 degrees, both in one field, north first; also with a comma
//   52.5041 | 13.4051               degrees, four and more decimals in both fields
//   52:30.24N | 13:24.31E           degrees and minutes, with seconds behind another colon; the
//                                   signs of degrees, minutes and seconds stand for the colons
//   JO62QM                          locator of 6, 8 or 10 characters in one field: its middle
//
// Refused with a reason: "52,5041", "91N 13E", "JO62", "5817.860" alone, what leaves the map.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "map/map_view.h"

namespace zepril {

// A field, and whether the operator has changed it: what stands in an unchanged one gives way to a
// whole position that was typed into the other.
struct TypedField {
  std::string_view Text;
  bool Changed = true;
};

struct TypedPosition {
  std::optional<MapPosition> Place;  // kilometres in the map's zone
  std::string Note;                  // why there is no place, or what is to be known of it
};

TypedPosition ReadTypedPosition(TypedField north, TypedField east, const MapViewState& view);

}  // namespace zepril
