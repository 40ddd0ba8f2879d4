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
  made_.Picture = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, made_.Picture);
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
  parts_.Binding.Bind(made_.Picture, p.Frame8);
  parts_.Binding.OnControlsOut([view, &p, &files] {
    if (p.Frame8.Visible) view->Show(p.Picture, files);
  });
}

void LayerPanels::MakePlacePanel() {
  PlaceControls& p = controls_.Places;
  made_.Place = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(made_.Place, p.PoiPanel, 4);
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
  parts_.Binding.Bind(made_.Place, p.PoiPanel);
}

void LayerPanels::MakeIonoPanel() {
  IonoControls& i = controls_.Iono;
  made_.Iono = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(made_.Iono, i.Frame18, 2);
  parts_.FieldRow(grid, 1, i.Text11);
  parts_.FieldRow(grid, 2, i.Text12);
  QPushButton* detailed = SmallButton();
  grid->addWidget(detailed, 3, 0, 1, 2);
  parts_.Binding.Bind(detailed, i.FoptDetailed);
  auto* status = new QLabel;
  status->setWordWrap(true);
  grid->addWidget(status, 4, 0, 1, 2);
  parts_.Binding.Bind(status, controls_.Status.IonoLabel);
  grid->addWidget(parts_.BoundButton(i.IonoOk), 5, 0);
  grid->addWidget(parts_.BoundButton(i.IonoClose), 5, 1);
  parts_.Binding.Bind(made_.Iono, i.Frame18);
}

void LayerPanels::MakeSunPanel(const QtSurface& sun) {
  SunControls& s = controls_.Sun;
  made_.Sun = parts_.Panel(&map_);
  made_.Sun->setAttribute(Qt::WA_TransparentForMouseEvents);  // the button is held on the map
  auto* grid = new QGridLayout(made_.Sun);
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
  parts_.Binding.Bind(made_.Sun, s.SunPanel);
  parts_.Binding.OnControlsOut([plot, &s] {
    if (s.SunPanel.Visible) plot->ControlsOut();
  });
}

void LayerPanels::MakeProgressPanel() {
  ProgressControls& p = controls_.Progress;
  // Beside the map: set-up panels, which stand there too, must not hide it.
  made_.Progress = parts_.Panel(map_.parentWidget());
  auto* box = TightBox(QBoxLayout::TopToBottom, made_.Progress);
  box->setContentsMargins(16, 12, 16, 12);
  auto* text = new QLabel;
  auto* bar = new FillBarWidget;
  box->addWidget(text);
  box->addWidget(bar);
  parts_.Binding.Bind(text, p.ProgressText);
  parts_.Binding.Bind(bar, p.ProgressBar);
  parts_.Binding.Bind(made_.Progress, p.ProgressPanel);
}

}  // namespace zepril
