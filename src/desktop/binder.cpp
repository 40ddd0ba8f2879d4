// Each kind of control with its widget: signals to events, changed properties to the widget.
#include "desktop/binder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QTimer>

#include <algorithm>

#include "desktop/control_access.h"
#include "desktop/corner_mark.h"
#include "desktop/fill_bar_widget.h"
#include "desktop/keys.h"
#include "desktop/right_hold.h"
#include "desktop/typed_keys.h"
#include "platform/code_page.h"
#include "platform/qt/text.h"

namespace zepril {
namespace {

constexpr int kAimMilliseconds = 1500;  // from the last move of the mouse

// What was last brought out of a control; a property goes out again only when it differs.
struct Shown {
  bool Known = false;
  bool Visible = true;
  bool Enabled = true;
  std::string ToolTip;
  std::optional<std::uint32_t> BackColour;
  std::optional<std::uint32_t> ForeColour;
};

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

void ShowColours(QWidget* widget, const Control& control, const Look& look) {
  if (!control.BackColour && !control.ForeColour) {
    widget->setStyleSheet(QString());
    return;
  }
  QString sheet;
  const QColor back = control.BackColour ? StateShade(*control.BackColour, look) : look.Window;
  const QColor usual = control.BackColour ? StateInk(*control.BackColour, look) : look.Text;
  if (control.BackColour) sheet += QStringLiteral("background: %1;").arg(back.name());
  const QColor ink = control.ForeColour ? InkOn(*control.ForeColour, back, usual) : usual;
  sheet += QStringLiteral("color: %1;").arg(ink.name());
  widget->setStyleSheet(sheet);
}

// The tool tip, with the key that does the same.
QString TipOf(const Control& control) {
  const QString tip = ToQt(control.ToolTip);
  if (tip.isEmpty() || control.KeyName.empty()) return tip;
  return tip + QStringLiteral("  [%1]").arg(ToQt(control.KeyName));
}

// Left to itself the focus of what goes would jump to whatever comes next, and Enter press that, or
// letters be typed into it.
void DropFocusIn(QWidget* widget) {
  QWidget* focused = widget->window()->focusWidget();
  if (focused != nullptr && (focused == widget || widget->isAncestorOf(focused))) {
    focused->clearFocus();
  }
}

void ShowCommon(QWidget* widget, Control& control, Shown& shown, const Look& look) {
  if (!shown.Known || shown.Visible != control.Visible) {
    if (!control.Visible) DropFocusIn(widget);
    widget->setVisible(control.Visible);
  }
  if (!shown.Known || shown.Enabled != control.Enabled) {
    if (!control.Enabled) DropFocusIn(widget);
    widget->setEnabled(control.Enabled);
  }
  if (!shown.Known || shown.ToolTip != control.ToolTip) widget->setToolTip(TipOf(control));
  if (shown.BackColour != control.BackColour || shown.ForeColour != control.ForeColour) {
    ShowColours(widget, control, look);
  }
  if (control.LeaveWanted) {
    control.LeaveWanted = false;
    if (widget->hasFocus()) widget->clearFocus();
  }
  shown = {true,
           control.Visible,
           control.Enabled,
           control.ToolTip,
           control.BackColour,
           control.ForeColour};
}

// "&" in a caption reads as itself on our widgets; the logic's doubled ones become single again.
QString CaptionText(const std::string& caption) {
  return ToQt(caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
}
QString ButtonText(const std::string& caption) {
  return CaptionText(caption).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

struct ShownCaption {
  bool Known = false;
  std::string Caption;
  std::string ToolTip;
  QString Name;
};

// What a screen reader says: a name that the window has given stays; else it is the caption where
// that is a word, else what the tool tip begins with.
void ShowName(QWidget* widget, const std::string& caption, const std::string& tip, QString& shown) {
  if (widget->accessibleName() != shown) return;
  QString name = CaptionText(caption).trimmed();
  const QString told = ToQt(tip).section(QStringLiteral(" / "), 0, 0);
  const auto letters =
      std::count_if(name.begin(), name.end(), [](QChar c) { return c.isLetter(); });
  if (letters < 2 && !told.isEmpty()) name = told;
  if (name.isEmpty()) name = SpokenOfEmpty(widget);
  if (name.isEmpty()) return;
  shown = name;
  widget->setAccessibleName(name);
}

void ShowCaption(QAbstractButton* widget, const std::string& caption, const std::string& tip,
                 ShownCaption& shown) {
  if (shown.Known && shown.Caption == caption && shown.ToolTip == tip) return;
  if (!shown.Known || shown.Caption != caption) {
    if (!widget->property("picture_only").toBool()) widget->setText(ButtonText(caption));
  }
  ShowName(widget, caption, tip, shown.Name);
  shown.Known = true;
  shown.Caption = caption;
  shown.ToolTip = tip;
}

void ShowWhileEmpty(QComboBox* widget, const QString& text) {
  if (widget->isEditable()) return widget->lineEdit()->setPlaceholderText(text);
  widget->setPlaceholderText(text);
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

// Held for `repeat_ms` and each time again; 0: once, when it is let go.
void ShowRepeat(QAbstractButton* widget, int repeat_ms) {
  if (widget->autoRepeat() == (repeat_ms > 0)) return;
  widget->setAutoRepeat(repeat_ms > 0);
  widget->setAutoRepeatDelay(repeat_ms);
  widget->setAutoRepeatInterval(repeat_ms);
}

}  // namespace

void Binder::Raise(const Event& event) {
  if (event) loop_.RunStep(event);
}

void Binder::Press(const Control& control, const Event& act) {
  loop_.Press(
      &control, control.PressesInWaits, act ? act : [] {});
}

void Binder::BindCommon(QWidget* widget, Control& control, bool press_is_click) {
  NameAfter(widget, control);
  watched_.push_back({widget, &control, nullptr, press_is_click});
  widget->installEventFilter(this);
  if (control.RightClick) new CornerMark(widget);
  focus_wishes_.push_back({widget, &control});
  outs_.push_back([widget, &control, this, shown = Shown{}]() mutable {
    ShowCommon(widget, control, shown, look_);
  });
}

void Binder::BindKeys(QWidget* widget, std::function<void(KeyPress)> key_down) {
  for (Watched& watched : watched_) {
    if (watched.Widget != widget) continue;
    watched.KeyDown = std::move(key_down);
    return;
  }
}

void Binder::Bind(QAbstractButton* widget, Button& control) {
  BindCommon(widget, control);
  // One that repeats acts when it goes down, and not once more when it is let go.
  connect(widget, &QAbstractButton::clicked, this, [this, &control] {
    if (control.RepeatMs == 0) Press(control, control.Click);
  });
  connect(widget, &QAbstractButton::pressed, this, [this, &control] {
    if (control.RepeatMs > 0) Press(control, control.Click);
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    ShowRepeat(widget, control.RepeatMs);
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

void Binder::Bind(QAbstractButton* widget, CheckBox& control) {
  BindCommon(widget, control);
  SetAccessibleRole(widget, QAccessible::CheckBox);
  widget->setCheckable(true);
  const bool three_states = widget->property("three_states").toBool();
  connect(widget, &QAbstractButton::clicked, this, [this, &control, three_states] {
    Press(control, [&control, three_states] {
      control.Value = (control.Value + 1) % (three_states ? 3 : 2);
      if (control.Click) control.Click();
    });
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    if (widget->isChecked() != (control.Value != 0)) {
      const QSignalBlocker quiet(widget);
      widget->setChecked(control.Value != 0);
    }
    if (widget->property("third_state").toBool() != (control.Value == 2)) {
      widget->setProperty("third_state", control.Value == 2);
      widget->update();
    }
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

void Binder::Bind(QAbstractButton* widget, OptionButton& control) {
  BindCommon(widget, control);
  SetAccessibleRole(widget, QAccessible::RadioButton);
  widget->setCheckable(true);
  connect(widget, &QAbstractButton::clicked, this, [this, &control] {
    Press(control, [&control] {
      control.Value = true;
      if (control.Click) control.Click();
    });
  });
  outs_.push_back([widget, &control, shown = ShownCaption()]() mutable {
    if (widget->isChecked() != control.Value) {
      const QSignalBlocker quiet(widget);
      widget->setChecked(control.Value);
    }
    ShowCaption(widget, control.Caption, control.ToolTip, shown);
  });
}

void Binder::Bind(QLabel* widget, Label& control) {
  BindCommon(widget, control, true);
  if (control.Click) SetAccessibleRole(widget, QAccessible::Button);
  widget->setTextFormat(Qt::PlainText);
  outs_.push_back([widget, &control, caption = std::string("\x01")]() mutable {
    if (caption == control.Caption) return;
    caption = control.Caption;
    widget->setText(CaptionText(caption));
    widget->setAccessibleName(widget->text());
  });
}

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

void Binder::Bind(QListView* widget, QStringListModel* model, ListBox& control) {
  BindCommon(widget, control);
  new RightHold(widget, loop_, control, this);
  widget->setModel(model);
  connect(widget, &QListView::clicked, this, [this, &control](const QModelIndex& index) {
    // Noted at once: a press that is kept while the program waits opens the row that was pressed,
    // wherever a renewal puts it meanwhile.
    control.ListIndex = index.row();
    Press(control, control.Click);
  });
  connect(widget, &QListView::activated, this, [this, &control](const QModelIndex& index) {
    control.ListIndex = index.row();
    Press(control, control.DoubleClick ? control.DoubleClick : control.Click);
  });
  BindPlace(widget, control);
  // What is not shown is passed over by what the list itself is told, never by what the window
  // happens to show: its panel may come a moment later, its page any time, with rows of before.
  outs_.push_back(
      [widget, model, &control, revision = ~std::uint64_t{0}, row = -1, top = -1]() mutable {
        if (!control.Visible) return;
        // What moves here is no work of the operator's.
        widget->setProperty("quiet", true);
        const auto loud = qScopeGuard([widget] { widget->setProperty("quiet", false); });
        if (revision != control.Revision ||
            model->rowCount() != static_cast<int>(control.Items.size())) {
          revision = control.Revision;
          QStringList lines;
          lines.reserve(static_cast<qsizetype>(control.Items.size()));
          for (const std::string& item : control.Items)
            lines.append(ToQt(item));
          model->setStringList(lines);
          row = -1;
          top = -1;
        }
        if (row == control.ListIndex && top == control.TopIndex) return;
        row = control.ListIndex;
        const QModelIndex index = model->index(row, 0);
        widget->setCurrentIndex(index);
        if (top != control.TopIndex) {
          top = control.TopIndex;
          const QModelIndex shown = model->index(std::min(top, model->rowCount() - 1), 0);
          if (shown.isValid()) widget->scrollTo(shown, QAbstractItemView::PositionAtTop);
        }
      });
}

// Where the operator goes in a list by keys, wheel and bar: the next renewal keeps to it.
void Binder::BindPlace(QListView* widget, ListBox& control) {
  const auto quiet = [widget] { return widget->property("quiet").toBool(); };
  connect(widget->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [quiet, &control](const QModelIndex& now) {
            if (!quiet() && now.isValid()) control.ListIndex = now.row();
          });
  connect(widget->verticalScrollBar(), &QScrollBar::valueChanged, this,
          [quiet, &control](int first_row) {
            if (!quiet()) control.TopIndex = first_row;
          });
  Watched row{widget->viewport(), &control, nullptr, false};
  row.List = &control;
  watched_.push_back(row);
  widget->viewport()->installEventFilter(this);
  widget->viewport()->setMouseTracking(true);
}

// While the operator aims, the rows stay where he sees them.
void Binder::AimAt(ListBox& list) {
  list.Held = true;
  const int aim = ++aims_;
  QTimer::singleShot(kAimMilliseconds, this, [this, aim, &list] {
    if (aim == aims_ && QApplication::mouseButtons() == Qt::NoButton) list.Held = false;
  });
}

void Binder::Bind(FillBarWidget* widget, FillBar& control) {
  BindCommon(widget, control, true);
  SetAccessibleRole(widget, QAccessible::ProgressBar);
  outs_.push_back([widget, &control, name = QString()]() mutable {
    ShowName(widget, {}, control.ToolTip, name);
    widget->Show(control.FilledPx, control.FullWidthPx, PlainColour(control.Colour));
  });
}

void Binder::Bind(QWidget* widget, Frame& control) {
  BindCommon(widget, control, true);
  // What is opened last lies on top.
  outs_.push_back([widget, &control, shown = control.Visible]() mutable {
    if (control.Visible && !shown) widget->raise();
    shown = control.Visible;
  });
}

void Binder::ControlsOut() {
  for (const auto& out : outs_)
    out();
  TakeFocusWishes();
}

// When all is visible that is to be.
void Binder::TakeFocusWishes() {
  for (const FocusWish& wish : focus_wishes_) {
    if (!wish.Subject->FocusWanted) continue;
    wish.Subject->FocusWanted = false;
    if (wish.Widget) wish.Widget->setFocus(Qt::OtherFocusReason);
  }
}

// True: the widget itself does not get it.
bool Binder::Released(const Watched& row, const QMouseEvent& event) {
  const Event& click = row.Subject->Click;
  if (!row.PressIsClick || !click || event.button() != Qt::LeftButton) return false;
  if (!row.Subject->Enabled) return false;
  const auto* label = qobject_cast<const QLabel*>(row.Widget);
  const bool selects =
      label != nullptr && label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
  // Whoever has just selected a text wants to copy it.
  const bool selected = selects && label->hasSelectedText();
  const bool of_text = qobject_cast<const QPlainTextEdit*>(row.Widget->parent()) != nullptr;
  if (!selected) Press(*row.Subject, click);
  return !selects && !of_text;
}

bool Binder::Pressed(const Watched& row, const QKeyEvent& event) {
  const Control& control = *row.Subject;
  // A key that is leaned on presses once. In fields it types on.
  if (event.isAutoRepeat() && IsPressKey(row, event)) return true;
  if (control.RightClick && IsRightClickKey(event)) {
    Press(control, control.RightClick);
    return true;
  }
  // A button acts when its key goes down: one that is held comes up and down again by itself.
  if (auto* button = qobject_cast<QAbstractButton*>(row.Widget); button && PressesButton(event)) {
    button->click();
    return true;
  }
  if (row.PressIsClick && control.Click && IsClickKey(event)) {
    Press(control, control.Click);
    return true;
  }
  if (!row.KeyDown) return false;
  loop_.RunStep([&] { row.KeyDown(KeyPressOf(event)); });
  // Enter that a field has acted on goes no further: what it closed has given the focus to the map
  // by now, which would take it for a press of its own.
  return EnterPresses && IsEnterKey(event) && qobject_cast<QLineEdit*>(row.Widget) != nullptr;
}

bool Binder::PressesButton(const QKeyEvent& event) const {
  return IsClickKey(event) && (EnterPresses || event.key() == Qt::Key_Space);
}

bool Binder::IsPressKey(const Watched& row, const QKeyEvent& event) {
  if (IsRightClickKey(event)) return true;
  if (!IsClickKey(event)) return false;
  const bool types = row.KeyDown && event.key() == Qt::Key_Space;
  return !types && qobject_cast<QPlainTextEdit*>(row.Widget) == nullptr;
}

void Binder::NoteHold(const Watched& row, bool held) {
  if (row.List != nullptr) row.List->Held = held;
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

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  for (const Watched& row : watched_) {
    if (row.Widget != watched) continue;
    Control& control = *row.Subject;
    switch (event->type()) {
      case QEvent::FocusIn:
        control.HasFocus = true;
        if (row.Field != nullptr) Raise(row.Field->GotFocus);
        break;
      case QEvent::FocusOut:
        control.HasFocus = false;
        if (row.Choice != nullptr) return Leave(row, *static_cast<QFocusEvent*>(event));
        break;
      case QEvent::ContextMenu:
        // A disabled widget would not act on it; here it is seen before.
        if (!control.RightClick || !control.Enabled) break;
        Press(control, control.RightClick);
        return true;
      case QEvent::MouseButtonPress:
        NoteHold(row, true);
        break;
      case QEvent::MouseMove:
        if (row.List != nullptr) AimAt(*row.List);
        break;
      case QEvent::MouseButtonRelease:
        NoteHold(row, false);
        if (Released(row, *static_cast<QMouseEvent*>(event))) return true;
        break;
      case QEvent::KeyPress:
        if (Pressed(row, *static_cast<QKeyEvent*>(event))) return true;
        break;
      case QEvent::KeyRelease:
        if (qobject_cast<QAbstractButton*>(watched) == nullptr) break;
        if (PressesButton(*static_cast<QKeyEvent*>(event))) return true;
        break;
      case QEvent::Wheel:
        // A list under a scrolling hand keeps its choice.
        if (qobject_cast<QComboBox*>(watched) == nullptr || control.HasFocus) break;
        event->ignore();
        return true;
      default:
        break;
    }
    break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zepril
