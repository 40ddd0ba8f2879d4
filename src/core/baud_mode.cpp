// Labels of the speeds.
#include "core/baud_mode.h"

namespace zepril {

std::string BaudModeLabelOf(std::string_view baud_mode) {
  if (baud_mode == "300R") return "RPR 300";
  return std::string(baud_mode) + " Bd";
}

}  // namespace zepril
