// Makes the bar's groups and fits them to the width there is.
#include "desktop/map_bar.h"

#include <QLabel>
#include <QResizeEvent>
#include <QToolButton>

#include "core/texts/window_texts.h"

namespace zepril {
namespace {

constexpr int kNever = 1 << 20;
constexpr int kRoomForLayers = 1080;  // pixels of the bar
constexpr int kRoomForFollow = 760;
constexpr int kRoomForWords = 860;
constexpr int kGroupGap = 12;
constexpr int kCentreWidth = 72;

}  // namespace

MapBar::MapBar(WindowParts& parts, MapControls& map) : parts_(parts) {
  setObjectName(QStringLiteral("MapBar"));
  row_ = TightBox(QBoxLayout::LeftToRight, this);
  row_->setContentsMargins(8, 4, 8, 4);
  AddPositions(map);
  AddGap();
  AddLayers(map);
  row_->addStretch(1);
  Add(Picture::Brightness, map.Command72, kRoomForFollow);
  Add(Picture::Save, map.Command59, kRoomForLayers);
}

template <typename ControlOfMap>
QToolButton* MapBar::Add(Picture picture, ControlOfMap& control, int caption_from) {
  QToolButton* tool = parts_.Tool(picture, caption_from != kNever);
  row_->addWidget(tool);
  parts_.Binding.Bind(tool, control);
  if (caption_from > 0 && caption_from != kNever) captioned_.push_back({tool, caption_from});
  return tool;
}

void MapBar::AddDim(Text text) {
  QLabel* label = DimLabel(text);
  row_->addWidget(label);
  dim_.push_back(label);
}

void MapBar::AddGap() {
  auto* gap = new QWidget;
  gap->setFixedWidth(kGroupGap - kGap);
  row_->addWidget(gap);
  dim_.push_back(gap);
}

void MapBar::AddPositions(MapControls& map) {
  AddDim(window_texts::kScale);
  Add(Picture::Coarser, map.Command1, kNever);
  Add(Picture::Finer, map.Command2, kNever);
  AddGap();
  AddDim(window_texts::kZoom);
  Add(Picture::ZoomOut, map.Command7, kNever);
  Add(Picture::ZoomOne, map.Command9, kNever);
  Add(Picture::ZoomIn, map.Command8, kNever);
  AddGap();
  Add(Picture::Centre, map.Command12, 0)->setMinimumWidth(kCentreWidth);
  Add(Picture::Own, map.Option1, kRoomForFollow);
  Add(Picture::Station, map.Option2, kRoomForFollow);
}

void MapBar::AddLayers(MapControls& map) {
  Add(Picture::Grid, map.Check4, kRoomForLayers);
  Add(Picture::Circles, map.Check9, kRoomForLayers);
  Add(Picture::Pictures, map.Check12, kRoomForLayers);
  Add(Picture::Track, map.Check14, kRoomForLayers);
  // The level is nowhere else to be seen.
  Add(Picture::Places, map.Command73, 0);
}

void MapBar::resizeEvent(QResizeEvent* event) {
  const int width = event->size().width();
  for (const Captioned& tool : captioned_) {
    const bool room = width >= tool.From;
    tool.Tool->setToolButtonStyle(room ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  }
  for (QWidget* widget : dim_)
    widget->setVisible(width >= kRoomForWords);
  QFrame::resizeEvent(event);
}

}  // namespace zepril
