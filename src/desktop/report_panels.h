// The panels of what a station reports: the weather at a weather station, and an emergency, which
// lies over everything else.
#pragma once

#include "core/controls/main_window_controls.h"
#include "desktop/window_parts.h"
#include "platform/qt/qt_surface.h"

class QFrame;
class QWidget;

namespace zepril {

class ReportPanels {
 public:
  // `weather`: where the report is painted.
  ReportPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map,
               const QtSurface& weather);
  ReportPanels(const ReportPanels&) = delete;
  ReportPanels& operator=(const ReportPanels&) = delete;

  QFrame* Weather() { return weather_; }
  QFrame* Emergency() { return emergency_; }
  // At the map's left, above `record` where that is shown.
  void PlaceWeather(const QWidget& record);
  // At the map's top, wide, in front of all others.
  void PlaceEmergency();

 private:
  void MakeWeather(const QtSurface& surface);
  void MakeEmergency();

  WindowParts& parts_;
  MainWindowControls& controls_;
  QWidget& map_;
  QFrame* weather_ = nullptr;
  QFrame* emergency_ = nullptr;
};

}  // namespace zepril
