// Makes OBJECT SETUP and finds both set-up panels their places.
#include "desktop/transmit_panels.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

#include "core/texts/window_texts.h"
#include "desktop/plot_view.h"
#include "desktop/scrolling_panel.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kMargin = 8;
constexpr int kWidth = 292;
constexpr int kCentreRoom = 20;  // pixels around the map's centre that stay free
constexpr int kStepWidth = 26;
constexpr int kOverlayField = 32;

}  // namespace

TransmitPanels::TransmitPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map,
                               Symbols symbols)
    : parts_(parts),
      controls_(controls),
      map_(map),
      tx_setup_(parts, controls, map, symbols.OfStation),
      object_(new ScrollingPanel(parts, controls.ObjectSetup.Frame11, map.parentWidget(), map)) {
  MakeObjectSetup(symbols.OfObject);
}

void TransmitPanels::MakeObjectSetup(const QtSurface& symbol) {
  ObjectSetupControls& o = controls_.ObjectSetup;
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  object_->Content()->addWidget(RestsLabel());
  object_->Content()->addLayout(grid);
  parts_.FieldRow(grid, 0, o.ObjectNameField);
  parts_.FieldRow(grid, 1, o.ObjectTextField);
  grid->addWidget(new QLabel(ToQt(window_texts::kSymbol)), 2, 0);
  auto* row = TightBox(QBoxLayout::LeftToRight);
  grid->addLayout(row, 2, 1);
  for (QPushButton* step :
       {parts_.BoundButton(o.ObjectSymbolDown), parts_.BoundButton(o.ObjectSymbolUp)}) {
    step->setFixedWidth(kStepWidth);
    row->addWidget(step);
  }
  auto* picture = new PlotView(o.ObjectSymbolPicture, symbol, 2);
  row->addWidget(picture);
  row->addStretch(1);
  row->addWidget(new QLabel(ToQt(o.ObjectOverlayField.Called)));
  QLineEdit* overlay = parts_.BoundField(o.ObjectOverlayField);
  overlay->setFixedWidth(kOverlayField);
  row->addWidget(overlay);
  QLabel* name = parts_.FixedLabel();
  name->setMinimumWidth(0);
  name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  grid->addWidget(name, 3, 1);
  parts_.Binding.Bind(name, o.ObjectSymbolName);
  object_->Content()->addStretch(1);
  object_->Buttons()->addWidget(parts_.BoundButton(o.ObjectOk), 1);
  object_->Buttons()->addWidget(parts_.BoundButton(o.Command31));
  object_->Buttons()->addWidget(parts_.BoundButton(o.Command32));
  parts_.Binding.OnControlsOut([&o, picture] {
    if (o.Frame11.Visible) picture->ControlsOut();
  });
}

void TransmitPanels::PlaceObjectSetup() {
  const QRect map = map_.geometry();
  const int centre = map.x() + map.width() / 2;
  const int x = std::max(std::min(map.x() + kMargin, centre - kCentreRoom - kWidth), 0);
  object_->PlaceIn(QRect(x, kMargin, kWidth, map_.parentWidget()->height() - 2 * kMargin));
}

QWidget* TransmitPanels::TxSetup() {
  return tx_setup_.Widget();
}

QWidget* TransmitPanels::ObjectSetup() {
  return object_;
}

}  // namespace zepril
