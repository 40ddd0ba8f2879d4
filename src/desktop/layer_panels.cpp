// Makes the panels of the layers, gives them their places, and closes the topmost one.
#include "desktop/layer_panels.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

#include "desktop/fill_bar_widget.h"
#include "desktop/picture_view.h"
#include "desktop/plot_view.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kMargin = 8;
constexpr int kPlaceWidth = 400;
constexpr int kIonoWidth = 260;
constexpr int kProgressWidth = 320;

}  // namespace

LayerPanels::LayerPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map,
                         const QtSurface& sun, const Files& files)
    : parts_(parts), controls_(controls), map_(map) {
  MakePicturePanel(files);
  MakePlacePanel();
  MakeIonoPanel();
  MakeSunPanel(sun);
  MakeProgressPanel();
}

void LayerPanels::MakePicturePanel(const Files& files) {
  PicturePanelControls& p = controls_.Picture;
  picture_ = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, picture_);
  auto* view = new PictureView(parts_.Loop, p.Picture);
  box->addWidget(view, 1);
  auto* row = TightBox(QBoxLayout::LeftToRight);
  row->setContentsMargins(kMargin, 0, kMargin, kGap);
  row->addWidget(parts_.BoundButton(p.Command29));
  row->addWidget(parts_.BoundButton(p.Command30));
  QLabel* name = parts_.FixedLabel();
  row->addWidget(name, 1);
  parts_.Binding.Bind(name, p.PictureName);
  row->addWidget(parts_.BoundButton(p.Command70));
  row->addWidget(parts_.BoundButton(p.Command71));
  box->addLayout(row);
  parts_.Binding.Bind(picture_, p.Frame8);
  parts_.Binding.OnControlsOut([view, &p, &files] {
    if (p.Frame8.Visible) view->Show(p.Picture, files);
  });
}

void LayerPanels::MakePlacePanel() {
  PlaceControls& p = controls_.Places;
  place_ = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(place_, p.PoiPanel, 4);
  auto* name = new QLineEdit;
  name->setFont(parts_.FixedFont);
  grid->addWidget(name, 1, 0, 1, 4);
  parts_.Binding.Bind(name, p.Text4);
  auto* rule = new QLabel;
  rule->setProperty("dim", true);
  rule->setWordWrap(true);
  grid->addWidget(rule, 2, 0, 1, 4);
  parts_.Binding.Bind(rule, p.Label14);
  grid->addWidget(parts_.BoundButton(p.PoiOk), 3, 0);
  grid->addWidget(parts_.BoundButton(p.Command64), 3, 1);
  grid->addWidget(parts_.BoundButton(p.Command67), 3, 2);
  grid->addWidget(parts_.BoundButton(p.PoiClose), 3, 3);
  parts_.Binding.Bind(place_, p.PoiPanel);
}

void LayerPanels::MakeIonoPanel() {
  IonoControls& i = controls_.Iono;
  iono_ = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(iono_, i.Frame18, 2);
  parts_.FieldRow(grid, 1, i.Text11);
  parts_.FieldRow(grid, 2, i.Text12);
  QPushButton* detailed = SmallButton();
  grid->addWidget(detailed, 3, 0, 1, 2);
  parts_.Binding.Bind(detailed, i.FoptDetailed);
  grid->addWidget(parts_.BoundButton(i.IonoOk), 4, 0);
  grid->addWidget(parts_.BoundButton(i.IonoClose), 4, 1);
  parts_.Binding.Bind(iono_, i.Frame18);
}

void LayerPanels::MakeSunPanel(const QtSurface& sun) {
  SunControls& s = controls_.Sun;
  sun_ = parts_.Panel(&map_);
  sun_->setAttribute(Qt::WA_TransparentForMouseEvents);  // the button is held on the map
  auto* grid = new QGridLayout(sun_);
  grid->setContentsMargins(8, 8, 8, 8);
  grid->setSpacing(2);
  QLabel* title = parts_.FixedLabel();
  grid->addWidget(title, 0, 0, 1, 2);
  parts_.Binding.Bind(title, s.SunTitle);
  auto* plot = new PlotView(s.SunPlot, sun);
  grid->addWidget(plot, 1, 0, 1, 2);
  for (std::size_t row = 0; row < SunControls::kRows; ++row) {
    QLabel* name = parts_.FixedLabel();
    QLabel* value = parts_.FixedLabel();
    value->setAlignment(Qt::AlignRight);
    grid->addWidget(name, static_cast<int>(row) + 2, 0);
    grid->addWidget(value, static_cast<int>(row) + 2, 1);
    parts_.Binding.Bind(name, s.SunNames[row]);
    parts_.Binding.Bind(value, s.SunValues[row]);
  }
  parts_.Binding.Bind(sun_, s.SunPanel);
  parts_.Binding.OnControlsOut([plot, &s] {
    if (s.SunPanel.Visible) plot->ControlsOut();
  });
}

void LayerPanels::MakeProgressPanel() {
  ProgressControls& p = controls_.Progress;
  // Beside the map: set-up panels, which stand there too, must not hide it.
  progress_ = parts_.Panel(map_.parentWidget());
  auto* box = TightBox(QBoxLayout::TopToBottom, progress_);
  box->setContentsMargins(16, 12, 16, 12);
  auto* text = new QLabel;
  auto* bar = new FillBarWidget;
  box->addWidget(text);
  box->addWidget(bar);
  parts_.Binding.Bind(text, p.ProgressText);
  parts_.Binding.Bind(bar, p.ProgressBar);
  parts_.Binding.Bind(progress_, p.ProgressPanel);
}

void LayerPanels::Place() {
  const int width = map_.width();
  const int height = map_.height();
  const int inner = std::max(width - 2 * kMargin, 100);
  // Of its size before it comes, so that the picture is read once.
  picture_->setGeometry(0, 0, width, height);
  if (!place_->isHidden()) {
    place_->setFixedWidth(std::min(kPlaceWidth, inner));
    place_->adjustSize();
    place_->move(kMargin, height - place_->height() - kMargin);
  }
  if (!iono_->isHidden()) {
    iono_->setFixedWidth(std::min(kIonoWidth, inner));
    iono_->adjustSize();
    iono_->move(kMargin, kMargin);
  }
  if (!sun_->isHidden()) {
    sun_->adjustSize();
    sun_->move(kMargin, height - sun_->height() - kMargin);
  }
  if (!progress_->isHidden()) {
    progress_->setFixedWidth(std::min(kProgressWidth, inner));
    progress_->adjustSize();
    const QPoint middle((width - progress_->width()) / 2, (height - progress_->height()) / 2);
    progress_->move(map_.pos() + middle);
    progress_->raise();
  }
}

const Button* LayerPanels::CloseOfTopmost() const {
  if (controls_.Places.PoiPanel.Visible) return &controls_.Places.PoiClose;
  if (controls_.Iono.Frame18.Visible) return &controls_.Iono.IonoClose;
  if (controls_.Picture.Frame8.Visible) return &controls_.Picture.Command71;
  return nullptr;
}

}  // namespace zepril
