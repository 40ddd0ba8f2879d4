// One setting between a line of the configuration file and its place in the state.
#include "config/setting.h"

namespace zepril {
namespace {

// Takes `value` to where the setting lives.
struct Taker {
  SettingForm Form;
  const SettingSections& Sections;
  std::string_view Value;

  void operator()(const TextPlace& place) const {
    if (auto text = TextFromFile(Form, Value)) place.Value(Sections) = std::move(*text);
  }
  void operator()(const WholePlace& place) const {
    if (const auto whole = WholeFromFile(Form, Value)) place.Set(Sections, *whole);
  }
  void operator()(const RealPlace& place) const {
    if (const auto real = RealFromFile(Value)) place.Value(Sections) = *real;
  }
};

struct Giver {
  SettingForm Form;
  const SettingSections& Sections;

  std::string operator()(const TextPlace& place) const {
    return TextForFile(Form, place.Value(Sections));
  }
  std::string operator()(const WholePlace& place) const {
    return WholeForFile(Form, place.Get(Sections));
  }
  std::string operator()(const RealPlace& place) const {
    return RealForFile(place.Value(Sections));
  }
};

}  // namespace

void SetFallback(const Setting& setting, SettingsWindow window, const SettingSections& sections) {
  const SettingForm form = setting.Form.For(window);
  if (form.Kind == SettingKind::None) return;
  const auto& place = setting.Place.For(window).Value;
  const std::string_view fallback = setting.Fallback.For(window);
  // A text stands as it is: no form may refuse it.
  if (const auto* text = std::get_if<TextPlace>(&place)) {
    text->Value(sections) = fallback;
  } else {
    std::visit(Taker{form, sections, fallback}, place);
  }
}

void TakeSetting(const Setting& setting, SettingsWindow window, const SettingSections& sections,
                 std::string_view value) {
  const SettingForm form = setting.Form.For(window);
  if (form.Kind == SettingKind::None || !form.Read) return;
  std::visit(Taker{form, sections, value}, setting.Place.For(window).Value);
  if (setting.AlsoTaken != nullptr) setting.AlsoTaken(sections, value);
}

std::string GiveSetting(const Setting& setting, SettingsWindow window,
                        const SettingSections& sections) {
  return std::visit(Giver{setting.Form.For(window), sections}, setting.Place.For(window).Value);
}

}  // namespace zepril
