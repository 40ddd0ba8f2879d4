// Shows what is printed and typed, and settles half a line when the terminal closes.
#include "links/terminal.h"

#include <string_view>

#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "links/modem_kind.h"
#include "links/setup_sequences.h"

namespace zepril {
namespace {

constexpr char kBackspace = 8;

void AddTo(std::string& text, std::string_view more) {
  text += more;
  if (text.size() > Terminal::kLongestText) text = Right(text, Terminal::kKeptText);
}

}  // namespace

Terminal::Terminal(const RadioState& radio, TerminalControls& controls, TerminalTools tools)
    : radio_(radio), controls_(controls), tools_(tools) {
  controls_.Frame19.Visible = false;
  controls_.Command65.Enabled = false;
  controls_.Command65.Click = [this] {
    if (!MayOpen || MayOpen()) Open();
  };
  controls_.Command66.Click = [this] { Close(); };
  controls_.Text19.KeyTyped = [this](char character) { KeyTyped(character); };
  // Typing goes on wherever the operator has clicked.
  controls_.Text20.Click = [this] { controls_.Text19.FocusWanted = true; };
}

void Terminal::Enable() {
  controls_.Command65.Enabled = true;
}

void Terminal::Open() {
  tools_.Timer1.Stop();
  controls_.Text19.Text.clear();
  controls_.Text20.Text.clear();
  half_line_ = 0;
  controls_.Frame19.Visible = true;
  controls_.Text19.FocusWanted = true;
  if (Changed) Changed();
}

void Terminal::KeyTyped(char character) {
  AddTo(controls_.Text19.Text, {&character, 1});
  tools_.Port.Write({&character, 1});
  CountTyped(character);
}

// As the modem does.
void Terminal::CountTyped(char character) {
  const ModemKind* kind = ModemKindOf(ModeOf(radio_));
  if (!kind) return;
  if (kind->KeysThatEndALine.find(character) != std::string_view::npos) {
    half_line_ = 0;
  } else if (kind->KeysThatBeginACommand.find(character) != std::string_view::npos) {
    half_line_ = 1;
  } else if (character == kBackspace) {
    half_line_ -= half_line_ > 0 ? 1 : 0;
  } else if (character != '\n' || half_line_ > 0) {
    ++half_line_;
  }
}

bool Terminal::HasHalfLine() const {
  return IsOpen() && half_line_ > 0 && tools_.Port.IsOpen();
}

void Terminal::WipeHalfLine() {
  if (HasHalfLine()) tools_.Port.Write(WipeLineBytes(radio_));
  half_line_ = 0;
}

void Terminal::SettleHalfLine() {
  if (!HasHalfLine()) return;
  const DialogAnswer answer = tools_.Boxes.Ask(boxes::kTerminalTitle, boxes::kHalfLine,
                                               DialogButtons::YesNo, DialogAnswer::No);
  if (answer != DialogAnswer::Yes) return WipeHalfLine();
  tools_.Port.Write("\r");
  half_line_ = 0;
}

void Terminal::DataArrived() {
  if (!IsOpen()) return;
  const std::string received = tools_.Port.ReadAll();
  if (received.empty()) return;
  AddTo(controls_.Text20.Text, received);
  controls_.Text19.FocusWanted = true;
}

void Terminal::Close() {
  SettleHalfLine();
  controls_.Frame19.Visible = false;
  if (Changed) Changed();
  tools_.Timer1.Enable();
  tools_.Timer2.Enable();
  tools_.Map.MapRefresh();
}

}  // namespace zepril
