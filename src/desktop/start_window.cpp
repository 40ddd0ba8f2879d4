#include "desktop/start_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "platform/qt/text.h"

namespace zepril {
namespace {

QLabel* GroupCaption(const char* text) {
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setProperty("group", true);
  return label;
}

}  // namespace

StartWindow::StartWindow(StartPanel& panel, QtLoop& loop, const MapFonts& fonts)
    : panel_(panel), loop_(loop), binder_(loop, NightLook()), fixed_font_(fonts.TextFont()) {
  setObjectName(QStringLiteral("Form0"));
  setWindowTitle(QStringLiteral("ZEP RIL  START   V 8.08"));
  StartPanelControls& c = panel_.Controls;
  auto* all = new QBoxLayout(QBoxLayout::TopToBottom, this);
  all->setContentsMargins(24, 20, 24, 20);
  all->setSpacing(12);

  auto* title = new QLabel(QStringLiteral("ZEP RIL"));
  title->setStyleSheet(QStringLiteral("font-size: 28px; font-weight: bold; letter-spacing: 4px;"));
  auto* under = new QLabel(QStringLiteral("APRS station program"));
  under->setProperty("dim", true);
  all->addWidget(title);
  all->addWidget(under);

  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->setColumnMinimumWidth(0, 120);
  grid->setColumnStretch(1, 1);
  grid->addWidget(GroupCaption("STATION"), 0, 0);
  AddField(grid, 1, "Text8", "USER CALL", c.Text8);
  auto* fault = new QLabel;
  fault->setObjectName(QStringLiteral("Fault"));
  grid->addWidget(fault, 2, 1);
  binder_.Bind(fault, c.Fault);
  fault->setStyleSheet(QStringLiteral("color: #E88A8A;"));
  AddField(grid, 3, "Text5", "MONI CALL", c.Text5);
  AddField(grid, 4, "Text1", "MAPS PATH", c.Text1);
  grid->addWidget(GroupCaption("RADIO"), 5, 0);
  AddInterface(grid, 6, "Option2", "packet engine on this computer, port 8000", c.Option2);
  AddInterface(grid, 7, "Option9", "packet engine on another computer, by TCP/IP", c.Option9);
  AddInterface(grid, 8, "Option10", "no radio interface", c.Option10);
  AddField(grid, 9, "Text3", "HOST NAME", c.Text3);
  AddField(grid, 10, "Text4", "HOST PORT", c.Text4);
  all->addLayout(grid);
  all->addStretch(1);

  progress_text_ = new QLabel(QStringLiteral("The sample maps are being drawn, once ..."));
  progress_text_->setProperty("dim", true);
  progress_ = new QProgressBar;
  progress_->setObjectName(QStringLiteral("MapProgress"));
  all->addWidget(progress_text_);
  all->addWidget(progress_);
  progress_text_->hide();
  progress_->hide();

  auto* start = new QPushButton;
  start->setObjectName(QStringLiteral("Command1"));
  start->setDefault(true);
  start->setAutoDefault(true);
  start->setMinimumSize(160, 40);
  start->setStyleSheet(QStringLiteral("font-size: 15px; font-weight: bold; min-height: 36px;"));
  auto* bottom = new QBoxLayout(QBoxLayout::LeftToRight);
  bottom->addStretch(1);
  bottom->addWidget(start);
  all->addLayout(bottom);
  binder_.Bind(start, c.Command1);
  setMinimumSize(560, 520);
  ControlsOut();
}

void StartWindow::AddField(QGridLayout* grid, int row, const char* name, const char* text,
                           TextBox& control) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QString::fromLatin1(name));
  edit->setAccessibleName(QString::fromLatin1(text));
  edit->setFont(fixed_font_);
  edit->setFixedHeight(26);
  auto* label = new QLabel(QString::fromLatin1(text));
  label->setBuddy(edit);
  grid->addWidget(label, row, 0);
  grid->addWidget(edit, row, 1);
  binder_.Bind(edit, control);
}

void StartWindow::AddInterface(QGridLayout* grid, int row, const char* name,
                               const char* explanation, OptionButton& control) {
  auto* option = new QPushButton;
  option->setObjectName(QString::fromLatin1(name));
  option->setFixedHeight(26);
  option->setAutoDefault(false);
  grid->addWidget(option, row, 0);
  auto* label = new QLabel(QString::fromLatin1(explanation));
  label->setProperty("dim", true);
  grid->addWidget(label, row, 1);
  binder_.Bind(option, control);
}

void StartWindow::ShowMapProgress(int done, int total) {
  const bool running = done < total;
  progress_text_->setVisible(running);
  progress_->setVisible(running);
  progress_->setMaximum(total);
  progress_->setValue(done);
}

void StartWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (Closed) Closed();
}

// Enter anywhere presses START.
void StartWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
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
