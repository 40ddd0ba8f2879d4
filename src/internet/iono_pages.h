// Two pages with the numbers of the ionosphere, as texts: what stands in them. Pure.
//
// Words are sought without regard to case. A value that is missing, or lies outside what it can be,
// is none: the page has changed.
#pragma once

#include <optional>
#include <string_view>

namespace zepril {

struct IonoPageAValues {
  std::optional<double> KpIndex;
  std::optional<double> SunspotNumber;
};

// The observatory's page:
//   "KIEL 3-HOUR K 3 ... KIEL CURRENT K 4 ... SUNSPOT NUMBER 101"
// K is the mean of both, to one decimal, rounded down: 3.5 here. It takes both.
IonoPageAValues ParseIonoPageA(std::string_view text);

struct IonoPageBValues {
  bool IsPage = false;  // longer than 300 characters, with " SSN " in it
  std::optional<double> SunspotNumber;
  std::optional<double> KpIndex;
};

// The daily text:
//   "10 cm 178  SSN 101  Afr/Ap 008/012 ..." and "... Planetary 2 3 2 2 3 3 2 4"
// Sunspots are the four characters behind " SSN", K the last number of the line of " Planetary ".
IonoPageBValues ParseIonoPageB(std::string_view text);

}  // namespace zepril
