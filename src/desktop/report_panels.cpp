// Lays out both panels and puts them to their places.
#include "desktop/report_panels.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

#include "core/texts/emergency_texts.h"
#include "desktop/plot_view.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kMargin = 8;  // pixels, to the map's edge
constexpr int kEmergencyWidth = 720;
}  // namespace

ReportPanels::ReportPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map,
                           const QtSurface& weather)
    : parts_(parts), controls_(controls), map_(map) {
  MakeWeather(weather);
  MakeEmergency();
}

void ReportPanels::MakeWeather(const QtSurface& surface) {
  WeatherControls& w = controls_.Weather;
  weather_ = parts_.Panel(&map_);
  auto* grid = new QGridLayout(weather_);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(2);
  QLabel* title = parts_.FixedLabel();
  grid->addWidget(title, 0, 0, 1, 2);
  parts_.Binding.Bind(title, w.WxTitle);
  auto* picture = new PlotView(w.Picture2, surface);
  picture->setAccessibleName(ToQt(w.Frame15.Called));
  grid->addWidget(picture, 1, 0);
  auto* values = TightBox(QBoxLayout::TopToBottom);
  values->setSpacing(2);
  for (Label& control : w.Values) {
    QLabel* value = parts_.FixedLabel();
    values->addWidget(value);
    parts_.Binding.Bind(value, control);
  }
  values->addStretch(1);
  grid->addLayout(values, 1, 1);
  QLabel* remark = parts_.FixedLabel();
  remark->setWordWrap(true);
  grid->addWidget(remark, 2, 0, 1, 2);
  parts_.Binding.Bind(remark, w.Label38);
  grid->addWidget(parts_.BoundButton(w.Command27), 3, 1, Qt::AlignRight);
  parts_.Binding.Bind(weather_, w.Frame15);
  parts_.Binding.OnControlsOut([picture, &w] {
    if (w.Frame15.Visible) picture->ControlsOut();
  });
}

void ReportPanels::MakeEmergency() {
  EmergencyControls& e = controls_.Emergency;
  // Of the window, so that no panel beside the map covers it and no drawer cuts it.
  emergency_ = parts_.Panel(map_.window());
  emergency_->setProperty("alarm", "panel");
  auto* grid = new QGridLayout(emergency_);
  grid->setContentsMargins(20, 12, 20, 12);
  grid->setVerticalSpacing(4);
  // To be read from across a room.
  auto* title = new QLabel;
  title->setProperty("alarm", "title");
  // Told by its shape too: a sign before the word and after it.
  title->setText(QStringLiteral("!!  %1  !!").arg(ToQt(emergency_texts::kTitle)));
  title->setAlignment(Qt::AlignCenter);
  grid->addWidget(title, 0, 0, 1, 3);
  auto* call = new QLabel;
  call->setProperty("alarm", "call");
  grid->addWidget(call, 1, 0, 1, 3);
  parts_.Binding.Bind(call, e.EmergencyCall);
  int row = 2;
  for (Label* control : {&e.EmergencyInfo, &e.Label26, &e.Label27, &e.EmergencyFile}) {
    QLabel* line = parts_.FixedLabel();
    line->setProperty("alarm", "line");
    line->setWordWrap(true);
    grid->addWidget(line, row++, 0, 1, 3);
    parts_.Binding.Bind(line, *control);
  }
  grid->setColumnStretch(0, 1);
  grid->addWidget(parts_.BoundButton(e.FalseAlarm), row, 1);
  grid->addWidget(parts_.BoundButton(e.EmergencyClose), row, 2);
  parts_.Binding.Bind(emergency_, e.Frame14);
  // Behind all others of this pass, which may have come to the front.
  parts_.Binding.OnControlsOut([this, &e] {
    if (e.Frame14.Visible) PlaceEmergency();
  });
}

void ReportPanels::PlaceWeather(const QWidget& record) {
  weather_->adjustSize();
  const int floor = record.isHidden() ? map_.height() : record.y();
  weather_->move(kMargin, std::max(floor - weather_->height() - kMargin, kMargin));
}

void ReportPanels::PlaceEmergency() {
  emergency_->setFixedWidth(std::min(kEmergencyWidth, std::max(map_.width() - 2 * kMargin, 100)));
  emergency_->adjustSize();
  const QPoint on_map((map_.width() - emergency_->width()) / 2, kMargin);
  emergency_->move(map_.mapTo(map_.window(), on_map));
  emergency_->raise();
}

}  // namespace zepril
