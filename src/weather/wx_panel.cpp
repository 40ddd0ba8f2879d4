// Words the values, paints the picture, and shows or hides the panel.
#include "weather/wx_panel.h"

#include <array>
#include <optional>

#include "core/text_fields.h"
#include "core/texts/weather_texts.h"
#include "reception/weather_report.h"
#include "weather/wx_drawing.h"

namespace zepril {
namespace {

constexpr char kWeatherStation = '_';
constexpr int kValuePlaces = 5;

bool IsWeatherStation(const StationRecord& record) {
  return record.Columns(102, 102)[0] == kWeatherStation;
}

std::string TitleOf(const StationRecord& record) {
  return weather_texts::kTitle.With({record.Call(), record.Columns(1, 2), record.Columns(3, 4),
                                     record.Columns(5, 6), record.Time()});
}

// What the station says behind its numbers; all of it when there are none.
std::string RemarkOf(const StationRecord& record, bool has_numbers) {
  const std::string_view text = record.Info();
  if (!has_numbers) return std::string(text);
  const std::size_t blank = text.find(' ');
  return blank == std::string_view::npos ? std::string() : std::string(Trim(text.substr(blank)));
}

}  // namespace

WxPanel::WxPanel(const MapViewState& view, WeatherControls& controls, RecordPanelControls& record,
                 DrawingSurface& surface)
    : view_(view), controls_(controls), record_controls_(record), surface_(surface) {
  record_controls_.Command40.Click = [this] { Switch(); };
  controls_.Command27.Click = [this] {
    suppressed_ = true;
    controls_.Frame15.Visible = false;
  };
}

void WxPanel::ShowWxPanel(const StationRecord* record) {
  const bool weather = record != nullptr && IsWeatherStation(*record);
  record_controls_.Command40.Visible = weather;
  controls_.Frame15.Visible = weather && !suppressed_;
  if (!weather) return;
  record_ = *record;
  if (!suppressed_) DrawWxReport();
}

// The button shows a panel that was closed, and closes one that is shown.
void WxPanel::Switch() {
  suppressed_ = controls_.Frame15.Visible;
  controls_.Frame15.Visible = !suppressed_;
  if (!suppressed_) DrawWxReport();
}

void WxPanel::DrawWxReport() {
  const WeatherReport report = ReadWeatherReport(record_.Columns(43, 89));
  const std::array<std::optional<int>, WeatherControls::kValues> values{
      report.WindDirectionDeg, report.WindSpeedMs,     report.GustMs,
      report.TemperatureC,     report.Rain1hMm,        report.Rain24hMm,
      report.RainTodayMm,      report.HumidityPercent, report.PressureHpa};
  controls_.WxTitle.Caption = TitleOf(record_);
  bool has_numbers = false;
  for (std::size_t at = 0; at < values.size(); ++at) {
    Label& value = controls_.Values[at];
    // An empty text: the report did not tell.
    value.Caption = values[at] ? std::string(weather_texts::kLabels[at]) +
                                     PadLeft(WholeNumber(*values[at]), kValuePlaces)
                               : std::string();
    value.Visible = values[at].has_value();
    has_numbers |= value.Visible;
  }
  controls_.Label38.Caption = DoubledAmpersands(RemarkOf(record_, has_numbers));
  DrawWxPicture(surface_, report, view_.ColourDepthBits);
  ++controls_.Picture2.Revision;
}

}  // namespace zepril
