// Where each panel stands on the map's present size, and the order in which Esc closes them.
#include "desktop/panel_table.h"

#include <QLabel>
#include <QWidget>

#include <algorithm>

#include "core/controls/main_window_controls.h"
#include "desktop/layer_panels.h"
#include "desktop/panels_over_map.h"
#include "desktop/report_panels.h"
#include "desktop/scrolling_panel.h"
#include "desktop/transmit_panels.h"

namespace zepril {
namespace {

constexpr int kMargin = 8;  // pixels, to the map's edge and between notices
constexpr int kLeastWidth = 100;
constexpr int kOwnWidth = 0;
constexpr int kQthWidth = 260;
constexpr int kPlaceWidth = 400;
constexpr int kIonoWidth = 260;
constexpr int kProgressWidth = 320;
constexpr int kNoticeWidth = 760;

enum class Side { Left, Middle, Right };
enum class Edge { Top, Bottom };

int RoomOn(const QWidget& map) {
  return std::max(map.width() - 2 * kMargin, kLeastWidth);
}

// At an edge of the map, of `width` where there is room for it, or as wide as it wants to be.
std::function<void()> At(QWidget* panel, const QWidget& map, Edge edge, Side side,
                         int width = kOwnWidth) {
  return [panel, &map, edge, side, width] {
    if (width != kOwnWidth) panel->setFixedWidth(std::min(width, RoomOn(map)));
    panel->adjustSize();
    const int free = map.width() - panel->width();
    const int x = side == Side::Left ? kMargin : side == Side::Middle ? free / 2 : free - kMargin;
    const int y = edge == Edge::Top ? kMargin : map.height() - panel->height() - kMargin;
    panel->move(x, y);
  };
}

// In the middle of the map, over all that stands beside it too.
std::function<void()> OverAll(QWidget* panel, const QWidget& map) {
  return [panel, &map] {
    panel->setFixedWidth(std::min(kProgressWidth, RoomOn(map)));
    panel->adjustSize();
    const QPoint middle((map.width() - panel->width()) / 2, (map.height() - panel->height()) / 2);
    panel->move(map.pos() + middle);
    panel->raise();
  };
}

// Wide, over everything else on the map: at its top, under `above` where that is shown.
std::function<void()> NoticeAtTop(QLabel* notice, const QWidget& map,
                                  const QLabel* above = nullptr) {
  return [notice, &map, above] {
    const int width = std::min(kNoticeWidth, RoomOn(map));
    const bool below = above != nullptr && !above->isHidden();
    const int y = below ? above->y() + above->height() + kMargin : kMargin;
    notice->setGeometry((map.width() - width) / 2, y, width, notice->heightForWidth(width));
    notice->raise();
  };
}

std::function<void()> NoticeAtBottom(QLabel* notice, const QWidget& map) {
  return [notice, &map] {
    const int width = std::min(kNoticeWidth, RoomOn(map));
    const int height = notice->heightForWidth(width);
    notice->setGeometry((map.width() - width) / 2, map.height() - height - kMargin, width, height);
    notice->raise();
  };
}

}  // namespace

// In the order in which Esc closes them, then those that go by themselves. The record is placed
// before the list of heard stations, which leaves its buttons free; the notices come last, as they
// lie over all others: the reason of a dead link at the top, trouble with a file below it, the mode
// that lasts while a button is held at the bottom, next to the list.
PanelTable::PanelTable(const MainWindowControls& c, QWidget& map, LayerPanels& layers,
                       PanelsOverMap& over_map, TransmitPanels& transmit, ReportPanels& reports) {
  const PanelsOverMap::Widgets& over = over_map.Made();
  const LayerPanels::Widgets& layer = layers.Made();
  QWidget* const picture = layer.Picture;
  rows_ = {
      {nullptr, {}, &c.Terminal.Frame19, &c.Terminal.Command66},
      {transmit.ObjectSetup(), [&transmit] { transmit.PlaceObjectSetup(); }, &c.ObjectSetup.Frame11,
       &c.ObjectSetup.Command32},
      {transmit.TxSetup(), [&transmit] { transmit.PlaceTxSetup(); }, &c.TxSetup.Frame4,
       &c.TxSetup.TxAbort},
      {reports.Weather(), [&reports, &over] { reports.PlaceWeather(*over.Record); },
       &c.Weather.Frame15, &c.Weather.Command27},
      {over.Record, [&over_map] { over_map.PlaceRecord(); }, &c.Record.Frame1, &c.Record.Command23},
      {over.Heard, [&over_map] { over_map.PlaceHeard(); }, &c.MoniAll.HeardPanel,
       &c.MoniAll.Command3},
      {over.Palette, At(over.Palette, map, Edge::Bottom, Side::Right), &c.Palette.PalettePanel,
       &c.Palette.Command43},
      {over.Qth, At(over.Qth, map, Edge::Top, Side::Left, kQthWidth), &c.Qth.Frame2,
       &c.Qth.Command22},
      {layer.Place, At(layer.Place, map, Edge::Bottom, Side::Left, kPlaceWidth), &c.Places.PoiPanel,
       &c.Places.PoiClose},
      {layer.Iono, At(layer.Iono, map, Edge::Top, Side::Left, kIonoWidth), &c.Iono.Frame18,
       &c.Iono.IonoClose},
      // Of its size before it comes, so that the picture is read once.
      {picture, [picture, &map] { picture->setGeometry(0, 0, map.width(), map.height()); },
       &c.Picture.Frame8, &c.Picture.Command71, true},
      {over.Alarm, At(over.Alarm, map, Edge::Top, Side::Middle), &c.Status.Frame12},
      {over.Banner, At(over.Banner, map, Edge::Top, Side::Middle), &c.Status.Text10},
      {layer.Sun, At(layer.Sun, map, Edge::Bottom, Side::Left), &c.Sun.SunPanel},
      {layer.Progress, OverAll(layer.Progress, map), &c.Progress.ProgressPanel},
      {over.LinkNotice, NoticeAtTop(over.LinkNotice, map), &c.Status.LinkNotice},
      {over.FileNotice, NoticeAtTop(over.FileNotice, map, over.LinkNotice), &c.Status.FileNotice},
      {over.GpsLine, [&over_map, line = over.GpsLine] { over_map.PlaceGpsLine(line); },
       &c.Gps.GpsInfo},
      {over.GpsNote, [&over_map, line = over.GpsNote] { over_map.PlaceGpsLine(line); },
       &c.Gps.GpsNote},
      {over.ModeNotice, NoticeAtBottom(over.ModeNotice, map), &c.Terminal.Label49},
      // Esc must not close it by accident.
      {reports.Emergency(), [&reports] { reports.PlaceEmergency(); }, &c.Emergency.Frame14},
  };
}

void PanelTable::Place() const {
  for (const PanelRow& row : rows_) {
    // What is hidden is placed when it comes.
    if (row.Place && (row.IsPlacedWhileHidden || !row.Widget->isHidden())) row.Place();
  }
}

const Button* PanelTable::CloseOfTopmost() const {
  const auto open = std::find_if(rows_.begin(), rows_.end(), [](const PanelRow& row) {
    return row.Close != nullptr && row.Frame->Visible;
  });
  return open != rows_.end() ? open->Close : nullptr;
}

}  // namespace zepril
