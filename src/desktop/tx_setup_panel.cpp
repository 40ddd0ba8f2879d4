// Lays out the groups of TX SETUP: station, path, lines, timer, radio.
#include "desktop/tx_setup_panel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

#include "desktop/plot_view.h"
#include "desktop/scrolling_panel.h"

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
QByteArray Numbered(const char* name, std::size_t at) {
  return QByteArray(name) + QByteArray::number(static_cast<int>(at) + 1);
}

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
      panel_(new ScrollingPanel(parts, "Frame4", controls_.Frame4, map.parentWidget(), map)) {
  QBoxLayout* box = panel_->Content();
  box->addWidget(RestsLabel());
  box->setSpacing(2 * kGap);
  MakeStation(box, symbol);
  MakePath(box);
  MakeLines(box);
  MakeTimer(box);
  MakeRadio(box);
  box->addStretch(1);
  QLabel* notice = parts_.FixedLabel("CallNotice");
  parts_.Binding.Bind(notice, controls_.CallNotice);
  panel_->Buttons()->addStretch(1);
  panel_->Buttons()->addWidget(notice);
  for (QPushButton* button : {parts_.BoundButton("TxOk", controls_.TxOk),
                              parts_.BoundButton("TxAbort", controls_.TxAbort)}) {
    button->setMinimumWidth(kButtonWidth);
    panel_->Buttons()->addWidget(button);
  }
}

// SSID, destination, symbol.
void TxSetupPanel::MakeStation(QBoxLayout* box, const QtSurface& symbol) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  const auto field = [&](const char* name, const char* text, TextBox& control, int width) {
    row->addWidget(new QLabel(QString::fromLatin1(text)));
    QLineEdit* edit = parts_.BoundField(name, text, control);
    edit->setFixedWidth(width);
    row->addWidget(edit);
  };
  field("TxSsid", "SSID", controls_.TxSsid, kShortField);
  row->addSpacing(kGap);
  field("TxDestinationField", "TO", controls_.TxDestinationField, kCallField);
  row->addSpacing(2 * kGap);
  row->addWidget(new QLabel(QStringLiteral("APRS SYMBOL")));
  for (QPushButton* step : {parts_.BoundButton("SymbolDown", controls_.SymbolDown),
                            parts_.BoundButton("SymbolUp", controls_.SymbolUp)}) {
    step->setFixedWidth(kStepWidth);
    row->addWidget(step);
  }
  auto* picture = new PlotView(controls_.SymbolPicture, symbol, 2);
  picture->setObjectName(QStringLiteral("SymbolPicture"));
  row->addWidget(picture);
  QLabel* name = parts_.FixedLabel("SymbolName");
  name->setMinimumWidth(0);
  name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(name, 1);
  parts_.Binding.Bind(name, controls_.SymbolName);
  field("TxOverlayField", "OVERLAY", controls_.TxOverlayField, kOverlayField);
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
  grid->addWidget(DimLabel(" VIA = PATH    (CALL1,...)   EASY SETUP    BUTTONS-->"), 0, 0, 1,
                  kButtons);
  grid->addWidget(parts_.BoundField("TxPathField", "path", controls_.TxPathField), 1, 0);
  grid->setColumnStretch(0, 1);
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at) {
    QPushButton* memory = parts_.BoundButton(Numbered("PathMemory", at), controls_.PathMemory[at]);
    memory->setAccessibleName(QStringLiteral("path memory %1").arg(at + 1));
    grid->addWidget(Tight(memory), 1, 1 + static_cast<int>(at));
  }
  constexpr std::size_t kInARow = TxSetupControls::kQuick / 2;
  for (std::size_t at = 0; at < TxSetupControls::kQuick; ++at) {
    QPushButton* quick = parts_.BoundButton(Numbered("PathQuick", at), controls_.PathQuick[at]);
    grid->addWidget(Tight(quick), static_cast<int>(at / kInARow),
                    kButtons + static_cast<int>(at % kInARow));
  }
  grid->addWidget(Tight(parts_.BoundButton("PathClear", controls_.PathClear)), 0,
                  kButtons + static_cast<int>(kInARow), 2, 1);
}

void TxSetupPanel::MakeLines(QBoxLayout* box) {
  auto* head = TightBox(QBoxLayout::LeftToRight);
  head->addWidget(GroupCaption("INFO LINES (ALTERNATING)"));
  head->addStretch(1);
  head->addWidget(DimLabel("M1 to M6:  Lclick RECALL,  Rclick SAVE"));
  box->addLayout(head);
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  grid->setColumnStretch(1, 1);
  box->addLayout(grid);
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    const int row = static_cast<int>(line);
    grid->addWidget(new QLabel(QString::number(row + 1)), row, 0);
    grid->addWidget(
        parts_.BoundField(Numbered("InfoField", line), "info line", controls_.InfoField[line]), row,
        1);
    grid->itemAtPosition(row, 1)->widget()->setAccessibleName(
        QStringLiteral("info line %1").arg(row + 1));
    QPushButton* active = parts_.BoundButton(Numbered("fr4ta", line), controls_.fr4ta[line]);
    active->setAccessibleName(QStringLiteral("info line %1 active").arg(row + 1));
    grid->addWidget(active, row, 2);
    QPushButton* memory =
        parts_.BoundButton(Numbered("InfoMemory", line), controls_.InfoMemory[line]);
    memory->setAccessibleName(QStringLiteral("info line memory %1").arg(row + 1));
    grid->addWidget(Tight(memory), row, 3);
  }
}

void TxSetupPanel::MakeTimer(QBoxLayout* box) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  row->addWidget(new QLabel(QStringLiteral("TX TIMER IN MINUTES OR MANUAL TX")));
  QPushButton* down = parts_.BoundButton("TxIntervalDown", controls_.TxIntervalDown);
  down->setFixedWidth(kStepWidth);
  row->addWidget(down);
  QLineEdit* interval = parts_.BoundField("TxInterval", "minutes", controls_.TxInterval);
  interval->setFixedWidth(kIntervalField);
  row->addWidget(interval);
  QPushButton* up = parts_.BoundButton("TxIntervalUp", controls_.TxIntervalUp);
  up->setFixedWidth(kStepWidth);
  row->addWidget(up);
  row->addStretch(1);
  row->addWidget(parts_.BoundButton("TxTimestampBox", controls_.TxTimestampBox));
}

void TxSetupPanel::MakeRadio(QBoxLayout* box) {
  box->addWidget(GroupCaption("RADIO"));
  auto* speeds = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(speeds);
  for (std::size_t at = 0; at < controls_.Speeds.size(); ++at) {
    const QByteArray name = "Option" + QByteArray::number(static_cast<int>(at) + 3);
    speeds->addWidget(parts_.BoundButton(name, controls_.Speeds[at]));
  }
  speeds->addStretch(1);
  speeds->addWidget(parts_.BoundButton("DigiBox", controls_.DigiBox));
  speeds->addWidget(parts_.BoundButton("Check15", gate_.Check15));

  auto* second = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(second);
  second->addWidget(parts_.BoundButton("Check2", transmit_.Check2));
  auto* what = new QLabel(QStringLiteral("CROSSMODE DIGI TX / HF-DUAL 2. MODE:"));
  second->addWidget(what);
  QPushButton* down = parts_.BoundButton("CrossDown", controls_.CrossDown);
  down->setFixedWidth(kStepWidth);
  second->addWidget(down);
  QLabel* mode = parts_.FixedLabel("CrossField");
  mode->setAlignment(Qt::AlignCenter);
  mode->setMinimumWidth(kIntervalField);
  second->addWidget(mode);
  parts_.Binding.Bind(mode, controls_.CrossField);
  QPushButton* up = parts_.BoundButton("CrossUp", controls_.CrossUp);
  up->setFixedWidth(kStepWidth);
  second->addWidget(up);
  second->addStretch(1);
  parts_.Binding.OnControlsOut([this, what] { what->setVisible(controls_.CrossField.Visible); });

  auto* level = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(level);
  auto* label = new QLabel;
  label->setObjectName(QStringLiteral("TxLevelLabel"));
  level->addWidget(label);
  parts_.Binding.Bind(label, controls_.TxLevelLabel);
  QLineEdit* millivolts = parts_.BoundField("TxLevel", "mV", controls_.TxLevel);
  millivolts->setFixedWidth(kIntervalField);
  level->addWidget(millivolts);
  level->addStretch(1);
}

void TxSetupPanel::Place() {
  if (panel_->isHidden()) return;
  const QWidget* under = map_.parentWidget();
  const int width = std::min(kWidth, under->width() - 2 * kMargin);
  const int x = std::min(map_.x() + kMargin, under->width() - width - kMargin);
  panel_->PlaceIn(QRect(x, kMargin, width, under->height() - 2 * kMargin));
}

}  // namespace zepril
