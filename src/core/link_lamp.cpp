#include "core/link_lamp.h"

#include "core/text_fields.h"

namespace zepril {

LinkLamp LampOf(bool has_link, bool up, double last_data_seconds, double now_seconds) {
  constexpr double kFreshSeconds = 60.0;
  if (!has_link) return {LampState::None, "no radio link"};
  const double age = now_seconds - last_data_seconds;
  const std::string last = last_data_seconds < 0.0
                               ? std::string("no data yet")
                               : "last data " + WholeNumber(ToWhole(Int(age))) + " s ago";
  if (!up) return {LampState::Lost, "link lost, " + last};
  const bool fresh = last_data_seconds >= 0.0 && age <= kFreshSeconds;
  return {fresh ? LampState::Data : LampState::Silent, last};
}

}  // namespace zepril
