// Makes each panel over the map, gives it its place, and closes the topmost one.
#include "desktop/panels_over_map.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include <algorithm>
#include <string>

#include "core/text_fields.h"
#include "core/texts/window_texts.h"
#include "desktop/class_button.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kOverlayMargin = 8;
constexpr int kRecordWidth = 984;  // 120 columns of 8 pixels and a frame
constexpr int kQthWidth = 260;
constexpr int kHeardWidth = 290;  // 31 columns of 8 pixels, a scroll bar and a frame
constexpr int kHeardHeight = 420;
constexpr int kLowestHeard = 96;
constexpr int kPathColumn = 91;  // 1-based: from here on the record stays together
constexpr int kNoticeWidth = 760;

}  // namespace

PanelsOverMap::PanelsOverMap(WindowParts& parts, MainWindowControls& controls,
                             const MapViewState& view, QWidget& map)
    : parts_(parts), controls_(controls), view_(view), map_(map) {
  MakePanels();
}

void PanelsOverMap::MakePanels() {
  MakeRecordPanel();
  MakeAlarmPanel();
  MakeQthSetup();
  MakeHeardList();
  MakePalettePanel();
  banner_ = parts_.FixedLabel();
  banner_->setParent(&map_);
  banner_->setAlignment(Qt::AlignCenter);
  banner_->setMargin(6);
  parts_.Binding.Bind(banner_, controls_.Status.Text10);
  MakeNotices();
}

void PanelsOverMap::MakeNotices() {
  const auto notice = [this](Label& control) {
    auto* label = new QLabel(&map_);
    label->setProperty("notice", true);
    label->setWordWrap(true);
    label->setAttribute(Qt::WA_NoMousePropagation);
    parts_.Binding.Bind(label, control);
    return label;
  };
  link_notice_ = notice(controls_.Status.LinkNotice);
  file_notice_ = notice(controls_.Status.FileNotice);
  // They may name a command or a file that is to be copied.
  link_notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  file_notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  mode_notice_ = notice(controls_.Terminal.Label49);
  mode_notice_->setAlignment(Qt::AlignCenter);
}

void PanelsOverMap::MakeRecordPanel() {
  RecordPanelControls& r = controls_.Record;
  record_panel_ = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, record_panel_);
  box->setContentsMargins(8, 8, 8, 8);
  record_text_ = parts_.FixedLabel();
  record_text_->setWordWrap(true);
  record_text_->setFocusPolicy(Qt::TabFocus);
  box->addWidget(record_text_);
  parts_.Binding.Bind(record_text_, r.Label20);
  KeepTailTogether();
  auto* row = TightBox(QBoxLayout::LeftToRight);
  QLabel* mode = parts_.FixedLabel();
  parts_.Binding.Bind(mode, r.Label19);
  row->addWidget(parts_.BoundButton(r.Command18));
  row->addWidget(mode);
  row->addWidget(parts_.BoundButton(r.Command19));
  row->addStretch(1);
  for (Button* control : {&r.Command11, &r.Command36, &r.Command23})
    row->addWidget(parts_.BoundButton(*control));
  box->addLayout(row);
  parts_.Binding.Bind(record_panel_, r.Frame1);
}

// Where the record does not fit on one line, path, symbol and class go to the second one together.
void PanelsOverMap::KeepTailTogether() {
  parts_.Binding.OnControlsOut([this] {
    QString line = ToQt(controls_.Record.Label20.Caption);
    line.replace(QStringLiteral("&&"), QStringLiteral("&"));
    const bool fits = record_text_->fontMetrics().horizontalAdvance(line) <= record_text_->width();
    const QString tail = line.mid(kPathColumn - 1);
    const QString shown = fits || tail.trimmed().isEmpty()
                              ? line
                              : line.left(kPathColumn - 1) + QLatin1Char('\n') + tail;
    if (record_text_->text() != shown) record_text_->setText(shown);
  });
}

void PanelsOverMap::MakeAlarmPanel() {
  alarm_panel_ = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, alarm_panel_);
  box->setContentsMargins(16, 8, 16, 8);
  QLabel* caption = parts_.FixedLabel();
  caption->setObjectName(ToQt(controls_.Status.Frame12.Name) + QStringLiteral("Caption"));
  QLabel* line = parts_.FixedLabel();
  box->addWidget(caption);
  box->addWidget(line);
  parts_.Binding.Bind(line, controls_.Status.Label25);
  parts_.Binding.Bind(alarm_panel_, controls_.Status.Frame12);
  parts_.Binding.OnControlsOut([this, caption] {
    caption->setText(ToQt(controls_.Status.Frame12.Caption));
    if (alarm_panel_->isVisible()) alarm_panel_->adjustSize();
  });
}

void PanelsOverMap::MakeQthSetup() {
  QthSetupControls& q = controls_.Qth;
  qth_panel_ = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(qth_panel_, q.Frame2, 2);
  parts_.FieldRow(grid, 1, q.TextQthNorth);
  parts_.FieldRow(grid, 2, q.TextQthEast);
  auto* note = new QLabel;
  note->setProperty("fault", true);
  note->setWordWrap(true);
  grid->addWidget(note, 3, 0, 1, 2);
  parts_.Binding.Bind(note, q.QthNote);
  grid->addWidget(parts_.BoundButton(q.QthOk), 4, 0);
  grid->addWidget(parts_.BoundButton(q.Command22), 4, 1);
  QLabel* rests = RestsLabel();
  grid->addWidget(rests, 5, 0, 1, 2);
  parts_.Binding.Bind(rests, q.QthRests);
  parts_.Binding.Bind(qth_panel_, q.Frame2);
}

void PanelsOverMap::MakeHeardList() {
  heard_panel_ = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, heard_panel_);
  box->setContentsMargins(8, 8, 8, 8);
  box->addWidget(GroupCaption(window_texts::kHeardStations));
  auto* heads = TightBox(QBoxLayout::LeftToRight);
  heads->setSpacing(0);
  static constexpr int kHeadWidths[] = {76, 76, 64, 48};
  for (std::size_t column = 0; column < controls_.MoniAll.HeardOrder.size(); ++column) {
    QPushButton* head = parts_.BoundButton(controls_.MoniAll.HeardOrder[column]);
    head->setProperty("tight", true);
    heads->addWidget(head, kHeadWidths[column]);
  }
  box->addLayout(heads);
  auto* list = new QListView;
  list->setFont(parts_.FixedFont);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  box->addWidget(list, 1);
  parts_.Binding.Bind(list, &heard_lines_, controls_.MoniAll.HeardList);
  parts_.Binding.Bind(heard_panel_, controls_.MoniAll.HeardPanel);
}

void PanelsOverMap::MakePalettePanel() {
  PaletteControls& p = controls_.Palette;
  palette_panel_ = parts_.Panel(&map_);
  auto* grid = new QGridLayout(palette_panel_);
  grid->setContentsMargins(8, 8, 8, 8);
  grid->setSpacing(kGap);
  for (std::size_t ink = 0; ink < p.Optionink.size(); ++ink) {
    auto* button = new ClassButton(parts_.Shades);
    button->setFixedSize(32, 24);
    button->setProperty("picture_only", true);
    grid->addWidget(button, static_cast<int>(ink / 8), static_cast<int>(ink % 8));
    parts_.Binding.Bind(button, p.Optionink[ink]);
    parts_.Binding.OnControlsOut(
        [this, button, ink] { button->SetFill(PlainColour(view_.InkColours[ink])); });
  }
  grid->addWidget(parts_.BoundButton(p.Command42), 2, 0, 1, 4);
  grid->addWidget(parts_.BoundButton(p.Command43), 2, 4, 1, 4);
  parts_.Binding.Bind(palette_panel_, p.PalettePanel);
}

void PanelsOverMap::Place() {
  const int width = map_.width();
  const int height = map_.height();
  const int inner = std::max(width - 2 * kOverlayMargin, 100);
  // What is hidden is placed when it comes.
  if (!record_panel_->isHidden()) {
    const int record_width = std::min(inner, kRecordWidth);
    record_text_->setFixedWidth(record_width - 18);
    record_panel_->setFixedWidth(record_width);
    record_panel_->adjustSize();
    record_panel_->move((width - record_width) / 2,
                        height - record_panel_->height() - kOverlayMargin);
  }
  if (!alarm_panel_->isHidden()) {
    alarm_panel_->adjustSize();
    alarm_panel_->move((width - alarm_panel_->width()) / 2, kOverlayMargin);
  }
  if (!qth_panel_->isHidden()) {
    qth_panel_->setFixedWidth(std::min(kQthWidth, inner));
    qth_panel_->adjustSize();
    qth_panel_->move(kOverlayMargin, kOverlayMargin);
  }
  if (!heard_panel_->isHidden()) {
    // The buttons of an open record stay free.
    const int floor = record_panel_->isHidden() ? height : record_panel_->y();
    const int heard_height = std::clamp(floor - 2 * kOverlayMargin, kLowestHeard, kHeardHeight);
    const int heard_width = std::min(kHeardWidth, inner);
    heard_panel_->setGeometry(width - heard_width - kOverlayMargin, kOverlayMargin, heard_width,
                              heard_height);
    if (!record_panel_->isHidden()) record_panel_->raise();
  }
  if (!palette_panel_->isHidden()) {
    palette_panel_->adjustSize();
    palette_panel_->move(width - palette_panel_->width() - kOverlayMargin,
                         height - palette_panel_->height() - kOverlayMargin);
  }
  if (!banner_->isHidden()) {
    banner_->adjustSize();
    banner_->move((width - banner_->width()) / 2, kOverlayMargin);
  }
  PlaceNotices();
}

// Wide, over everything else on the map: the reason of a dead link at the top, trouble with a file
// below it, the mode that lasts while the button is held at the bottom, next to the list.
void PanelsOverMap::PlaceNotices() {
  const int width = std::min(kNoticeWidth, std::max(map_.width() - 2 * kOverlayMargin, 100));
  int top = kOverlayMargin;
  for (QLabel* notice : {link_notice_, file_notice_, mode_notice_}) {
    if (notice->isHidden()) continue;
    const int height = notice->heightForWidth(width);
    const int y = notice == mode_notice_ ? map_.height() - height - kOverlayMargin : top;
    if (notice != mode_notice_) top += height + kOverlayMargin;
    notice->setGeometry((map_.width() - width) / 2, y, width, height);
    notice->raise();
  }
}

const Button* PanelsOverMap::CloseOfTopmost() const {
  if (controls_.Record.Frame1.Visible) return &controls_.Record.Command23;
  if (controls_.MoniAll.HeardPanel.Visible) return &controls_.MoniAll.Command3;
  if (controls_.Palette.PalettePanel.Visible) return &controls_.Palette.Command43;
  if (controls_.Qth.Frame2.Visible) return &controls_.Qth.Command22;
  return nullptr;
}

}  // namespace zepril
