#include "links/terminal.h"

#include <string_view>

#include "core/baud_mode.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

void AddTo(std::string& text, std::string_view more) {
  text += more;
  if (text.size() > Terminal::kLongestText) text = Right(text, Terminal::kKeptText);
}

}  // namespace

Terminal::Terminal(TerminalControls& controls, TerminalTools tools)
    : controls_(controls), tools_(tools) {
  controls_.Frame19.Visible = false;
  controls_.Command65.Enabled = false;
  controls_.Command65.Click = [this] { Open(); };
  controls_.Command66.Click = [this] { Close(); };
  controls_.Text19.KeyTyped = [this](char character) { KeyTyped(character); };
  // Typing goes on wherever the operator has clicked.
  controls_.Text20.Click = [this] { controls_.Text19.FocusWanted = true; };
}

void Terminal::EnableFor(RadioMode mode) {
  controls_.Command65.Enabled = IsSerialModem(mode);
}

void Terminal::Open() {
  tools_.Timer1.Stop();
  controls_.Text19.Text.clear();
  controls_.Text20.Text.clear();
  controls_.Frame19.Visible = true;
  controls_.Text19.FocusWanted = true;
  if (Changed) Changed();
}

void Terminal::KeyTyped(char character) {
  AddTo(controls_.Text19.Text, {&character, 1});
  tools_.Port.Write({&character, 1});
}

void Terminal::DataArrived() {
  if (!IsOpen()) return;
  const std::string received = tools_.Port.ReadAll();
  if (received.empty()) return;
  AddTo(controls_.Text20.Text, received);
  controls_.Text19.FocusWanted = true;
}

void Terminal::Close() {
  controls_.Frame19.Visible = false;
  if (Changed) Changed();
  tools_.Timer1.Enable();
  tools_.Timer2.Enable();
  tools_.Map.MapRefresh();
}

}  // namespace zepril
