// Lays out the page: printed text, the typed field, the button that leaves.
#include "desktop/terminal_page.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/control_access.h"

namespace zepril {
namespace {

constexpr int kTypedHeight = 44;  // two lines

QPlainTextEdit* Lines(const WindowParts& parts) {
  auto* text = new QPlainTextEdit;
  text->setFont(parts.FixedFont);
  text->setMinimumHeight(0);
  return text;
}

}  // namespace

QWidget* MakeTerminalPage(WindowParts& parts, TerminalControls& terminal) {
  auto* page = new QWidget;
  NameAfter(page, terminal.Frame19);
  auto* box = TightBox(QBoxLayout::TopToBottom, page);
  box->setContentsMargins(4, 4, 4, 4);
  auto* rule = new QLabel;
  rule->setWordWrap(true);
  box->addWidget(rule);
  parts.Binding.Bind(rule, terminal.Label47);
  box->addWidget(RestsLabel());
  QPlainTextEdit* received = Lines(parts);
  received->setFocusPolicy(Qt::ClickFocus);
  box->addWidget(received, 1);
  parts.Binding.Bind(received, terminal.Text20);
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  QPlainTextEdit* typed = Lines(parts);
  typed->setFixedHeight(kTypedHeight);
  row->addWidget(typed, 1);
  parts.Binding.Bind(typed, terminal.Text19);
  // With a caret, though it takes no typing by itself.
  typed->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  row->addWidget(parts.BoundButton(terminal.Command66), 0, Qt::AlignTop);
  return page;
}

}  // namespace zepril
