#include "core/title_line.h"

#include "core/text_fields.h"

namespace zepril {

std::string BaseTitle(std::string_view version, std::string_view call) {
  return PadRight("ZEP RIL  V " + std::string(version) + "  " + std::string(call), kTitleColumns);
}

void PutInTitle(std::string& title, std::size_t first, std::string_view text) {
  if (title.size() < kTitleColumns) title = PadRight(title, kTitleColumns);
  title.replace(first - 1, text.size(), text);
}

void BlankInTitle(std::string& title, std::size_t first, std::size_t last) {
  PutInTitle(title, first, std::string(last - first + 1, ' '));
}

std::string DigiMarker(const RadioState& radio) {
  constexpr std::size_t kWidth = 11;
  const auto mode = static_cast<RadioMode>(radio.RadioMode);
  const bool modem =
      mode == RadioMode::Pk232 || mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc;
  if (!modem || radio.DigiOn != 1) return std::string(kWidth, ' ');
  const bool relays =
      mode == RadioMode::ScsTnc && radio.CrossMode != "NONE" && radio.CrossMode != radio.BaudMode;
  return relays ? "Digi X-mode" : "Digi active";
}

}  // namespace zepril
