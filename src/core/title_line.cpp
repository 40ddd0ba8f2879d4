// The base text of the title and the columns of its markers.
#include "core/title_line.h"

#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {

std::string BaseTitle(std::string_view version, std::string_view call) {
  return PadRight(status_texts::kTitle.With({version, call}), kTitleColumns);
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
  const bool modem = IsSerialModem(static_cast<RadioMode>(radio.RadioMode));
  if (!modem || radio.DigiOn != Digipeater::On) return std::string(kWidth, ' ');
  return RelaysToAnotherMode(radio) ? status_texts::kDigiCross : status_texts::kDigiActive;
}

}  // namespace zepril
