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
constexpr int kHeardWidth = 290;   // 31 columns of 8 pixels, a scroll bar and a frame
constexpr int kHeardHeight = 420;
constexpr int kLowestHeard = 96;
constexpr int kPathColumn = 91;  // 1-based: from here on the record stays together

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
  made_.Banner = parts_.FixedLabel();
  made_.Banner->setParent(&map_);
  made_.Banner->setAlignment(Qt::AlignCenter);
  made_.Banner->setMargin(6);
  parts_.Binding.Bind(made_.Banner, controls_.Status.Text10);
  MakeNotices();
  MakeGpsLine();
}

void PanelsOverMap::MakeGpsLine() {
  const auto line = [this](Label& control) {
    QLabel* label = parts_.FixedLabel();
    label->setParent(&map_);
    label->setProperty("over_map", true);
    label->setWordWrap(true);
    label->setMargin(2);
    parts_.Binding.Bind(label, control);
    return label;
  };
  made_.GpsLine = line(controls_.Gps.GpsInfo);
  made_.GpsNote = line(controls_.Gps.GpsNote);
  // The map below it hears the mouse.
  made_.GpsLine->setAttribute(Qt::WA_TransparentForMouseEvents);
  made_.GpsNote->setAttribute(Qt::WA_NoMousePropagation);
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
  made_.LinkNotice = notice(controls_.Status.LinkNotice);
  made_.FileNotice = notice(controls_.Status.FileNotice);
  // They may name a command or a file that is to be copied.
  made_.LinkNotice->setTextInteractionFlags(Qt::TextSelectableByMouse);
  made_.FileNotice->setTextInteractionFlags(Qt::TextSelectableByMouse);
  made_.ModeNotice = notice(controls_.Terminal.Label49);
  made_.ModeNotice->setAlignment(Qt::AlignCenter);
}

void PanelsOverMap::MakeRecordPanel() {
  RecordPanelControls& r = controls_.Record;
  made_.Record = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, made_.Record);
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
  for (Button* control :
       {&r.Command40, &r.Command11, &r.Command10, &r.Command41, &r.Command36, &r.Command23})
    row->addWidget(parts_.BoundButton(*control));
  box->addLayout(row);
  parts_.Binding.Bind(made_.Record, r.Frame1);
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
  made_.Alarm = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, made_.Alarm);
  box->setContentsMargins(16, 8, 16, 8);
  QLabel* caption = parts_.FixedLabel();
  caption->setObjectName(ToQt(controls_.Status.Frame12.Name) + QStringLiteral("Caption"));
  QLabel* line = parts_.FixedLabel();
  box->addWidget(caption);
  box->addWidget(line);
  parts_.Binding.Bind(line, controls_.Status.Label25);
  parts_.Binding.Bind(made_.Alarm, controls_.Status.Frame12);
  parts_.Binding.OnControlsOut([this, caption] {
    caption->setText(ToQt(controls_.Status.Frame12.Caption));
    if (made_.Alarm->isVisible()) made_.Alarm->adjustSize();
  });
}

void PanelsOverMap::MakeQthSetup() {
  QthSetupControls& q = controls_.Qth;
  made_.Qth = parts_.Panel(&map_);
  QGridLayout* grid = parts_.SetUpGrid(made_.Qth, q.Frame2, 2);
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
  parts_.Binding.Bind(made_.Qth, q.Frame2);
}

void PanelsOverMap::MakeHeardList() {
  made_.Heard = parts_.Panel(&map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, made_.Heard);
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
  parts_.Binding.Bind(made_.Heard, controls_.MoniAll.HeardPanel);
}

void PanelsOverMap::MakePalettePanel() {
  PaletteControls& p = controls_.Palette;
  made_.Palette = parts_.Panel(&map_);
  auto* grid = new QGridLayout(made_.Palette);
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
  parts_.Binding.Bind(made_.Palette, p.PalettePanel);
}

void PanelsOverMap::PlaceRecord() {
  const int width = std::min(std::max(map_.width() - 2 * kOverlayMargin, 100), kRecordWidth);
  record_text_->setFixedWidth(width - 18);
  made_.Record->setFixedWidth(width);
  made_.Record->adjustSize();
  made_.Record->move((map_.width() - width) / 2,
                     map_.height() - made_.Record->height() - kOverlayMargin);
}

void PanelsOverMap::PlaceGpsLine(QLabel* line) {
  const int margin = line->margin();
  const int wanted = line->fontMetrics().horizontalAdvance(line->text()) + 2 * margin + 2;
  const int width = std::min(wanted, std::max(map_.width(), 100));
  const int height = line->heightForWidth(width);
  // Above an open record, which would hide all but its edge.
  const int floor = made_.Record->isHidden() ? map_.height() : made_.Record->y() - kOverlayMargin;
  line->setGeometry(0, floor - height, width, height);
  line->lower();
}

void PanelsOverMap::PlaceHeard() {
  // The buttons of an open record stay free.
  const int floor = made_.Record->isHidden() ? map_.height() : made_.Record->y();
  const int height = std::clamp(floor - 2 * kOverlayMargin, kLowestHeard, kHeardHeight);
  const int width = std::min(kHeardWidth, std::max(map_.width() - 2 * kOverlayMargin, 100));
  made_.Heard->setGeometry(map_.width() - width - kOverlayMargin, kOverlayMargin, width, height);
  if (!made_.Record->isHidden()) made_.Record->raise();
}

}  // namespace zepril
