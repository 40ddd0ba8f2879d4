// Pages of any bytes: a number that is found is one that can be, K of the first page has one
// decimal, and letters of another case change nothing.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/text_fields.h"
#include "core/iono_numbers.h"
#include "internet/iono_pages.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void RequireWithin(const std::optional<double>& value, double highest) {
  Require(!value || (*value >= 0.0 && *value <= highest));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const zepril::IonoPageAValues a = zepril::ParseIonoPageA(text);
  RequireWithin(a.KpIndex, zepril::kHighestK);
  RequireWithin(a.SunspotNumber, zepril::kHighestSunspotNumber);
  Require(!a.KpIndex || std::fabs(*a.KpIndex * 10.0 - std::round(*a.KpIndex * 10.0)) < 1e-9);
  const zepril::IonoPageBValues b = zepril::ParseIonoPageB(text);
  RequireWithin(b.KpIndex, zepril::kHighestK);
  RequireWithin(b.SunspotNumber, zepril::kHighestSunspotNumber);
  Require(b.IsPage || (!b.KpIndex && !b.SunspotNumber));
  Require(!b.IsPage || text.size() > 300);
  const std::string upper = zepril::Upper(text);
  Require(zepril::ParseIonoPageA(upper).KpIndex == a.KpIndex);
  Require(zepril::ParseIonoPageA(upper).SunspotNumber == a.SunspotNumber);
  Require(zepril::ParseIonoPageB(upper).KpIndex == b.KpIndex);
  Require(zepril::ParseIonoPageB(upper).SunspotNumber == b.SunspotNumber);
  return 0;
}
