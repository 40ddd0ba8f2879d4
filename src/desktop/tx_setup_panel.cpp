// Lays out the groups of TX SETUP: station, path, lines, timer, radio.
#include "desktop/tx_setup_panel.h"

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
constexpr int kWidth = 620;
constexpr int kStepWidth = 26;
constexpr int kShortField = 44;  // a few digits
constexpr int kOverlayField = 32;
constexpr int kCallField = 84;
constexpr int kButtonWidth = 88;
constexpr int kIntervalField = 72;

// The name of one control of several, counted from 1.
QPushButton* Tight(QPushButton* button) {
  button->setProperty("tight", true);
  return button;
}

}  // namespace

TxSetupPanel::TxSetupPanel(WindowParts& parts, MainWindowControls& controls, QWidget& map,
                           const QtSurface& symbol)
    : parts_(parts),
      transmit_(controls.Transmit),
      gate_(controls.Gate),
      controls_(controls.TxSetup),
      map_(map),
      panel_(new ScrollingPanel(parts, controls_.Frame4, map.parentWidget(), map)) {
  QBoxLayout* box = panel_->Content();
  box->addWidget(RestsLabel());
  box->setSpacing(2 * kGap);
  MakeStation(box, symbol);
  MakePath(box);
  MakeLines(box);
  MakeTimer(box);
  MakeRadio(box);
  box->addStretch(1);
  QLabel* notice = parts_.FixedLabel();
  parts_.Binding.Bind(notice, controls_.CallNotice);
  panel_->Buttons()->addStretch(1);
  panel_->Buttons()->addWidget(notice);
  for (QPushButton* button :
       {parts_.BoundButton(controls_.TxOk), parts_.BoundButton(controls_.TxAbort)}) {
    button->setMinimumWidth(kButtonWidth);
    panel_->Buttons()->addWidget(button);
  }
}

// SSID, destination, symbol.
void TxSetupPanel::MakeStation(QBoxLayout* box, const QtSurface& symbol) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  const auto field = [&](TextBox& control, int width) {
    row->addWidget(new QLabel(ToQt(control.Called)));
    QLineEdit* edit = parts_.BoundField(control);
    edit->setFixedWidth(width);
    row->addWidget(edit);
  };
  field(controls_.TxSsid, kShortField);
  row->addSpacing(kGap);
  field(controls_.TxDestinationField, kCallField);
  row->addSpacing(2 * kGap);
  row->addWidget(new QLabel(ToQt(window_texts::kAprsSymbol)));
  for (QPushButton* step :
       {parts_.BoundButton(controls_.SymbolDown), parts_.BoundButton(controls_.SymbolUp)}) {
    step->setFixedWidth(kStepWidth);
    row->addWidget(step);
  }
  auto* picture = new PlotView(controls_.SymbolPicture, symbol, 2);
  row->addWidget(picture);
  QLabel* name = parts_.FixedLabel();
  name->setMinimumWidth(0);
  name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(name, 1);
  parts_.Binding.Bind(name, controls_.SymbolName);
  field(controls_.TxOverlayField, kOverlayField);
  parts_.Binding.OnControlsOut([this, picture] {
    if (controls_.Frame4.Visible) picture->ControlsOut();
  });
}

// The path, its memories, and the buttons that write it.
void TxSetupPanel::MakePath(QBoxLayout* box) {
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  box->addLayout(grid);
  constexpr int kButtons = 5;  // the column of the first quick button
  grid->addWidget(DimLabel(window_texts::kPath), 0, 0, 1, kButtons);
  grid->addWidget(parts_.BoundField(controls_.TxPathField), 1, 0);
  grid->setColumnStretch(0, 1);
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at) {
    QPushButton* memory = parts_.BoundButton(controls_.PathMemory[at]);
    grid->addWidget(Tight(memory), 1, 1 + static_cast<int>(at));
  }
  constexpr std::size_t kInARow = TxSetupControls::kQuick / 2;
  for (std::size_t at = 0; at < TxSetupControls::kQuick; ++at) {
    QPushButton* quick = parts_.BoundButton(controls_.PathQuick[at]);
    grid->addWidget(Tight(quick), static_cast<int>(at / kInARow),
                    kButtons + static_cast<int>(at % kInARow));
  }
  grid->addWidget(Tight(parts_.BoundButton(controls_.PathClear)), 0,
                  kButtons + static_cast<int>(kInARow), 2, 1);
}

void TxSetupPanel::MakeLines(QBoxLayout* box) {
  auto* head = TightBox(QBoxLayout::LeftToRight);
  head->addWidget(GroupCaption(window_texts::kInfoLines));
  head->addStretch(1);
  head->addWidget(DimLabel(window_texts::kInfoMemories));
  box->addLayout(head);
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  grid->setColumnStretch(1, 1);
  box->addLayout(grid);
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    const int row = static_cast<int>(line);
    grid->addWidget(new QLabel(QString::number(row + 1)), row, 0);
    grid->addWidget(parts_.BoundField(controls_.InfoField[line]), row, 1);
    QPushButton* active = parts_.BoundButton(controls_.fr4ta[line]);
    grid->addWidget(active, row, 2);
    QPushButton* memory = parts_.BoundButton(controls_.InfoMemory[line]);
    grid->addWidget(Tight(memory), row, 3);
  }
}

void TxSetupPanel::MakeTimer(QBoxLayout* box) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  row->addWidget(new QLabel(ToQt(window_texts::kTxTimer)));
  QPushButton* down = parts_.BoundButton(controls_.TxIntervalDown);
  down->setFixedWidth(kStepWidth);
  row->addWidget(down);
  QLineEdit* interval = parts_.BoundField(controls_.TxInterval);
  interval->setFixedWidth(kIntervalField);
  row->addWidget(interval);
  QPushButton* up = parts_.BoundButton(controls_.TxIntervalUp);
  up->setFixedWidth(kStepWidth);
  row->addWidget(up);
  row->addStretch(1);
  row->addWidget(parts_.BoundButton(controls_.TxTimestampBox));
}

void TxSetupPanel::MakeRadio(QBoxLayout* box) {
  box->addWidget(GroupCaption(window_texts::kRadio));
  auto* speeds = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(speeds);
  for (OptionButton& speed : controls_.Speeds)
    speeds->addWidget(parts_.BoundButton(speed));
  speeds->addStretch(1);
  speeds->addWidget(parts_.BoundButton(controls_.DigiBox));
  speeds->addWidget(parts_.BoundButton(gate_.Check15));
  // Where the gate stands, right under its switch.
  auto* gate_words = new QLabel;
  gate_words->setProperty("dim", true);
  gate_words->setAlignment(Qt::AlignRight);
  gate_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  parts_.Binding.Bind(gate_words, gate_.GateWords);
  box->addWidget(gate_words);

  auto* second = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(second);
  second->addWidget(parts_.BoundButton(transmit_.Check2));
  auto* what = new QLabel(ToQt(window_texts::kSecondMode));
  second->addWidget(what);
  QPushButton* down = parts_.BoundButton(controls_.CrossDown);
  down->setFixedWidth(kStepWidth);
  second->addWidget(down);
  QLabel* mode = parts_.FixedLabel();
  mode->setAlignment(Qt::AlignCenter);
  mode->setMinimumWidth(kIntervalField);
  second->addWidget(mode);
  parts_.Binding.Bind(mode, controls_.CrossField);
  QPushButton* up = parts_.BoundButton(controls_.CrossUp);
  up->setFixedWidth(kStepWidth);
  second->addWidget(up);
  second->addStretch(1);
  parts_.Binding.OnControlsOut([this, what] { what->setVisible(controls_.CrossField.Visible); });

  auto* level = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(level);
  auto* label = new QLabel;
  level->addWidget(label);
  parts_.Binding.Bind(label, controls_.TxLevelLabel);
  QLineEdit* millivolts = parts_.BoundField(controls_.TxLevel);
  millivolts->setFixedWidth(kIntervalField);
  level->addWidget(millivolts);
  level->addStretch(1);
}

QWidget* TxSetupPanel::Widget() {
  return panel_;
}

void TxSetupPanel::Place() {
  const QWidget* under = map_.parentWidget();
  const int width = std::min(kWidth, under->width() - 2 * kMargin);
  const int x = std::min(map_.x() + kMargin, under->width() - width - kMargin);
  panel_->PlaceIn(QRect(x, kMargin, width, under->height() - 2 * kMargin));
}

}  // namespace zepril
