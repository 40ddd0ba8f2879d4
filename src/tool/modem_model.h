// A packet modem on a serial line, as far as a station program can tell: bytes in, bytes out. It
// echoes and prompts, keeps what it is set to, prints the packets that it hears in its own dialect
// and tells what it was asked to transmit. Nothing goes on the air, and no time passes.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>

#include "platform/event.h"
#include "tool/air_script.h"

namespace zepril {

// What a program had a modem transmit.
struct ModemSending {
  std::string Mode;  // radio speed as the modem calls it: "300", "R300", "1200"
  std::string From;
  std::string To;
  std::string Path;  // comma list, empty without digipeaters
  std::string Text;
};

enum class CommandValue {
  Text,
  OnOff,   // "ON" and "OFF" only
  Action,  // takes none
};

// A row of a modem's commands.
struct ModemCommand {
  std::string_view Name;
  std::string_view First;  // value before anybody has set one
  CommandValue Value = CommandValue::Text;
  std::size_t Shortest = 0;  // letters that suffice, where the modem takes short forms
};

class ModemModel {
 public:
  // Bytes of a line beyond this many are dropped.
  static constexpr std::size_t kLongestLine = 1024;

  virtual ~ModemModel() = default;

  // "pk232": the modem in one word.
  virtual std::string_view Name() const = 0;
  // What it prints in answer to `bytes`.
  std::string Take(std::string_view bytes);
  // What it prints when it hears `packet`: nothing unless it was told to monitor.
  virtual std::string Heard(const AirPacket& packet) const = 0;
  // A program has brought it to where text is transmitted and packets are monitored.
  virtual bool Runs() const = 0;

  // What `name` is set to: "MYCALL", "%B". Empty when that was never set and has no first value.
  std::string Setting(std::string_view name) const;

  // Its power was off for a moment: it has forgotten all that it was told, half a line too.
  void LosePower();
  // Packets that it was asked to transmit under `call`.
  int Aired(const std::string& call) const;

  // A line that was taken for a command, without its end.
  Event<const std::string&> CommandCame;
  Event<const ModemSending&> Sent;

 protected:
  // As it comes from the shop: the values of its settings, and where its lines go.
  virtual void Reset() = 0;
  // A byte that does something at once; true when it belongs to no line.
  virtual bool TakeControl(char byte) = 0;
  virtual void TakeLine(const std::string& line) = 0;
  virtual bool Echoes() const = 0;

  void Print(std::string_view text) { printed_ += text; }
  void Set(std::string_view name, std::string_view value);
  void SetFirstValues(std::span<const ModemCommand> commands);
  void TellCommand(const std::string& command) const;
  void Send(const std::string& mode, const std::string& from, const std::string& unproto,
            const std::string& text);
  bool AtLineBegin() const { return line_.empty(); }
  void DropLine() { line_.clear(); }

 private:
  void TakeByte(char byte);

  std::map<std::string, std::string, std::less<>> settings_;
  std::map<std::string, int, std::less<>> aired_;  // by call
  std::string line_;
  std::string printed_;
  bool behind_return_ = false;
};

// Words that blanks, commas or "VIA" separate, joined by commas: "ZEPR VIA WIDE1-1 WIDE2-1" gives
// "ZEPR,WIDE1-1,WIDE2-1".
std::string CommaList(std::string_view words);

}  // namespace zepril
