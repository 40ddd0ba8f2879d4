// Builds the window's parts, arranges them, brings controls out, and takes the window's keys.
#include "desktop/main_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/window_texts.h"
#include "desktop/chat_page.h"
#include "desktop/fitted_label.h"
#include "desktop/keys.h"
#include "desktop/map_bar.h"
#include "desktop/terminal_page.h"
#include "desktop/window_place.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kLeftWidth = 176;
constexpr int kRightWidth = 208;
constexpr int kFoldRightBelow = 790;
constexpr int kFoldLeftBelow = 700;
constexpr int kLowestMap = 120;
constexpr int kLowestDrawer = 140;
constexpr int kRoomForChat = 220;  // its fields and some lines

}  // namespace

MainWindow::MainWindow(StationProgram& program, QtLoop& loop, const MapFonts& fonts,
                       WindowSurfaces surfaces, const Files& files)
    : program_(program),
      controls_(program.Controls()),
      loop_(loop),
      look_(NightLook()),
      binder_(loop, look_),
      parts_{loop, binder_, look_, fonts.TextFont()},
      columns_(parts_, controls_) {
  setObjectName(QStringLiteral("Form1"));
  setMinimumSize(640, 480);
  resize(1280, 800);

  map_ = new MapWidget(loop, controls_.Map.Picture1, controls_.Map.PictureBase, surfaces.Map,
                       surfaces.Base);
  map_->Resized = [this](int width, int height) {
    loop_.RunStep([&] { program_.MapResized(width, height); });
  };
  map_->setMinimumHeight(kLowestMap);
  map_->Wheel = [this](int steps) {
    Press(steps > 0 ? controls_.Map.Command8 : controls_.Map.Command7);
  };

  left_column_ = Scrolling(columns_.MakeLeftColumn(), kLeftWidth);
  right_column_ = Scrolling(columns_.MakeRightColumn(), kRightWidth);
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
  all->addWidget(new MapBar(parts_, controls_.Map));
  all->addWidget(split_, 1);
  all->addWidget(MakeBottomLine());
  layer_panels_ = std::make_unique<LayerPanels>(parts_, controls_, *map_, surfaces.Sun, files);
  panels_ = std::make_unique<PanelsOverMap>(parts_, controls_, program_.State().Map, *map_);
  transmit_panels_ = std::make_unique<TransmitPanels>(
      parts_, controls_, *map_, TransmitPanels::Symbols{surfaces.TxSymbol, surfaces.ObjectSymbol});
  report_panels_ = std::make_unique<ReportPanels>(parts_, controls_, *map_, surfaces.Weather);
  panel_table_ = std::make_unique<PanelTable>(controls_, *map_, *layer_panels_, *panels_,
                                              *transmit_panels_, *report_panels_);
  map_->PlaceOverlays = [this] { panel_table_->Place(); };
  map_->Pointer = [this] {
    const MapViewState& view = program_.State().Map;
    return QPointF(view.CursorX, view.CursorY);
  };

  loop_.InputHeld() = [this](const QObject& window, const QEvent& event) {
    binder_.NotePress(window, event);
  };

  // Ages grow, and what is told for some seconds goes, also when nothing happens.
  lamp_timer_.setInterval(1000);
  connect(&lamp_timer_, &QTimer::timeout, this, [this] {
    program_.SecondPassed();
    ControlsOut();
  });
  lamp_timer_.start();
  ControlsOut();
}

// ---- Parts of the window --------------------------------------------------------------------

QWidget* MainWindow::MakeBottomLine() {
  auto* line = new QFrame;
  line->setObjectName(QStringLiteral("BottomLine"));
  auto* row = TightBox(QBoxLayout::LeftToRight, line);
  row->setContentsMargins(8, 4, 8, 4);
  auto* station = new FittedLabel(1);
  station->setFont(parts_.FixedFont);
  station->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  QLabel* status = parts_.FixedLabel();
  lamp_ = new LampWidget;
  row->addWidget(station, 1);
  row->addSpacing(12);
  row->addWidget(status);
  row->addSpacing(8);
  link_words_ = parts_.FixedLabel();
  link_words_->setObjectName(QStringLiteral("LinkWords"));
  row->addWidget(link_words_);
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
  raw_page_ = MakeRawPage();
  terminal_page_ = MakeTerminalPage(parts_, controls_.Terminal);
  chat_page_ = MakeChatPage(parts_, controls_.Chat);
  for (QWidget* page : {raw_page_, terminal_page_, chat_page_}) {
    page->setParent(this);
    page->hide();
  }
  return drawer_;
}

QWidget* MainWindow::MakeRawPage() {
  auto* page = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, page);
  box->setContentsMargins(4, 4, 4, 4);
  auto* list = new QListView;
  list->setFont(parts_.FixedFont);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  auto* search_row = TightBox(QBoxLayout::LeftToRight);
  auto* text = new QLineEdit;
  QPushButton* search = SmallButton();
  search_row->addWidget(text, 1);
  search_row->addWidget(search);
  box->addWidget(list, 1);
  box->addLayout(search_row);
  binder_.Bind(list, &raw_lines_, controls_.Raw.RawList);
  binder_.Bind(text, controls_.Raw.Text14);
  binder_.Bind(search, controls_.Raw.Command38);
  return page;
}

// ---- Folding and the drawer -----------------------------------------------------------------

// On a narrow window the columns fold into the drawer as tabs.
void MainWindow::Arrange() {
  const auto fold = [this](QWidget* column, bool folded, Text title, int place) {
    const bool in_drawer = drawer_->indexOf(column) >= 0;
    if (folded == in_drawer) return;
    if (folded) {
      column->setMaximumWidth(QWIDGETSIZE_MAX);
      drawer_->addTab(column, ToQt(title));
    } else {
      column->setFixedWidth(column == left_column_ ? kLeftWidth : kRightWidth);
      drawer_->removeTab(drawer_->indexOf(column));
      // The other column may be folded still.
      middle_->insertWidget(std::min(place, middle_->count()), column);
      column->show();
      column->lower();  // under a panel that is open
    }
  };
  const int pages = drawer_->count();
  fold(right_column_, width() < kFoldRightBelow, window_texts::kStations, 2);
  fold(left_column_, width() < kFoldLeftBelow, window_texts::kPosition, 0);
  ShowDrawer();
  if (drawer_->count() != pages) ShareHeight();
}

// The map keeps two thirds of the height, and half of it beside the terminal, while it stands
// still. In a low window the chat has up to half of it too.
void MainWindow::ShareHeight() {
  int drawer = split_->height() / (controls_.Terminal.Frame19.Visible ? 2 : 3);
  if (controls_.Chat.Frame3.Visible) drawer = std::max(drawer, RoomForChat());
  split_->setSizes({split_->height() - drawer, drawer});
}

int MainWindow::RoomForChat() const {
  return std::min(kRoomForChat, split_->height() / 2);
}

void MainWindow::ShowDrawer() {
  const bool was_open = !drawer_->isHidden();
  const bool terminal = controls_.Terminal.Frame19.Visible;
  const bool terminal_changes = terminal != (drawer_->indexOf(terminal_page_) >= 0);
  const bool chat_comes = controls_.Chat.Frame3.Visible && drawer_->indexOf(chat_page_) < 0;
  ShowPage(raw_page_, controls_.Raw.RawList.Visible, window_texts::kRaw);
  ShowPage(chat_page_, controls_.Chat.Frame3.Visible, window_texts::kMessages);
  ShowPage(terminal_page_, terminal, window_texts::kTerminal);
  drawer_->setVisible(drawer_->count() > 0);
  const bool opens = !was_open && !drawer_->isHidden();
  if (opens || (chat_comes && drawer_->height() < RoomForChat())) ShareHeight();
  if (terminal_changes) MakeRoomForTerminal(terminal);
}

// A page that comes is the one that is seen, but for one that comes under typing hands.
void MainWindow::ShowPage(QWidget* page, bool shown, Text title) {
  const int at = drawer_->indexOf(page);
  if (shown == (at >= 0)) return;
  if (!shown) {
    if (page->isAncestorOf(focusWidget())) map_->setFocus();
    return drawer_->removeTab(at);
  }
  const bool typing = drawer_->isAncestorOf(focusWidget()) && IsTypedIn(focusWidget());
  drawer_->insertTab(0, page, ToQt(title));
  if (!typing) drawer_->setCurrentWidget(page);
}

void MainWindow::MakeRoomForTerminal(bool open) {
  if (open) {
    sizes_without_terminal_ = split_->sizes();
    ShareHeight();
  } else if (!drawer_->isHidden()) {
    split_->setSizes(sizes_without_terminal_);
  }
}

void MainWindow::ShowLamp() {
  const LinkLamp lamp = program_.Lamp();
  lamp_->Show(lamp);
  if (const QString words = ToQt(lamp.Words); link_words_->text() != words) {
    link_words_->setText(words);
  }
  link_words_->setVisible(!lamp.Words.empty());
}

void MainWindow::ControlsOut() {
  ShowDrawer();
  binder_.ControlsOut();
  map_->ControlsOut();
  // What had the focus has gone.
  if (isVisible() && focusWidget() == nullptr) map_->setFocus();
  if (lamp_ != nullptr) ShowLamp();
  const QString title = ToQt(controls_.Window.Title);
  if (windowTitle() != title) setWindowTitle(title);
  if (controls_.Window.MaximiseWanted) {
    controls_.Window.MaximiseWanted = false;
    // An alarm: from among the icons too, and before other windows.
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowMaximized);
    raise();
    QApplication::alert(this);
  }
  const bool busy = controls_.Window.Pointer == PointerShape::Hourglass;
  setCursor(busy ? Qt::WaitCursor : Qt::ArrowCursor);
  if (panel_table_) panel_table_->Place();
}

// ---- What outlives a run ---------------------------------------------------------------------

WindowValues MainWindow::Kept() const {
  WindowValues values = PlaceOf(*this, "MAIN");
  values["DRAWER"] = controls_.Raw.RawList.Visible ? "RAW" : "";
  const QList<int> sizes =
      controls_.Terminal.Frame19.Visible ? sizes_without_terminal_ : split_->sizes();
  if (!drawer_->isHidden() && sizes.size() == 2 && sizes.back() > 0) {
    values["DRAWERHEIGHT"] = WholeNumber(sizes.back());
  }
  return values;
}

void MainWindow::TakeKept(const WindowValues& values) {
  PlaceWindow(*this, values, "MAIN");
  const auto drawer = values.find("DRAWER");
  if (drawer == values.end() || drawer->second != "RAW") return;
  controls_.Raw.RawList.Visible = true;
  ControlsOut();
  if (const auto wanted = WindowNumber(values, "DRAWERHEIGHT", kLowestDrawer, height())) {
    split_->setSizes({std::max(split_->height() - *wanted, kLowestMap), *wanted});
  }
}

// ---- Window events --------------------------------------------------------------------------

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close_asked_ = true;
  loop_.AskForEnd(true);
  // Inside a step the request is kept until the outermost one has returned.
  if (!loop_.InStep()) CloseWhenAsked();
}

void MainWindow::StepEnded() {
  parts_.Binding.ForgetPresses();
  CloseWhenAsked();
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
  if (control.Enabled && control.Click)
    loop_.Press(&control, control.PressesInWaits, [&control] { control.Click(); });
}

void MainWindow::Switch(CheckBox& control) {
  loop_.Press(&control, control.PressesInWaits, [&control] {
    control.Value = control.Value == 0 ? 1 : 0;
    if (control.Click) control.Click();
  });
}

// Opened by a key it takes the next ones.
void MainWindow::OpenStations() {
  Press(controls_.MoniAll.Command3);
  if (controls_.MoniAll.HeardPanel.Visible) FocusOn(controls_.MoniAll.HeardList);
}

void MainWindow::OpenMessageField() {
  ChatControls& chat = controls_.Chat;
  if (!chat.Check7.Enabled || !chat.Check7.Visible) return;
  if (!chat.Frame3.Visible) Switch(chat.Check7);
  if (chat.Text3.Visible) FocusOn(chat.Text3);
}

// The field may lie on a page of the drawer that is not the shown one.
void MainWindow::FocusOn(const Control& control) {
  auto* widget = findChild<QWidget*>(ToQt(control.Name));
  if (widget == nullptr) return;
  for (int page = 0; page < drawer_->count(); ++page) {
    if (drawer_->widget(page)->isAncestorOf(widget)) drawer_->setCurrentIndex(page);
  }
  widget->setFocus();
}

// Keys act nowhere but outside of the fields, which Esc leaves.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  const TerminalControls& terminal = controls_.Terminal;
  // The terminal takes all other keys for the modem.
  if (event->key() == Qt::Key_C && event->modifiers() == Qt::AltModifier &&
      terminal.Frame19.Visible) {
    return Press(terminal.Command66);
  }
  if (IsTypedIn(focusWidget())) {
    if (event->key() == Qt::Key_Escape) map_->setFocus();
    return;
  }
  // A key that is leaned on presses once.
  if (event->isAutoRepeat()) return;
  if (event->modifiers().testFlag(Qt::ControlModifier)) return PressControlKey(*event);
  PressKey(event);
}

void MainWindow::PressControlKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_F:
      return FocusOn(controls_.MoniAll.Text15);
    case Qt::Key_L:
      return OpenStations();
    case Qt::Key_M:
      return OpenMessageField();
    case Qt::Key_R:
      return Press(controls_.Raw.Command57);
    case Qt::Key_S:
      return Press(controls_.Map.Command59);
    case Qt::Key_T:
      if (controls_.Transmit.Check6.RightClick) loop_.RunStep(controls_.Transmit.Check6.RightClick);
      return;
    default:
      return;
  }
}

void MainWindow::PressKey(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return CloseTopmostPanel();
    case Qt::Key_F1:
      return Press(controls_.Map.Command1);
    case Qt::Key_F2:
      return Press(controls_.Map.Command2);
    case Qt::Key_F3:
      return Press(controls_.Map.Command7);
    case Qt::Key_F4:
      return Press(controls_.Viewers.GlobeShow);
    case Qt::Key_F5:
      return Press(controls_.Viewers.GlobeFetch);
    case Qt::Key_F6:
      return Press(controls_.Viewers.MinKarta);
    case Qt::Key_F7:
      return Press(controls_.Viewers.Norgeskart);
    case Qt::Key_F8:
      return Press(controls_.Viewers.Karttapaikka);
    case Qt::Key_F9:
      return Press(controls_.Viewers.GoogleMapsShow);
    case Qt::Key_F10:
      return Press(controls_.Viewers.GoogleMapsFetch);
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
    case Qt::Key_G:
      return Switch(controls_.Map.Check4);
    case Qt::Key_C:
      return Switch(controls_.Map.Check9);
    case Qt::Key_I:
      return Switch(controls_.Map.Check12);
    case Qt::Key_T:
      return Switch(controls_.Map.Check14);
    case Qt::Key_P:
      return Press(controls_.Map.Command73);
    case Qt::Key_N:
      return Press(controls_.Places.PoiNew);
    case Qt::Key_D:
      return Press(controls_.Map.Command72);
    default:
      QWidget::keyPressEvent(event);
  }
}

void MainWindow::CloseTopmostPanel() {
  if (const Button* close = panel_table_->CloseOfTopmost()) return Press(*close);
  map_->setFocus();
}

}  // namespace zepril
