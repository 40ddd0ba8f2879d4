// Lays out the start window's two columns and its bottom line, and keeps its places steady.
#include "desktop/start_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>

#include "core/texts/window_texts.h"
#include "desktop/device_box.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/window_parts.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kFirstWidth = 760;
constexpr int kFirstHeight = 640;
constexpr int kOptionWidth = 84;
constexpr int kLabelWidth = 84;
constexpr int kFaultLines = 4;

// A column's grid under its group caption: what a field is, and the field.
QGridLayout* AddGroup(QBoxLayout* column, Text caption) {
  column->addWidget(GroupCaption(caption));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnMinimumWidth(0, kLabelWidth);
  grid->setColumnStretch(1, 1);
  column->addLayout(grid);
  return grid;
}

// What is hidden keeps its place: nothing else moves.
void KeepPlace(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

// However long a text is, it does not widen the window.
void KeepWidth(QWidget* widget) {
  widget->setSizePolicy(QSizePolicy::Ignored, widget->sizePolicy().verticalPolicy());
}

// Paths of devices are one long word: a label folds them at their marks. To be called behind the
// label's binding.
void LetLongNamesBreak(QLabel* label, Binder& binder) {
  label->setWordWrap(true);
  KeepWidth(label);
  binder.OnControlsOut([label] {
    static const QRegularExpression mark(QStringLiteral("([/_-])(?!\\x{200B})"));
    label->setText(label->text().replace(mark, QStringLiteral("\\1\u200B")));
  });
}

}  // namespace

StartWindow::StartWindow(StartPanel& panel, QtLoop& loop, const MapFonts& fonts)
    : panel_(panel), loop_(loop), binder_(loop, NightLook()), fixed_font_(fonts.TextFont()) {
  setObjectName(QStringLiteral("Form0"));
  setWindowTitle(ToQt(window_texts::kStartTitle));
  binder_.EnterPresses = false;  // it is START's
  // On a low screen the fields scroll; START stays where it is.
  auto* page = new QWidget;
  auto* all = new QBoxLayout(QBoxLayout::TopToBottom, page);
  all->setContentsMargins(24, 20, 24, 12);
  all->setSpacing(12);

  auto* title = new QLabel(ToQt(window_texts::kProgram));
  title->setStyleSheet(QStringLiteral("font-size: 28px; font-weight: bold; letter-spacing: 4px;"));
  all->addWidget(title);
  all->addWidget(DimLabel(window_texts::kProgramIs));
  all->addSpacing(8);

  auto* columns = new QBoxLayout(QBoxLayout::LeftToRight);
  columns->setSpacing(32);
  columns->addLayout(StationColumn(), 4);
  columns->addLayout(RadioColumn(), 5);
  all->addLayout(columns);
  all->addStretch(1);
  auto* area = new QScrollArea;
  area->setObjectName(QStringLiteral("StartFields"));
  area->setWidget(page);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  auto* whole = new QBoxLayout(QBoxLayout::TopToBottom, this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(0);
  whole->addWidget(area, 1);
  QBoxLayout* bottom = BottomLine();
  bottom->setContentsMargins(24, 4, 24, 20);
  whole->addLayout(bottom);
  resize(kFirstWidth, kFirstHeight);
  ControlsOut();
}

// ---- Parts ----------------------------------------------------------------------------------

QBoxLayout* StartWindow::StationColumn() {
  StartPanelControls& c = panel_.Controls;
  auto* column = new QBoxLayout(QBoxLayout::TopToBottom);
  column->setSpacing(8);
  QGridLayout* station = AddGroup(column, window_texts::kStation);
  AddField(station, 0, c.Text8);
  station->addWidget(FaultLabel(c.Fault), 1, 1);
  AddField(station, 2, c.Text5);
  column->addSpacing(12);
  QGridLayout* maps = AddGroup(column, window_texts::kMaps);
  AddField(maps, 0, c.Text1);
  column->addSpacing(12);
  QGridLayout* ionosphere = AddGroup(column, window_texts::kIonosphere);
  AddField(ionosphere, 0, c.Text15);
  AddField(ionosphere, 1, c.Text16);
  QPushButton* from_internet = SmallButton();
  from_internet->setAutoDefault(false);
  ionosphere->addWidget(from_internet, 2, 1, Qt::AlignLeft);
  binder_.Bind(from_internet, c.Check8);
  ionosphere->addWidget(FaultLabel(c.IonoFault), 3, 1);
  column->addSpacing(12);
  auto* server = new QPushButton;
  server->setAutoDefault(false);
  server->setFixedHeight(kControlHeight);
  binder_.Bind(server, c.Command14);
  column->addWidget(server, 0, Qt::AlignLeft);
  column->addWidget(AprsIsPanel());
  column->addStretch(1);
  return column;
}

QWidget* StartWindow::AprsIsPanel() {
  StartPanelControls& c = panel_.Controls;
  auto* panel = new QFrame;
  auto* fields = new QGridLayout(panel);
  fields->setContentsMargins(0, 0, 0, 0);
  fields->setVerticalSpacing(8);
  fields->setHorizontalSpacing(12);
  QLabel* words = BoundLabel(c.AprsIsWords);
  words->setWordWrap(true);
  fields->addWidget(words, 0, 0, 1, 2);
  AddField(fields, 1, c.AprsIsServerField);
  AddField(fields, 2, c.AprsIsPortField);
  auto* ok = new QPushButton;
  ok->setAutoDefault(false);
  ok->setFixedHeight(kControlHeight);
  binder_.Bind(ok, c.Command15);
  fields->addWidget(ok, 3, 1, Qt::AlignRight);
  binder_.Bind(panel, c.AprsIsPanel);
  return panel;
}

QBoxLayout* StartWindow::RadioColumn() {
  StartPanelControls& c = panel_.Controls;
  auto* column = new QBoxLayout(QBoxLayout::TopToBottom);
  column->setSpacing(8);
  QGridLayout* radio = AddGroup(column, window_texts::kRadio);
  int row = 0;
  AddInterface(radio, row++, window_texts::kPk232Is, c.Option1);
  AddInterface(radio, row++, window_texts::kAgwLocalIs, c.Option2);
  AddInterface(radio, row++, window_texts::kAgwRemoteIs, c.Option9);
  AddInterface(radio, row++, window_texts::kNoRadioIs, c.Option10);
  AddInterface(radio, row++, window_texts::kScsTncIs, c.Option11);
  AddInterface(radio, row++, window_texts::kScsPtcIs, c.Option13);
  radio->setRowMinimumHeight(row++, 4);
  AddPort(radio, row++);
  AddSpeed(radio, row++);
  QLabel* fault = FaultLabel(c.PortFault);
  LetLongNamesBreak(fault, binder_);
  fault->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  fault->setMinimumHeight(kFaultLines * fault->fontMetrics().lineSpacing());
  radio->addWidget(fault, row, 0, 1, 2);
  AddGps(column);
  column->addStretch(1);
  return column;
}

void StartWindow::AddGps(QBoxLayout* column) {
  StartPanelControls& c = panel_.Controls;
  QGridLayout* gps = AddGroup(column, window_texts::kGps);
  auto* port = new DeviceBox;
  SetUpDeviceBox(port, c.Text6);
  port->Entered = [this] { loop_.RunStep([this] { panel_.ReadGpsDevices(); }); };
  port->ListOpens = [this] { loop_.RunStep([this] { panel_.GpsDeviceListOpens(); }); };
  auto* label = new QLabel(ToQt(c.Text6.Called));
  label->setBuddy(port);
  gps->addWidget(label, 0, 0);
  gps->addWidget(port, 0, 1, 1, 2);
  AddField(gps, 1, c.Text17);
  auto* sets_clock = new QCheckBox;
  binder_.Bind(sets_clock, c.SetClockBox);
  gps->addWidget(sets_clock, 1, 2);
  QLabel* fault = FaultLabel(c.GpsFault);
  KeepWidth(fault);
  gps->addWidget(fault, 2, 0, 1, 3);
}

QBoxLayout* StartWindow::BottomLine() {
  StartPanelControls& c = panel_.Controls;
  progress_text_ = DimLabel(window_texts::kMapsBeingDrawn);
  progress_ = new QProgressBar;
  progress_->setObjectName(QStringLiteral("MapProgress"));
  progress_->setAccessibleName(ToQt(window_texts::kMapsDrawn));
  progress_text_->hide();
  progress_->hide();
  QLabel* set_up = BoundLabel(c.SetupText);
  KeepWidth(set_up);
  auto* set_up_bar = new FillBarWidget;
  set_up_bar->setFixedHeight(10);
  binder_.Bind(set_up_bar, c.SetupBar);
  auto* told = new QBoxLayout(QBoxLayout::TopToBottom);
  told->setSpacing(8);
  told->addStretch(1);
  for (QWidget* widget : {static_cast<QWidget*>(progress_text_), static_cast<QWidget*>(progress_),
                          static_cast<QWidget*>(set_up), static_cast<QWidget*>(set_up_bar)}) {
    told->addWidget(widget);
  }

  auto* start = new QPushButton;
  start->setDefault(true);
  start->setAutoDefault(true);
  start->setMinimumSize(160, 40);
  start->setStyleSheet(QStringLiteral("font-size: 15px; font-weight: bold; min-height: 36px;"));
  binder_.Bind(start, c.Command1);
  auto* bottom = new QBoxLayout(QBoxLayout::LeftToRight);
  bottom->setSpacing(24);
  bottom->addLayout(told, 1);
  bottom->addWidget(start, 0, Qt::AlignBottom);
  return bottom;
}

QLineEdit* StartWindow::Field(TextBox& control) {
  auto* edit = new QLineEdit;
  edit->setFont(fixed_font_);
  edit->setFixedHeight(kControlHeight);
  binder_.Bind(edit, control);
  return edit;
}

void StartWindow::AddField(QGridLayout* grid, int row, TextBox& control) {
  QLineEdit* edit = Field(control);
  auto* label = new QLabel(ToQt(control.Called));
  label->setBuddy(edit);
  grid->addWidget(label, row, 0);
  grid->addWidget(edit, row, 1);
}

void StartWindow::AddInterface(QGridLayout* grid, int row, Text explanation,
                               OptionButton& control) {
  QPushButton* option = SmallButton();
  option->setMinimumWidth(kOptionWidth);
  option->setAutoDefault(false);
  option->setAccessibleDescription(ToQt(explanation));
  grid->addWidget(option, row, 0);
  grid->addWidget(DimLabel(explanation), row, 1);
  binder_.Bind(option, control);
}

void StartWindow::AddPort(QGridLayout* grid, int row) {
  StartPanelControls& c = panel_.Controls;
  auto* port = new DeviceBox;
  binder_.OnControlsOut([port, &c] { port->setAccessibleName(ToQt(c.PortLabel.Caption)); });
  SetUpDeviceBox(port, c.Text3);
  port->Entered = [this] { loop_.RunStep([this] { panel_.ReadDevices(); }); };
  port->ListOpens = [this] { loop_.RunStep([this] { panel_.DeviceListOpens(); }); };
  grid->addWidget(BoundLabel(c.PortLabel), row, 0);
  grid->addWidget(port, row, 1);
  KeepPlace(port);
}

void StartWindow::SetUpDeviceBox(DeviceBox* port, ComboBox& control) {
  port->setFont(fixed_font_);
  port->lineEdit()->setFont(fixed_font_);
  port->setFixedHeight(kControlHeight);
  port->setMinimumContentsLength(16);
  port->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  binder_.Bind(port, control);
  // What is typed is looked at as it is typed.
  connect(port->lineEdit(), &QLineEdit::textEdited, this,
          [this, &control] { loop_.RunStep(control.Change); });
}

void StartWindow::AddSpeed(QGridLayout* grid, int row) {
  StartPanelControls& c = panel_.Controls;
  QLineEdit* speed = Field(c.Text4);
  binder_.OnControlsOut([speed, &c] { speed->setAccessibleName(ToQt(c.SpeedLabel.Caption)); });
  grid->addWidget(BoundLabel(c.SpeedLabel), row, 0);
  grid->addWidget(speed, row, 1);
  KeepPlace(speed);
}

QLabel* StartWindow::BoundLabel(Label& control) {
  auto* label = new QLabel;
  binder_.Bind(label, control);
  return label;
}

QLabel* StartWindow::FaultLabel(Label& control) {
  QLabel* label = BoundLabel(control);
  label->setProperty("fault", true);
  return label;
}

// ---- What comes and goes --------------------------------------------------------------------

void StartWindow::ControlsOut() {
  binder_.ControlsOut();
  if (panel_.Starting() != testAttribute(Qt::WA_SetCursor)) {
    panel_.Starting() ? setCursor(Qt::BusyCursor) : unsetCursor();
  }
}

void StartWindow::ShowMapProgress(int done, int total) {
  const bool running = done < total;
  progress_text_->setVisible(running);
  progress_->setVisible(running);
  progress_->setMaximum(total);
  progress_->setValue(done);
}

void StartWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(!panel_.Starting() || !Closed);
  if (Closed) Closed();
}

// Enter anywhere presses START.
void StartWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // A key that is leaned on presses once.
    if (event->isAutoRepeat()) return;
    if (panel_.Controls.Command1.Enabled) loop_.RunStep(panel_.Controls.Command1.Click);
    return;
  }
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace zepril
