// Lays out the page; the log stands in the place of the lines while it is open.
#include "desktop/chat_page.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/control_access.h"
#include "desktop/fitted_label.h"

namespace zepril {
namespace {

constexpr int kAddresseeWidth = 104;  // ten letters of the fixed font
constexpr int kShortestMessage = 120;

// Low windows show the newest lines; the wheel brings the others.
class LinesArea final : public QScrollArea {
 public:
  LinesArea() {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setMinimumHeight(0);
    setProperty("bare", true);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  }
  QSize minimumSizeHint() const override { return {0, 0}; }
};

QWidget* MakeLines(WindowParts& parts, ChatControls& chat) {
  auto* lines = new QWidget;
  auto* box = TightBox(QBoxLayout::TopToBottom, lines);
  box->setSpacing(1);
  box->addStretch(1);
  for (Label& line : chat.Text1) {
    auto* label = new FittedLabel(1);
    label->setFont(parts.FixedFont);
    label->setFocusPolicy(Qt::TabFocus);
    box->addWidget(label);
    parts.Binding.Bind(label, line);
  }
  auto* area = new LinesArea;
  area->setWidget(lines);
  return area;
}

QWidget* MakeLog(WindowParts& parts, ChatControls& chat) {
  auto* log = new QWidget;
  auto* row = TightBox(QBoxLayout::LeftToRight, log);
  auto* text = new QPlainTextEdit;
  text->setFont(parts.FixedFont);
  text->setMinimumHeight(0);
  text->setFocusPolicy(Qt::ClickFocus);
  row->addWidget(text, 1);
  parts.Binding.Bind(text, chat.Text5);
  row->addWidget(parts.BoundButton(chat.Command28), 0, Qt::AlignTop);
  parts.Binding.Bind(log, chat.Frame7);
  return log;
}

QBoxLayout* MakeFields(WindowParts& parts, ChatControls& chat) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  QLineEdit* addressee = parts.BoundField(chat.Text2);
  addressee->setFixedWidth(kAddresseeWidth);
  QLineEdit* message = parts.BoundField(chat.Text3);
  message->setMinimumWidth(kShortestMessage);
  row->addWidget(addressee);
  row->addWidget(message, 1);
  row->addWidget(parts.BoundButton(chat.Command16));
  return row;
}

QBoxLayout* MakeSwitches(WindowParts& parts, ChatControls& chat) {
  auto* row = TightBox(QBoxLayout::LeftToRight);
  for (CheckBox* box : {&chat.Check16, &chat.Check8})
    row->addWidget(parts.BoundButton(*box));
  for (Button* button : {&chat.Command24, &chat.Command25})
    row->addWidget(parts.BoundButton(*button));
  auto* note = new FittedLabel(2);
  note->setProperty("fault", true);
  row->addSpacing(8);
  row->addWidget(note, 1);
  parts.Binding.Bind(note, chat.ChatNote);
  return row;
}

}  // namespace

QWidget* MakeChatPage(WindowParts& parts, ChatControls& chat) {
  auto* page = new QWidget;
  NameAfter(page, chat.Frame3);
  auto* box = TightBox(QBoxLayout::TopToBottom, page);
  box->setContentsMargins(4, 4, 4, 4);
  QWidget* lines = MakeLines(parts, chat);
  box->addWidget(lines, 1);
  box->addWidget(MakeLog(parts, chat), 1);
  box->addLayout(MakeFields(parts, chat));
  box->addLayout(MakeSwitches(parts, chat));
  parts.Binding.OnControlsOut([lines, &chat] { lines->setVisible(!chat.Frame7.Visible); });
  return page;
}

}  // namespace zepril
