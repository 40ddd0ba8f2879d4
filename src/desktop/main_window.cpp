#include "desktop/main_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>

#include "desktop/class_button.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/icons.h"
#include "desktop/keys.h"
#include "desktop/scale_row.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kLeftWidth = 176;
constexpr int kRightWidth = 208;
constexpr int kFoldRightBelow = 790;
constexpr int kFoldLeftBelow = 700;
constexpr int kGap = 4;
constexpr int kControlHeight = 26;
constexpr int kOverlayMargin = 8;
constexpr int kRecordWidth = 984;  // 120 columns of 8 pixels and a frame
constexpr int kLowestMap = 120;
constexpr int kLowestDrawer = 140;

QLabel* GroupCaption(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setProperty("group", true);
  return label;
}

QBoxLayout* TightBox(QBoxLayout::Direction direction, QWidget* parent = nullptr) {
  auto* box = new QBoxLayout(direction, parent);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(kGap);
  return box;
}

// A column that scrolls where the window is too low for it.
QWidget* Scrolling(QWidget* column, int width) {
  auto* area = new QScrollArea;
  area->setWidget(column);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  area->setFixedWidth(width);
  area->setMinimumHeight(0);
  return area;
}

QPushButton* NamedButton(const char* name, QWidget* parent = nullptr) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setFixedHeight(kControlHeight);
  button->setMinimumWidth(0);
  return button;
}

}  // namespace

MainWindow::MainWindow(StationProgram& program, QtLoop& loop, const MapFonts& fonts,
                       QtSurface& map_surface, QtSurface& base_surface)
    : program_(program),
      controls_(program.Controls()),
      loop_(loop),
      look_(NightLook()),
      binder_(loop, look_),
      fixed_font_(fonts.TextFont()) {
  setObjectName(QStringLiteral("Form1"));
  setMinimumSize(640, 480);
  resize(1280, 800);

  map_ = new MapWidget(loop, controls_.Map.Picture1, controls_.Map.PictureBase, map_surface,
                       base_surface);
  map_->Resized = [this](int width, int height) {
    loop_.RunStep([&] { program_.MapResized(width, height); });
  };
  map_->setMinimumHeight(kLowestMap);
  map_->PlaceOverlays = [this] { PlaceOverlays(); };
  map_->Wheel = [this](int steps) {
    Press(steps > 0 ? controls_.Map.Command8 : controls_.Map.Command7);
  };

  left_column_ = Scrolling(MakeLeftColumn(), kLeftWidth);
  right_column_ = Scrolling(MakeRightColumn(), kRightWidth);
  auto* middle = new QWidget;
  middle_ = TightBox(QBoxLayout::LeftToRight, middle);
  middle_->addWidget(left_column_);
  middle_->addWidget(map_, 1);
  middle_->addWidget(right_column_);

  split_ = new QSplitter(Qt::Vertical);
  split_->setChildrenCollapsible(false);
  split_->addWidget(middle);
  split_->addWidget(MakeDrawer());
  split_->setStretchFactor(0, 2);
  split_->setStretchFactor(1, 1);

  auto* all = TightBox(QBoxLayout::TopToBottom, this);
  all->setSpacing(0);
  all->addWidget(MakeMapBar());
  all->addWidget(split_, 1);
  all->addWidget(MakeBottomLine());
  MakeOverlays();

  // The lamp's age of the last data grows also when nothing happens.
  lamp_timer_.setInterval(1000);
  connect(&lamp_timer_, &QTimer::timeout, this, [this] { lamp_->Show(program_.Lamp()); });
  lamp_timer_.start();
  ControlsOut();
}

// ---- Parts of the window --------------------------------------------------------------------

QToolButton* MainWindow::MakeTool(const char* name, int picture, bool caption) {
  auto* tool = new QToolButton;
  tool->setObjectName(QString::fromLatin1(name));
  tool->setIcon(IconOf(static_cast<Picture>(picture), look_.Text));
  tool->setIconSize(QSize(16, 16));
  tool->setFixedHeight(kControlHeight);
  tool->setToolButtonStyle(caption ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
  tool->setProperty("picture_only", !caption);
  tool->setFocusPolicy(Qt::TabFocus);
  return tool;
}

QLabel* MainWindow::MakeFixedLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  label->setFont(fixed_font_);
  return label;
}

QFrame* MainWindow::MakePanel(const char* name, QWidget* parent) {
  auto* panel = new QFrame(parent);
  panel->setObjectName(QString::fromLatin1(name));
  panel->setProperty("panel", true);
  return panel;
}

QWidget* MainWindow::MakeMapBar() {
  auto* bar = new QFrame;
  bar->setObjectName(QStringLiteral("MapBar"));
  auto* row = TightBox(QBoxLayout::LeftToRight, bar);
  row->setContentsMargins(8, 4, 8, 4);
  const auto caption = [row](const char* text) {
    auto* label = new QLabel(QString::fromLatin1(text));
    label->setProperty("dim", true);
    row->addWidget(label);
  };
  MapControls& map = controls_.Map;
  const auto add = [&](const char* name, Picture picture, Button& control, bool text = false) {
    auto* tool = MakeTool(name, static_cast<int>(picture), text);
    row->addWidget(tool);
    binder_.Bind(tool, control);
    return tool;
  };
  caption("scale");
  add("Command1", Picture::Coarser, map.Command1);
  add("Command2", Picture::Finer, map.Command2);
  row->addSpacing(12);
  caption("zoom");
  add("Command7", Picture::ZoomOut, map.Command7);
  add("Command9", Picture::ZoomOne, map.Command9);
  add("Command8", Picture::ZoomIn, map.Command8);
  row->addSpacing(12);
  add("Command12", Picture::Centre, map.Command12, true)->setMinimumWidth(72);
  auto* own = MakeTool("Option1", static_cast<int>(Picture::Own), true);
  auto* station = MakeTool("Option2", static_cast<int>(Picture::Station), true);
  row->addWidget(own);
  row->addWidget(station);
  binder_.Bind(own, map.Option1);
  binder_.Bind(station, map.Option2);
  row->addStretch(1);
  add("Command72", Picture::Brightness, map.Command72, true);
  return bar;
}

QWidget* MainWindow::MakeLeftColumn() {
  auto* column = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, column);
  box->setContentsMargins(8, 8, 4, 8);
  box->setSpacing(8);
  box->addWidget(MakeReadouts());
  box->addWidget(MakeScales());
  box->addStretch(1);
  return column;
}

QWidget* MainWindow::MakeReadouts() {
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
    QLabel* label = MakeFixedLabel(row.Name);
    label->setMinimumHeight(16);
    label->setCursor(Qt::PointingHandCursor);
    label->setFocusPolicy(Qt::TabFocus);
    box->addWidget(label);
    binder_.Bind(label, row.Control);
  }
  QLabel* scale = MakeFixedLabel("ScaleText");
  scale->setContentsMargins(0, 8, 0, 0);
  box->addWidget(scale);
  binder_.Bind(scale, controls_.Map.ScaleText);
  return group;
}

QWidget* MainWindow::MakeScales() {
  auto* group = new QWidget;
  group->setObjectName(QStringLiteral("ScalePanel"));
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  box->addWidget(GroupCaption("SCALES"));
  static constexpr const char* kNames[] = {"Combo3", "Combo4", "Combo5",
                                           "Combo6", "Combo7", "Combo8"};
  for (std::size_t at = 0; at < controls_.Scales.Folder.size(); ++at) {
    auto* row = new ScaleRow(QString::fromLatin1(kNames[at]), look_);
    box->addWidget(row);
    binder_.Bind(row->FrameBox(), controls_.Scales.FrameBox[at]);
    binder_.Bind(row->Folders(), controls_.Scales.Folder[at]);
    binder_.OnControlsOut([this, row, at] {
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
    binder_.Bind(button, tool.Control);
  }
  auto* frames = new QLabel(QStringLiteral("tile frames"));
  frames->setProperty("dim", true);
  box->addWidget(frames);
  box->addLayout(buttons);
  return group;
}

QWidget* MainWindow::MakeRightColumn() {
  auto* column = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, column);
  box->setContentsMargins(4, 8, 8, 8);
  box->setSpacing(12);
  box->addWidget(MakeMoni1());
  box->addWidget(MakeMoniAll());
  box->addStretch(1);
  QPushButton* raw = NamedButton("Command57");
  box->addWidget(raw);
  binder_.Bind(raw, controls_.Raw.Command57);
  return column;
}

QWidget* MainWindow::MakeMoni1() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  Moni1Controls& m = controls_.Moni1;
  box->addWidget(GroupCaption("MONI 1"));

  auto* call = new QComboBox;
  call->setObjectName(QStringLiteral("Combo9"));
  call->setAccessibleName(QStringLiteral("MONI 1 call"));
  call->setEditable(true);
  call->setInsertPolicy(QComboBox::NoInsert);
  call->setFont(fixed_font_);
  call->setFixedHeight(kControlHeight);
  box->addWidget(call);
  binder_.Bind(call, m.Combo9);

  auto* counts = TightBox(QBoxLayout::LeftToRight);
  QLabel* count = MakeFixedLabel("Label6");
  auto* bar = new FillBarWidget;
  bar->setObjectName(QStringLiteral("Label17"));
  counts->addWidget(count);
  counts->addWidget(bar, 1);
  box->addLayout(counts);
  binder_.Bind(count, m.Label6);
  binder_.Bind(bar, m.Label17);

  for (auto& [name, control] : {std::pair<const char*, Label&>{"Label9", m.Label9},
                                std::pair<const char*, Label&>{"Label10", m.Label10}}) {
    QLabel* label = MakeFixedLabel(name);
    label->setWordWrap(&control == &m.Label10);  // the time stays on its line
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    label->setMinimumWidth(0);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    box->addWidget(label);
    binder_.Bind(label, control);
  }

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* style = NamedButton("Command17");
  QPushButton* alarm = NamedButton("Check1");
  switches->addWidget(style, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  binder_.Bind(style, m.Command17);
  binder_.Bind(alarm, m.Check1);
  return group;
}

// The five class switches with the marks of their stations.
QBoxLayout* MainWindow::MakeClassRow() {
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
    auto* button = new ClassButton(look_);
    button->setObjectName(QString::fromLatin1(row.Name));
    button->setIcon(IconOf(row.Icon, look_.Text));
    button->setProperty("picture_only", true);
    button->setProperty("three_states", &row.Control == &m.Check13);
    button->setFixedHeight(kControlHeight);
    classes->addWidget(button, 1);
    binder_.Bind(button, row.Control);
  }
  return classes;
}

QWidget* MainWindow::MakeMoniAll() {
  auto* group = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, group);
  MoniAllControls& m = controls_.MoniAll;
  box->addWidget(GroupCaption("MONI ALL"));

  auto* level_row = TightBox(QBoxLayout::LeftToRight);
  QPushButton* level = NamedButton("Command13");
  QLabel* shown = MakeFixedLabel("Label16");
  shown->setAlignment(Qt::AlignCenter);
  shown->setMinimumWidth(32);
  level_row->addWidget(level, 1);
  level_row->addWidget(shown);
  box->addLayout(level_row);
  binder_.Bind(level, m.Command13);
  binder_.Bind(shown, m.Label16);

  box->addLayout(MakeClassRow());

  auto* switches = TightBox(QBoxLayout::LeftToRight);
  QPushButton* direct = NamedButton("Check24");
  QPushButton* alarm = NamedButton("Check3");
  switches->addWidget(direct, 1);
  switches->addWidget(alarm, 1);
  box->addLayout(switches);
  binder_.Bind(direct, m.Check24);
  binder_.Bind(alarm, m.Check3);

  auto* bar = new FillBarWidget;
  bar->setObjectName(QStringLiteral("Label5"));
  box->addWidget(bar);
  binder_.Bind(bar, m.Label5);

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
  binder_.Bind(call, m.Text15);
  binder_.Bind(find, m.Command14);

  QPushButton* stations = NamedButton("Command3");
  box->addWidget(stations);
  binder_.Bind(stations, m.Command3);
  return group;
}

QWidget* MainWindow::MakeBottomLine() {
  auto* line = new QFrame;
  line->setObjectName(QStringLiteral("BottomLine"));
  auto* row = TightBox(QBoxLayout::LeftToRight, line);
  row->setContentsMargins(8, 4, 8, 4);
  QLabel* station = MakeFixedLabel("Label11");
  station->setMinimumWidth(0);
  station->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QLabel* status = MakeFixedLabel("Label15");
  lamp_ = new LampWidget;
  row->addWidget(station, 1);
  row->addSpacing(12);
  row->addWidget(status);
  row->addSpacing(8);
  row->addWidget(lamp_);
  binder_.Bind(station, controls_.Readouts.Label11);
  binder_.Bind(status, controls_.Status.Label15);
  return line;
}

QWidget* MainWindow::MakeDrawer() {
  drawer_ = new QTabWidget;
  drawer_->setObjectName(QStringLiteral("Drawer"));
  drawer_->setVisible(false);
  drawer_->setMinimumHeight(kLowestDrawer);
  raw_page_ = new QWidget(this);
  raw_page_->hide();
  auto* box = TightBox(QBoxLayout::TopToBottom, raw_page_);
  box->setContentsMargins(4, 4, 4, 4);
  auto* list = new QListView;
  list->setObjectName(QStringLiteral("RawList"));
  list->setAccessibleName(QStringLiteral("raw packets"));
  list->setFont(fixed_font_);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  auto* search_row = TightBox(QBoxLayout::LeftToRight);
  auto* text = new QLineEdit;
  text->setObjectName(QStringLiteral("Text14"));
  text->setAccessibleName(QStringLiteral("text to search"));
  text->setPlaceholderText(QStringLiteral("text to search"));
  QPushButton* search = NamedButton("Command38");
  search_row->addWidget(text, 1);
  search_row->addWidget(search);
  box->addWidget(list, 1);
  box->addLayout(search_row);
  binder_.Bind(list, &raw_lines_, controls_.Raw.RawList);
  binder_.Bind(text, controls_.Raw.Text14);
  binder_.Bind(search, controls_.Raw.Command38);
  return drawer_;
}

// ---- Panels over the map --------------------------------------------------------------------

void MainWindow::MakeOverlays() {
  MakeRecordPanel();
  MakeAlarmPanel();
  MakeQthSetup();
  MakeHeardList();
  MakePalettePanel();
  banner_ = MakeFixedLabel("Text10");
  banner_->setParent(map_);
  banner_->setAlignment(Qt::AlignCenter);
  banner_->setMargin(6);
  binder_.Bind(banner_, controls_.Status.Text10);
}

void MainWindow::MakeRecordPanel() {
  RecordPanelControls& r = controls_.Record;
  record_panel_ = MakePanel("Frame1", map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, record_panel_);
  box->setContentsMargins(8, 8, 8, 8);
  record_text_ = MakeFixedLabel("Label20");
  record_text_->setWordWrap(true);
  box->addWidget(record_text_);
  binder_.Bind(record_text_, r.Label20);
  auto* row = TightBox(QBoxLayout::LeftToRight);
  QLabel* mode = MakeFixedLabel("Label19");
  binder_.Bind(mode, r.Label19);
  const auto button = [&](const char* name, Button& control) {
    QPushButton* made = NamedButton(name);
    row->addWidget(made);
    binder_.Bind(made, control);
  };
  button("Command18", r.Command18);
  row->addWidget(mode);
  button("Command19", r.Command19);
  row->addStretch(1);
  button("Command11", r.Command11);
  button("Command36", r.Command36);
  button("Command23", r.Command23);
  box->addLayout(row);
  binder_.Bind(record_panel_, r.Frame1);
}

void MainWindow::MakeAlarmPanel() {
  alarm_panel_ = MakePanel("Frame12", map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, alarm_panel_);
  box->setContentsMargins(16, 8, 16, 8);
  auto* caption = MakeFixedLabel("Frame12Caption");
  QLabel* line = MakeFixedLabel("Label25");
  box->addWidget(caption);
  box->addWidget(line);
  binder_.Bind(line, controls_.Status.Label25);
  binder_.Bind(alarm_panel_, controls_.Status.Frame12);
  binder_.OnControlsOut([this, caption] {
    caption->setText(ToQt(controls_.Status.Frame12.Caption));
    if (alarm_panel_->isVisible()) alarm_panel_->adjustSize();
  });
}

void MainWindow::MakeQthSetup() {
  QthSetupControls& q = controls_.Qth;
  qth_panel_ = MakePanel("Frame2", map_);
  auto* grid = new QGridLayout(qth_panel_);
  grid->setContentsMargins(12, 8, 12, 12);
  grid->setSpacing(8);
  auto* caption = new QLabel;
  caption->setProperty("group", true);
  caption->setWordWrap(true);
  grid->addWidget(caption, 0, 0, 1, 2);
  binder_.OnControlsOut([caption, &q] { caption->setText(ToQt(q.Frame2.Caption)); });
  const auto field = [&](int row, const char* name, const char* text, TextBox& control) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromLatin1(name));
    edit->setAccessibleName(QString::fromLatin1(text));
    edit->setFont(fixed_font_);
    grid->addWidget(new QLabel(QString::fromLatin1(text)), row, 0);
    grid->addWidget(edit, row, 1);
    binder_.Bind(edit, control);
  };
  field(1, "TextQthNorth", "North km", q.TextQthNorth);
  field(2, "TextQthEast", "East km", q.TextQthEast);
  QPushButton* ok = NamedButton("QthOk");
  QPushButton* cancel = NamedButton("Command22");
  grid->addWidget(ok, 3, 0);
  grid->addWidget(cancel, 3, 1);
  binder_.Bind(ok, q.QthOk);
  binder_.Bind(cancel, q.Command22);
  binder_.Bind(qth_panel_, q.Frame2);
}

void MainWindow::MakeHeardList() {
  heard_panel_ = MakePanel("HeardPanel", map_);
  auto* box = TightBox(QBoxLayout::TopToBottom, heard_panel_);
  box->setContentsMargins(8, 8, 8, 8);
  box->addWidget(GroupCaption("HEARD STATIONS"));
  auto* list = new QListView;
  list->setObjectName(QStringLiteral("HeardList"));
  list->setAccessibleName(QStringLiteral("heard stations"));
  list->setFont(fixed_font_);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  box->addWidget(list, 1);
  binder_.Bind(list, &heard_lines_, controls_.MoniAll.HeardList);
  binder_.Bind(heard_panel_, controls_.MoniAll.HeardPanel);
}

void MainWindow::MakePalettePanel() {
  PaletteControls& p = controls_.Palette;
  palette_panel_ = MakePanel("PalettePanel", map_);
  auto* grid = new QGridLayout(palette_panel_);
  grid->setContentsMargins(8, 8, 8, 8);
  grid->setSpacing(kGap);
  for (std::size_t ink = 0; ink < p.Optionink.size(); ++ink) {
    auto* button = new ClassButton(look_);
    button->setObjectName(QStringLiteral("Optionink%1").arg(ink));
    button->setAccessibleName(QStringLiteral("ink %1").arg(ink));
    button->setFixedSize(32, 24);
    button->setProperty("picture_only", true);
    grid->addWidget(button, static_cast<int>(ink / 8), static_cast<int>(ink % 8));
    binder_.Bind(button, p.Optionink[ink]);
    binder_.OnControlsOut([this, button, ink] {
      button->SetFill(PlainColour(program_.State().Map.InkColours[ink]));
    });
  }
  QPushButton* none = NamedButton("Command42");
  QPushButton* close = NamedButton("Command43");
  grid->addWidget(none, 2, 0, 1, 4);
  grid->addWidget(close, 2, 4, 1, 4);
  binder_.Bind(none, p.Command42);
  binder_.Bind(close, p.Command43);
  binder_.Bind(palette_panel_, p.PalettePanel);
}

void MainWindow::PlaceOverlays() {
  if (banner_ == nullptr) return;
  const int width = map_->width();
  const int height = map_->height();
  const int inner = std::max(width - 2 * kOverlayMargin, 100);
  const int record_width = std::min(inner, kRecordWidth);
  record_text_->setFixedWidth(record_width - 18);
  record_panel_->setFixedWidth(record_width);
  record_panel_->adjustSize();
  record_panel_->move((width - record_width) / 2,
                      height - record_panel_->height() - kOverlayMargin);
  alarm_panel_->adjustSize();
  alarm_panel_->move((width - alarm_panel_->width()) / 2, kOverlayMargin);
  qth_panel_->setFixedWidth(std::min(260, inner));
  qth_panel_->adjustSize();
  qth_panel_->move(kOverlayMargin, kOverlayMargin);
  const int heard_height = std::min(height - 2 * kOverlayMargin, 420);
  heard_panel_->setGeometry(width - 168 - kOverlayMargin, kOverlayMargin, 168, heard_height);
  palette_panel_->adjustSize();
  palette_panel_->move(width - palette_panel_->width() - kOverlayMargin,
                       height - palette_panel_->height() - kOverlayMargin);
  banner_->adjustSize();
  banner_->move((width - banner_->width()) / 2, kOverlayMargin);
}

// ---- Folding and the drawer -----------------------------------------------------------------

// On a narrow window the columns fold into the drawer as tabs.
void MainWindow::Arrange() {
  const auto fold = [this](QWidget* column, bool folded, const char* title, int place) {
    const bool in_drawer = drawer_->indexOf(column) >= 0;
    if (folded == in_drawer) return;
    if (folded) {
      column->setMaximumWidth(QWIDGETSIZE_MAX);
      drawer_->addTab(column, QString::fromLatin1(title));
    } else {
      column->setFixedWidth(column == left_column_ ? kLeftWidth : kRightWidth);
      drawer_->removeTab(drawer_->indexOf(column));
      // The other column may be folded still.
      middle_->insertWidget(std::min(place, middle_->count()), column);
      column->show();
    }
  };
  const int pages = drawer_->count();
  fold(right_column_, width() < kFoldRightBelow, "STATIONS", 2);
  fold(left_column_, width() < kFoldLeftBelow, "POSITION", 0);
  ShowDrawer();
  if (drawer_->count() != pages) ShareHeight();
}

// The map keeps two thirds of the height.
void MainWindow::ShareHeight() {
  split_->setSizes({2 * split_->height() / 3, split_->height() / 3});
}

void MainWindow::ShowDrawer() {
  const bool raw = controls_.Raw.RawList.Visible;
  if (raw != (drawer_->indexOf(raw_page_) >= 0)) {
    if (raw) {
      drawer_->insertTab(0, raw_page_, QStringLiteral("RAW"));
      drawer_->setCurrentWidget(raw_page_);
    } else {
      drawer_->removeTab(drawer_->indexOf(raw_page_));
    }
  }
  const bool was_open = !drawer_->isHidden();
  drawer_->setVisible(drawer_->count() > 0);
  if (!was_open && !drawer_->isHidden()) ShareHeight();
}

void MainWindow::ControlsOut() {
  const bool record_was_hidden = record_panel_ == nullptr || record_panel_->isHidden();
  ShowDrawer();
  binder_.ControlsOut();
  map_->ControlsOut();
  if (lamp_ != nullptr) lamp_->Show(program_.Lamp());
  const QString title = ToQt(controls_.Window.Title);
  if (windowTitle() != title) setWindowTitle(title);
  if (controls_.Window.MaximiseWanted) {
    controls_.Window.MaximiseWanted = false;
    setWindowState(windowState() | Qt::WindowMaximized);
  }
  const bool busy = controls_.Window.Pointer == PointerShape::Hourglass;
  setCursor(busy ? Qt::WaitCursor : Qt::ArrowCursor);
  if (record_panel_ != nullptr && (record_was_hidden || !record_panel_->isHidden()))
    PlaceOverlays();
}

// ---- Window events --------------------------------------------------------------------------

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close_asked_ = true;
  // Inside a step the request is kept until the outermost one has returned.
  if (!loop_.InStep()) CloseWhenAsked();
}

void MainWindow::CloseWhenAsked() {
  if (!close_asked_ && !program_.EndWanted()) return;
  close_asked_ = false;
  if (Closed) Closed();
}

void MainWindow::resizeEvent(QResizeEvent*) {
  controls_.Window.WidthPx = width();
  controls_.Window.HeightPx = height();
  Arrange();
}

void MainWindow::Press(const Button& control) {
  if (control.Click) loop_.RunStep(control.Click);
}

// The field may lie on a page of the drawer that is not the shown one.
void MainWindow::FocusOn(const char* name) {
  auto* widget = findChild<QWidget*>(QString::fromLatin1(name));
  if (widget == nullptr) return;
  for (int page = 0; page < drawer_->count(); ++page) {
    if (drawer_->widget(page)->isAncestorOf(widget)) drawer_->setCurrentIndex(page);
  }
  widget->setFocus();
}

// Keys act nowhere but outside of the fields, which Esc leaves.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (IsTypedIn(focusWidget())) {
    if (event->key() == Qt::Key_Escape) map_->setFocus();
    return;
  }
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (event->key() == Qt::Key_F) return FocusOn("Text15");
    if (event->key() == Qt::Key_R) return Press(controls_.Raw.Command57);
  }
  switch (event->key()) {
    case Qt::Key_Escape:
      return CloseTopmostPanel();
    case Qt::Key_Plus:
      return Press(controls_.Map.Command8);
    case Qt::Key_Minus:
      return Press(controls_.Map.Command7);
    case Qt::Key_PageUp:
      return Press(controls_.Map.Command1);
    case Qt::Key_PageDown:
      return Press(controls_.Map.Command2);
    case Qt::Key_Home:
      return Press(controls_.Map.Command12);
    case Qt::Key_L:
      return Press(controls_.MoniAll.Command13);
    default:
      QWidget::keyPressEvent(event);
  }
}

void MainWindow::CloseTopmostPanel() {
  if (controls_.Record.Frame1.Visible) return Press(controls_.Record.Command23);
  if (controls_.MoniAll.HeardPanel.Visible) return Press(controls_.MoniAll.Command3);
  if (controls_.Palette.PalettePanel.Visible) return Press(controls_.Palette.Command43);
  if (controls_.Qth.Frame2.Visible) return Press(controls_.Qth.Command22);
  map_->setFocus();
}

}  // namespace zepril
