// The windows' controls as plain values. Logic reads and writes these and never sees a widget; the
// desktop copies them to widgets and raises the events. Only what the operator does raises an
// event; an assignment never does. Texts are code page 1252.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/state_colours.h"
#include "platform/event.h"

namespace zepril {

struct KeyPress {
  int Code = 0;   // virtual key code: 13 Enter, 37 to 40 arrows, otherwise the character's code
  int Shift = 0;  // 1 Shift, 2 Ctrl, 4 Alt, added up
};

struct MousePress {
  int Button = 1;  // 1 left, 2 right
  int Shift = 0;
  double X = 0.0;  // pixels from the control's top left
  double Y = 0.0;
};

enum class PointerShape { Default, Hourglass };

// What becomes of the operator's presses of a control while the program waits: one of them acts
// afterwards, or none.
enum class Presses { OneKept, Dropped };

// What every control has. Colours are state values 0xBBGGRR; the desktop maps each to a shade of
// the palette in use. Nothing set: the control's usual colour.
struct Control {
  bool Visible = true;
  bool Enabled = true;
  std::string ToolTip;
  std::optional<std::uint32_t> BackColour;
  std::optional<std::uint32_t> ForeColour;
  int WidthPx = 0;           // 0: by layout
  bool FocusWanted = false;  // taken and cleared by the desktop
  bool LeaveWanted = false;  // gives the focus back to the map; taken and cleared by the desktop
  bool HasFocus = false;     // set by the desktop
  Presses PressesInWaits = Presses::OneKept;
  bool PressWaits = false;  // pressed in the step under way, not acted on yet; set by the desktop

  // From the control's row in core/texts, empty without one.
  std::string Name;        // of its widget too
  std::string Called;      // the label beside a field, and what a screen reader says
  std::string WhileEmpty;  // what stands in an empty field; said of a control without a caption
  std::string KeyName;     // the key that does the same, told in the tool tip

  Event<> Click;
  Event<> RightClick;
  Event<> DoubleClick;
};

struct Label : Control {
  std::string Caption;
};

struct Button : Control {
  std::string Caption;
  int RepeatMs = 0;  // held down it clicks again after each of these; 0: once
};

struct CheckBox : Control {
  std::string Caption;
  int Value = 0;  // 0 off, 1 on, 2 third state
};

struct OptionButton : Control {
  std::string Caption;
  bool Value = false;
};

struct TextBox : Control {
  std::string Text;
  Event<> Change;
  Event<> GotFocus;
  Event<KeyPress> KeyDown;
  // Where this is set the field takes no typing by itself: each single key with a character comes
  // here (13 Enter, 8 Backspace, 27 Esc, 1 to 26 with Ctrl), a pasted text does not.
  Event<char> KeyTyped;
};

struct ComboBox : Control {
  std::string Text;  // of an editable field, or of the selected entry
  std::vector<std::string> Items;
  int ListIndex = -1;           // 0-based, -1 none
  bool DropDownWanted = false;  // the list is to be opened; taken and cleared by the desktop
  Event<> Change;               // an entry was chosen; what is typed tells itself by KeyDown only
  Event<> Left;                 // the operator went elsewhere in the window
  Event<KeyPress> KeyDown;
  double LastKeySeconds = -60.0;  // monotonic, of the last key; where the room's KeyDown keeps it

  // The selected entry, or an empty text.
  std::string Selected() const {
    return ListIndex >= 0 && ListIndex < static_cast<int>(Items.size())
               ? Items[static_cast<std::size_t>(ListIndex)]
               : std::string();
  }
  void Select(int index) {
    ListIndex = index;
    Text = Selected();
  }
};

struct ListBox : Control {
  std::vector<std::string> Items;
  std::uint64_t Revision = 0;  // raised by whoever changes Items
  int ListIndex = -1;          // 0-based; the desktop tells what the operator selects
  int TopIndex = 0;            // first row shown; the desktop tells where the operator scrolls to
  bool Held = false;           // set by the desktop: a button is down on a row
  Event<> RightDown;           // the second mouse button goes down over the list, and up again
  Event<> RightUp;
};

struct Frame : Control {
  std::string Caption;
};

// A bar that fills: width in pixels of `FullWidthPx`.
struct FillBar : Control {
  int FilledPx = 0;
  int FullWidthPx = 120;
  std::uint32_t Colour = state_colours::kBar;
};

struct PictureBox : Control {
  PointerShape Pointer = PointerShape::Default;
  std::uint64_t Revision = 0;  // raised when the picture was painted anew
  Event<MousePress> MouseDown;
  Event<MousePress> MouseMove;
  Event<MousePress> MouseUp;
  Event<KeyPress> KeyDown;
};

// Shows a picture file, scaled to fit. An empty path shows `Caption` alone.
struct ImageView : Control {
  std::string Path;            // as the operator wrote it
  std::string Caption;         // in place of a picture that can't be shown
  std::uint64_t Revision = 0;  // raised when the file is to be read anew
};

}  // namespace zepril
