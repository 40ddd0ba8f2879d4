// Makes the groups of both columns: read-outs, scales, files; stations, classes, transmitter.
#include "desktop/side_columns.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "desktop/class_button.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/fitted_label.h"
#include "desktop/scale_row.h"

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
  box->addStretch(1);
  return column;
}

QWidget* SideColumns::MakeReadouts() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->setSpacing(0);
  box->addWidget(GroupCaption("POSITION"));
  ReadoutControls& r = controls_.Readouts;
  struct Row {
    const char* Name;
    Label& Control;
    const char* Before;
  };
  const Row rows[] = {{"Label1", r.Label1, "map center"}, {"Label2", r.Label2, nullptr},
                      {"Label3", r.Label3, "cursor"},     {"Label4", r.Label4, nullptr},
                      {"Label7", r.Label7, "MONI 1"},     {"Label8", r.Label8, nullptr}};
  for (const Row& row : rows) {
    if (row.Before != nullptr) {
      auto* dim = new QLabel(QString::fromLatin1(row.Before));
      dim->setProperty("dim", true);
      dim->setContentsMargins(0, 4, 0, 0);
      box->addWidget(dim);
    }
    QLabel* label = parts_.FixedLabel(row.Name);
    label->setMinimumHeight(16);
    label->setCursor(Qt::PointingHandCursor);
    label->setFocusPolicy(Qt::TabFocus);
    box->addWidget(label);
    parts_.Binding.Bind(label, row.Control);
  }
  QLabel* scale = parts_.FixedLabel("ScaleText");
  scale->setContentsMargins(0, 8, 0, 0);
  box->addWidget(scale);
  parts_.Binding.Bind(scale, controls_.Map.ScaleText);
  return group;
}

QWidget* SideColumns::MakeScales() {
  auto* group = new QWidget;
  group->setObjectName(QStringLiteral("ScalePanel"));
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption("SCALES"));
  static constexpr const char* kNames[] = {"Combo3", "Combo4", "Combo5",
                                           "Combo6", "Combo7", "Combo8"};
  static constexpr const char* kScales[] = {"M5000", "M1000", "M0200", "M0050", "M0010", "M0002"};
  for (std::size_t at = 0; at < controls_.Scales.Folder.size(); ++at) {
    const QString scale = QString::fromLatin1(kScales[at]);
    auto* row = new ScaleRow(QString::fromLatin1(kNames[at]), scale, parts_.Shades);
    row->Folders()->setPlaceholderText(QStringLiteral("no ") + scale);
    box->addWidget(row);
    parts_.Binding.Bind(row->FrameBox(), controls_.Scales.FrameBox[at]);
    parts_.Binding.Bind(row->Folders(), controls_.Scales.Folder[at]);
    parts_.Binding.OnControlsOut([this, row, at] {
      row->Show(controls_.Scales.Covered[at], controls_.Scales.Folder[at].BackColour == 0x00E0E0U);
    });
  }
  auto* buttons = TightBox(QBoxLayout::LeftToRight);
  struct Tool {
    const char* Name;
    Button& Control;
  };
  for (const Tool& tool :
       {Tool{"Command5", controls_.Scales.Command5}, Tool{"Command6", controls_.Scales.Command6},
        Tool{"Command37", controls_.Scales.Command37}}) {
    QPushButton* button = NamedButton(tool.Name);
    button->setStyleSheet(QStringLiteral("padding: 2px 2px;"));
    buttons->addWidget(button, 1);
    parts_.Binding.Bind(button, tool.Control);
  }
  box->addWidget(new ScaleLegend(parts_.Shades));
  box->addLayout(buttons);
  return group;
}

// A field that lists files and takes the name of a new one.
QComboBox* SideColumns::MakeFileList(const char* name, const char* what, ComboBox& control) {
  auto* list = new QComboBox;
  list->setObjectName(QString::fromLatin1(name));
  list->setAccessibleName(QString::fromLatin1(what));
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->lineEdit()->setPlaceholderText(QString::fromLatin1(what));
  list->setFixedHeight(kControlHeight);
  list->setMinimumWidth(0);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  parts_.Binding.Bind(list, control);
  return list;
}

QWidget* SideColumns::MakeFiles() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption("FILES"));
  TrackControls& tracks = controls_.Tracks;
  box->addWidget(MakeFileList("Combo1", "TRK file", tracks.Combo1));
  auto* steps = TightBox(QBoxLayout::LeftToRight);
  steps->addWidget(parts_.BoundButton("Command68", tracks.Command68), 1);
  steps->addWidget(parts_.BoundButton("Command69", tracks.Command69), 1);
  steps->addWidget(parts_.BoundButton("Frame10", tracks.Frame10), 2);
  box->addLayout(steps);
  PlaceControls& places = controls_.Places;
  box->addWidget(MakeFileList("Combo2", "POI file", places.Combo2));
  box->addWidget(parts_.BoundButton("PoiNew", places.PoiNew));
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
  box->addStretch(1);
  auto* pages = TightBox(QBoxLayout::LeftToRight);
  pages->addWidget(parts_.BoundButton("Command57", controls_.Raw.Command57), 1);
  pages->addWidget(parts_.BoundButton("Command65", controls_.Terminal.Command65), 1);
  box->addLayout(pages);
  return column;
}

QWidget* SideColumns::MakeMoni1() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  Moni1Controls& m = controls_.Moni1;
  box->addWidget(GroupCaption("MONI 1"));

  auto* call = new QComboBox;
  call->setObjectName(QStringLiteral("Combo9"));
  call->setAccessibleName(QStringLiteral("MONI 1 call"));
  call->setEditable(true);
  call->setInsertPolicy(QComboBox::NoInsert);
  call->setFont(parts_.FixedFont);
  call->setFixedHeight(kControlHeight);
  box->addWidget(call);
  parts_.Binding.Bind(call, m.Combo9);

  auto* counts = TightBox(QBoxLayout::LeftToRight);
  QLabel* count = parts_.FixedLabel("Label6");
  auto* bar = new FillBarWidget;
  bar->setObjectName(QStringLiteral("Label17"));
  bar->setAccessibleName(QStringLiteral("size of the MONI 1 history"));
  counts->addWidget(count);
  counts->addWidget(bar, 1);
  box->addLayout(counts);
  parts_.Binding.Bind(count, m.Label6);
  parts_.Binding.Bind(bar, m.Label17);

  for (auto& [name, control] : {std::pair<const char*, Label&>{"Label9", m.Label9},
                                std::pair<const char*, Label&>{"Label10", m.Label10}}) {
    // What stands below must not move under the hand when a text comes.
    auto* label = new FittedLabel(&control == &m.Label10 ? kLongestTextLines : 1);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(parts_.FixedFont);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    box->addWidget(label);
    parts_.Binding.Bind(label, control);
  }

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* style = NamedButton("Command17");
  QPushButton* alarm = NamedButton("Check1");
  switches->addWidget(style, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  parts_.Binding.Bind(style, m.Command17);
  parts_.Binding.Bind(alarm, m.Check1);
  return group;
}

// The five class switches with the marks of their stations.
QBoxLayout* SideColumns::MakeClassRow() {
  MoniAllControls& m = controls_.MoniAll;
  auto* classes = TightBox(QBoxLayout::LeftToRight);
  struct Class {
    const char* Name;
    CheckBox& Control;
    Picture Icon;
  };
  const Class boxes[] = {{"Check10", m.Check10, Picture::ClassNetwork},
                         {"Check11", m.Check11, Picture::ClassFixed},
                         {"Check13", m.Check13, Picture::ClassMoving},
                         {"Check19", m.Check19, Picture::ClassSpecial},
                         {"Check25", m.Check25, Picture::ClassWeather}};
  for (const Class& row : boxes) {
    auto* button = new ClassButton(parts_.Shades);
    button->setObjectName(QString::fromLatin1(row.Name));
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
  box->addWidget(GroupCaption("MONI ALL"));

  auto* level_row = TightBox(QBoxLayout::LeftToRight);
  QPushButton* level = NamedButton("Command13");
  QLabel* shown = parts_.FixedLabel("Label16");
  shown->setAlignment(Qt::AlignCenter);
  shown->setMinimumWidth(32);
  level_row->addWidget(level, 1);
  level_row->addWidget(shown);
  box->addLayout(level_row);
  parts_.Binding.Bind(level, m.Command13);
  parts_.Binding.Bind(shown, m.Label16);

  box->addLayout(MakeClassRow());

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* direct = NamedButton("Check24");
  QPushButton* alarm = NamedButton("Check3");
  switches->addWidget(direct, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  parts_.Binding.Bind(direct, m.Check24);
  parts_.Binding.Bind(alarm, m.Check3);

  auto* bar = new FillBarWidget;
  bar->setObjectName(QStringLiteral("Label5"));
  bar->setAccessibleName(QStringLiteral("size of the MONI ALL list"));
  box->addWidget(bar);
  parts_.Binding.Bind(bar, m.Label5);

  auto* find_row = TightBox(QBoxLayout::LeftToRight);
  auto* call = new QLineEdit;
  call->setObjectName(QStringLiteral("Text15"));
  call->setAccessibleName(QStringLiteral("call to find"));
  call->setPlaceholderText(QStringLiteral("call to find"));
  call->setFixedHeight(kControlHeight);
  QPushButton* find = NamedButton("Command14");
  find_row->addWidget(call, 1);
  find_row->addWidget(find);
  box->addLayout(find_row);
  parts_.Binding.Bind(call, m.Text15);
  parts_.Binding.Bind(find, m.Command14);

  QPushButton* stations = NamedButton("Command3");
  box->addWidget(stations);
  parts_.Binding.Bind(stations, m.Command3);
  return group;
}

QWidget* SideColumns::MakeTransmit() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  TransmitControls& t = controls_.Transmit;
  box->addWidget(GroupCaption("TRANSMIT"));
  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* tx = parts_.BoundButton("Check6", t.Check6);
  tx->setProperty("on_air", true);
  QPushButton* object = parts_.BoundButton("Check18", t.Check18);
  object->setProperty("own_object", true);
  switches->addWidget(tx, 1);
  switches->addWidget(object, 1);
  box->addLayout(switches);
  QLabel* outcome = parts_.FixedLabel("TxOutcome");
  outcome->setMinimumWidth(0);
  outcome->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  box->addWidget(outcome);
  parts_.Binding.Bind(outcome, t.TxOutcome);
  auto* bar = new FillBarWidget;
  bar->setObjectName(QStringLiteral("NextBeacon"));
  bar->setAccessibleName(QStringLiteral("time to the next report"));
  box->addWidget(bar);
  parts_.Binding.Bind(bar, t.NextBeacon);
  return group;
}

}  // namespace zepril
