// Makes the groups of both columns: read-outs, scales, files; stations, classes, transmitter.
#include "desktop/side_columns.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "core/state_colours.h"
#include "core/texts/window_texts.h"
#include "desktop/class_button.h"
#include "desktop/control_access.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/fitted_label.h"
#include "desktop/scale_row.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kLongestTextLines = 3;  // of a record's 47 characters of text

}  // namespace

QWidget* SideColumns::MakeLeftColumn() {
  auto* column = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, column);
  box->setContentsMargins(8, 8, 4, 8);
  box->setSpacing(8);
  box->addWidget(MakeReadouts());
  box->addWidget(MakeScales());
  box->addWidget(MakeFiles());
  box->addWidget(MakeOutside());
  box->addStretch(1);
  return column;
}

// Web maps and the globe, each with what fetches a place from there.
QWidget* SideColumns::MakeOutside() {
  auto* group = new QWidget;
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  ViewerControls& v = controls_.Viewers;
  grid->addWidget(GroupCaption(window_texts::kOutside), 0, 0, 1, 2);
  struct Row {
    Button& Show;
    Button* Fetch;
  };
  const Row rows[] = {{v.GlobeShow, &v.GlobeFetch},
                      {v.GoogleMapsShow, &v.GoogleMapsFetch},
                      {v.MinKarta, nullptr},
                      {v.Norgeskart, nullptr},
                      {v.Karttapaikka, nullptr}};
  int line = 1;
  for (const Row& row : rows) {
    grid->addWidget(parts_.BoundButton(row.Show), line, 0, 1, row.Fetch ? 1 : 2);
    if (row.Fetch) {
      QPushButton* fetch = parts_.BoundButton(*row.Fetch);
      fetch->setProperty("tight", true);
      grid->addWidget(fetch, line, 1);
    }
    ++line;
  }
  grid->setColumnStretch(0, 1);
  auto* note = new QLabel;
  note->setWordWrap(true);
  grid->addWidget(note, line, 0, 1, 2);
  parts_.Binding.Bind(note, v.ViewerNote);
  return group;
}

QWidget* SideColumns::MakeReadouts() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->setSpacing(0);
  box->addWidget(GroupCaption(window_texts::kPosition));
  ReadoutControls& r = controls_.Readouts;
  struct Row {
    Label& Control;
    Text Before;
  };
  const Row rows[] = {{r.Label1, window_texts::kMapCentre}, {r.Label2, {}},
                      {r.Label3, window_texts::kCursor},    {r.Label4, {}},
                      {r.Label7, window_texts::kMoni1},     {r.Label8, {}}};
  for (const Row& row : rows) {
    if (row.Before.IsThere()) {
      auto* dim = new QLabel(ToQt(row.Before));
      dim->setProperty("dim", true);
      dim->setContentsMargins(0, 4, 0, 0);
      box->addWidget(dim);
    }
    QLabel* label = parts_.FixedLabel();
    label->setMinimumHeight(16);
    label->setCursor(Qt::PointingHandCursor);
    label->setFocusPolicy(Qt::TabFocus);
    box->addWidget(label);
    parts_.Binding.Bind(label, row.Control);
  }
  QLabel* scale = parts_.FixedLabel();
  scale->setContentsMargins(0, 8, 0, 0);
  box->addWidget(scale);
  parts_.Binding.Bind(scale, controls_.Map.ScaleText);
  return group;
}

QWidget* SideColumns::MakeScales() {
  auto* group = new QWidget;
  NameAfter(group, controls_.Scales.ScalePanel);
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption(window_texts::kScales));
  for (std::size_t at = 0; at < controls_.Scales.Folder.size(); ++at) {
    auto* row = new ScaleRow(parts_.Shades);
    box->addWidget(row);
    parts_.Binding.Bind(row->FrameBox(), controls_.Scales.FrameBox[at]);
    parts_.Binding.Bind(row->Folders(), controls_.Scales.Folder[at]);
    parts_.Binding.OnControlsOut([this, row, at] {
      row->Show(controls_.Scales.Covered[at],
                controls_.Scales.Folder[at].BackColour == state_colours::kActiveScale);
    });
  }
  auto* buttons = TightBox(QBoxLayout::LeftToRight);
  for (Button* tool :
       {&controls_.Scales.Command5, &controls_.Scales.Command6, &controls_.Scales.Command37}) {
    QPushButton* button = SmallButton();
    button->setStyleSheet(QStringLiteral("padding: 2px 2px;"));
    buttons->addWidget(button, 1);
    parts_.Binding.Bind(button, *tool);
  }
  box->addWidget(new ScaleLegend(parts_.Shades));
  box->addLayout(buttons);
  return group;
}

// A field that lists files and takes the name of a new one.
QComboBox* SideColumns::MakeFileList(ComboBox& control) {
  auto* list = new QComboBox;
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->setFixedHeight(kControlHeight);
  list->setMinimumWidth(0);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  parts_.Binding.Bind(list, control);
  return list;
}

QWidget* SideColumns::MakeFiles() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption(window_texts::kFiles));
  TrackControls& tracks = controls_.Tracks;
  box->addWidget(MakeFileList(tracks.Combo1));
  auto* steps = TightBox(QBoxLayout::LeftToRight);
  steps->addWidget(parts_.BoundButton(tracks.Command68), 1);
  steps->addWidget(parts_.BoundButton(tracks.Command69), 1);
  steps->addWidget(parts_.BoundButton(tracks.Frame10), 2);
  box->addLayout(steps);
  PlaceControls& places = controls_.Places;
  box->addWidget(MakeFileList(places.Combo2));
  box->addWidget(parts_.BoundButton(places.PoiNew));
  return group;
}

QWidget* SideColumns::MakeRightColumn() {
  auto* column = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, column);
  box->setContentsMargins(4, 8, 8, 8);
  box->setSpacing(12);
  box->addWidget(MakeMoni1());
  box->addWidget(MakeMoniAll());
  box->addWidget(MakeTransmit());
  box->addWidget(MakeInternet());
  box->addStretch(1);
  auto* pages = TightBox(QBoxLayout::LeftToRight);
  pages->addWidget(parts_.BoundButton(controls_.Raw.Command57), 1);
  pages->addWidget(parts_.BoundButton(controls_.Terminal.Command65), 1);
  box->addLayout(pages);
  return column;
}

QWidget* SideColumns::MakeMoni1() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  Moni1Controls& m = controls_.Moni1;
  box->addWidget(GroupCaption(window_texts::kMoni1));

  auto* call = new QComboBox;
  call->setEditable(true);
  call->setInsertPolicy(QComboBox::NoInsert);
  call->setFont(parts_.FixedFont);
  call->setFixedHeight(kControlHeight);
  box->addWidget(call);
  parts_.Binding.Bind(call, m.Combo9);

  auto* counts = TightBox(QBoxLayout::LeftToRight);
  QLabel* count = parts_.FixedLabel();
  auto* bar = new FillBarWidget;
  counts->addWidget(count);
  counts->addWidget(bar, 1);
  box->addLayout(counts);
  parts_.Binding.Bind(count, m.Label6);
  parts_.Binding.Bind(bar, m.Label17);

  for (Label* control : {&m.Label9, &m.Label10}) {
    // What stands below must not move under the hand when a text comes.
    auto* label = new FittedLabel(control == &m.Label10 ? kLongestTextLines : 1);
    label->setFont(parts_.FixedFont);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    box->addWidget(label);
    parts_.Binding.Bind(label, *control);
  }

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* style = SmallButton();
  QPushButton* alarm = SmallButton();
  switches->addWidget(style, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  parts_.Binding.Bind(style, m.Command17);
  parts_.Binding.Bind(alarm, m.Check1);
  auto* internet = TightBox(QBoxLayout::LeftToRight);
  internet->addWidget(parts_.BoundButton(m.Check22), 1);
  internet->addWidget(parts_.BoundButton(m.Check27), 1);
  box->addLayout(internet);
  return group;
}

// The five class switches with the marks of their stations.
QBoxLayout* SideColumns::MakeClassRow() {
  MoniAllControls& m = controls_.MoniAll;
  auto* classes = TightBox(QBoxLayout::LeftToRight);
  struct Class {
    CheckBox& Control;
    Picture Icon;
  };
  const Class boxes[] = {{m.Check10, Picture::ClassNetwork},
                         {m.Check11, Picture::ClassFixed},
                         {m.Check13, Picture::ClassMoving},
                         {m.Check19, Picture::ClassSpecial},
                         {m.Check25, Picture::ClassWeather}};
  for (const Class& row : boxes) {
    auto* button = new ClassButton(parts_.Shades);
    button->setIcon(IconOf(row.Icon, parts_.Shades.Text));
    button->setProperty("picture_only", true);
    button->setProperty("three_states", &row.Control == &m.Check13);
    button->setFixedHeight(kControlHeight);
    classes->addWidget(button, 1);
    parts_.Binding.Bind(button, row.Control);
  }
  return classes;
}

QWidget* SideColumns::MakeMoniAll() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  MoniAllControls& m = controls_.MoniAll;
  box->addWidget(GroupCaption(window_texts::kMoniAll));

  auto* level_row = TightBox(QBoxLayout::LeftToRight);
  QPushButton* level = SmallButton();
  QLabel* shown = parts_.FixedLabel();
  shown->setAlignment(Qt::AlignCenter);
  shown->setMinimumWidth(32);
  level_row->addWidget(level, 1);
  level_row->addWidget(shown);
  box->addLayout(level_row);
  parts_.Binding.Bind(level, m.Command13);
  parts_.Binding.Bind(shown, m.Label16);

  box->addLayout(MakeClassRow());

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* direct = SmallButton();
  QPushButton* alarm = SmallButton();
  switches->addWidget(direct, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  parts_.Binding.Bind(direct, m.Check24);
  parts_.Binding.Bind(alarm, m.Check3);

  auto* bar = new FillBarWidget;
  box->addWidget(bar);
  parts_.Binding.Bind(bar, m.Label5);

  auto* find_row = TightBox(QBoxLayout::LeftToRight);
  auto* call = new QLineEdit;
  call->setFixedHeight(kControlHeight);
  QPushButton* find = SmallButton();
  find_row->addWidget(call, 1);
  find_row->addWidget(find);
  box->addLayout(find_row);
  parts_.Binding.Bind(call, m.Text15);
  parts_.Binding.Bind(find, m.Command14);

  QPushButton* stations = SmallButton();
  box->addWidget(stations);
  parts_.Binding.Bind(stations, m.Command3);
  return group;
}

QWidget* SideColumns::MakeTransmit() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  TransmitControls& t = controls_.Transmit;
  box->addWidget(GroupCaption(window_texts::kTransmit));
  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* tx = parts_.BoundButton(t.Check6);
  tx->setProperty("on_air", true);
  QPushButton* object = parts_.BoundButton(t.Check18);
  object->setProperty("own_object", true);
  switches->addWidget(tx, 1);
  switches->addWidget(object, 1);
  box->addLayout(switches);
  box->addWidget(parts_.BoundButton(controls_.Chat.Check7));
  QLabel* outcome = parts_.FixedLabel();
  outcome->setMinimumWidth(0);
  outcome->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  box->addWidget(outcome);
  parts_.Binding.Bind(outcome, t.TxOutcome);
  auto* bar = new FillBarWidget;
  box->addWidget(bar);
  parts_.Binding.Bind(bar, t.NextBeacon);
  return group;
}

QWidget* SideColumns::MakeInternet() {
  constexpr int kLines = 2;
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption(window_texts::kInternet));
  box->addWidget(parts_.BoundButton(controls_.MoniAll.Check23));
  for (Label* control : {&controls_.Inet.MoniAllState, &controls_.Inet.Moni1State}) {
    auto* label = new FittedLabel(kLines);
    label->setFont(parts_.FixedFont);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    box->addWidget(label);
    parts_.Binding.Bind(label, *control);
  }
  return group;
}

}  // namespace zepril
