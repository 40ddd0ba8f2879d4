// Lays out the page: printed text, the typed field, the button that leaves.
#include "desktop/terminal_page.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zepril {
namespace {

constexpr int kTypedHeight = 44;  // two lines

QPlainTextEdit* Text(const WindowParts& parts, const char* name, const char* what) {
  auto* text = new QPlainTextEdit;
  text->setObjectName(QString::fromLatin1(name));
  text->setAccessibleName(QString::fromLatin1(what));
  text->setFont(parts.FixedFont);
  text->setMinimumHeight(0);
  return text;
}

}  // namespace

QWidget* MakeTerminalPage(WindowParts& parts, TerminalControls& terminal) {
  auto* page = new QWidget;
  page->setObjectName(QStringLiteral("Frame19"));
  auto* box = TightBox(QBoxLayout::TopToBottom, page);
  box->setContentsMargins(4, 4, 4, 4);
  auto* rule = new QLabel;
  rule->setObjectName(QStringLiteral("Label47"));
  rule->setWordWrap(true);
  box->addWidget(rule);
  parts.Binding.Bind(rule, terminal.Label47);
  box->addWidget(RestsLabel());
  QPlainTextEdit* received = Text(parts, "Text20", "what the modem prints");
  received->setFocusPolicy(Qt::ClickFocus);
  box->addWidget(received, 1);
  parts.Binding.Bind(received, terminal.Text20);
  auto* row = TightBox(QBoxLayout::LeftToRight);
  box->addLayout(row);
  QPlainTextEdit* typed = Text(parts, "Text19", "what goes to the modem");
  typed->setFixedHeight(kTypedHeight);
  row->addWidget(typed, 1);
  parts.Binding.Bind(typed, terminal.Text19);
  // With a caret, though it takes no typing by itself.
  typed->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  row->addWidget(parts.BoundButton("Command66", terminal.Command66), 0, Qt::AlignTop);
  return page;
}

}  // namespace zepril
