// Fields: of a line, of several lines, and lists that are typed into.
#include "desktop/binder.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

#include "desktop/corner_mark.h"
#include "desktop/typed_keys.h"
#include "platform/code_page.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

// What was put into a field, as one line: a paste may bring several, and settings and modems take a
// line end for the end of what they are told. A blank stands for each run of control characters.
std::string OneLine(const QString& text) {
  std::string line;
  bool gap = false;
  for (const char c : FromQt(text)) {
    const bool control = IsControlCharacter(c);
    if (!control || !gap) line += control ? ' ' : c;
    gap = control;
  }
  return line;
}

// A modem's text: CR, LF or both end a line, what has no picture shows as the key that types it.
QString LinesOf(const std::string& text) {
  QString lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '\r' || c == '\n') {
      if (c == '\n' && at > 0 && text[at - 1] == '\r') continue;
      lines += QLatin1Char('\n');
    } else if (static_cast<unsigned char>(c) < ' ' && c != '\t') {
      lines += QLatin1Char('^');
      lines += QLatin1Char(static_cast<char>(c + '@'));
    } else {
      lines += ToQt(std::string_view(&c, 1));
    }
  }
  return lines;
}

void ShowWhileEmpty(QComboBox* widget, const QString& text) {
  if (widget->isEditable()) return widget->lineEdit()->setPlaceholderText(text);
  widget->setPlaceholderText(text);
}

}  // namespace

void Binder::Bind(QLineEdit* widget, TextBox& control) {
  BindCommon(widget, control);
  if (!control.WhileEmpty.empty()) widget->setPlaceholderText(ToQt(control.WhileEmpty));
  connect(widget, &QLineEdit::textEdited, this, [this, widget, &control] {
    control.Text = OneLine(widget->text());
    Raise(control.Change);
  });
  BindKeys(widget, [&control](KeyPress key) {
    if (control.KeyDown) control.KeyDown(key);
  });
  BindFocus(widget, control);
  outs_.push_back([widget, &control] {
    const QString text = ToQt(control.Text);
    if (widget->text() != text) widget->setText(text);  // the caret goes to its end
  });
}

void Binder::Bind(QPlainTextEdit* widget, TextBox& control) {
  BindCommon(widget, control);
  BindFocus(widget, control);
  widget->setReadOnly(true);
  widget->setUndoRedoEnabled(false);
  // Presses come to the part that scrolls.
  watched_.push_back({widget->viewport(), &control, nullptr, true});
  widget->viewport()->installEventFilter(this);
  new TypedKeys(widget, loop_, control, this);
  outs_.push_back([widget, &control, text = std::string()]() mutable {
    if (text == control.Text) return;
    text = control.Text;
    widget->setPlainText(LinesOf(text));
    widget->moveCursor(QTextCursor::End);
  });
}

void Binder::BindFocus(QWidget* widget, const TextBox& control) {
  for (Watched& watched : watched_) {
    if (watched.Widget == widget) watched.Field = &control;
  }
}

void Binder::Bind(QComboBox* widget, ComboBox& control) {
  BindCommon(widget, control);
  if (!control.WhileEmpty.empty()) ShowWhileEmpty(widget, ToQt(control.WhileEmpty));
  new CornerMark(widget, MarkKind::DropDown);
  connect(widget, &QComboBox::activated, this, [this, widget, &control](int index) {
    // A field that is left with the name of an entry in it was typed, or just passed by the Tab
    // key: not chosen.
    if (widget->property("leaving").toBool()) return;
    const bool typed = widget->property("typed").toBool();
    if (typed && control.Text == FromQt(widget->itemText(index))) return;
    widget->setProperty("typed", false);
    // By its name: kept while the program waits, the list may be another one when it acts.
    Press(control, [&control, chosen = FromQt(widget->itemText(index))] {
      const auto found = std::find(control.Items.begin(), control.Items.end(), chosen);
      if (found == control.Items.end()) return;
      control.Select(static_cast<int>(found - control.Items.begin()));
      if (control.Change) control.Change();
      if (control.Click) control.Click();
    });
  });
  if (widget->isEditable()) BindTyping(widget, control);
  outs_.push_back([widget, &control, items = std::vector<std::string>()]() mutable {
    const QSignalBlocker quiet(widget);
    // A new list leaves the typing where it is.
    const int caret = widget->isEditable() ? widget->lineEdit()->cursorPosition() : 0;
    if (items != control.Items) {
      items = control.Items;
      widget->clear();
      for (const std::string& item : items)
        widget->addItem(ToQt(item));
    }
    if (control.DropDownWanted) {
      control.DropDownWanted = false;
      if (widget->count() > 0) widget->showPopup();
    }
    if (widget->currentIndex() != control.ListIndex) widget->setCurrentIndex(control.ListIndex);
    // Its parts are known by its name.
    if (widget->view()->accessibleName() != widget->accessibleName()) {
      widget->view()->setAccessibleName(widget->accessibleName());
      if (widget->isEditable()) widget->lineEdit()->setAccessibleName(widget->accessibleName());
    }
    if (!widget->isEditable()) return;
    const QString text = ToQt(control.Text);
    if (widget->currentText() != text) {
      widget->setEditText(text);
      widget->lineEdit()->setCursorPosition(control.HasFocus ? caret : 0);
    }
  });
}

void Binder::BindTyping(QComboBox* widget, ComboBox& control) {
  // What is typed counts as it is: neither completed nor added to the list.
  widget->setCompleter(nullptr);
  widget->setInsertPolicy(QComboBox::NoInsert);
  connect(widget->lineEdit(), &QLineEdit::textEdited, this,
          [this, widget, &control](const QString& text) {
            widget->setProperty("typed", true);
            control.Text = OneLine(text);
          });
  for (Watched& watched : watched_) {
    if (watched.Widget == widget) watched.Choice = &control;
  }
  // The list has the focus in place of its field and hands keys on without an event of its own.
  BindKeys(widget, [&control](KeyPress key) {
    if (control.KeyDown) control.KeyDown(key);
  });
  // A right click comes to the field.
  watched_.push_back({widget->lineEdit(), &control, nullptr, false});
  widget->lineEdit()->installEventFilter(this);
}

// True: the field has had the event.
bool Binder::Leave(const Watched& row, QFocusEvent& event) {
  auto* field = static_cast<QComboBox*>(row.Widget);
  // The toolkit takes the field's text for a choice while the focus goes.
  field->setProperty("leaving", true);
  field->event(&event);
  field->setProperty("leaving", false);
  // Another window, or the field's own list, is no leaving.
  if (event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason) {
    return true;
  }
  field->setProperty("typed", false);
  if (row.Choice->Left) Raise(row.Choice->Left);
  return true;
}

}  // namespace zepril
