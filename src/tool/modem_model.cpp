// What all models share: bytes to lines, settings, power, packets for the air.
#include "tool/modem_model.h"

#include <utility>

#include "core/text_fields.h"

namespace zepril {

std::string CommaList(std::string_view words) {
  std::string list;
  std::string word;
  const auto take = [&] {
    if (!word.empty() && word != "VIA") list += (list.empty() ? "" : ",") + word;
    word.clear();
  };
  for (const char c : words) {
    if (c == ' ' || c == ',') {
      take();
    } else {
      word += UpperChar(c);
    }
  }
  take();
  return list;
}

std::string ModemModel::Take(std::string_view bytes) {
  for (const char byte : bytes)
    TakeByte(byte);
  return std::exchange(printed_, {});
}

void ModemModel::TakeByte(char byte) {
  constexpr char kBackspace = 8;
  const bool behind_return = std::exchange(behind_return_, byte == '\r');
  if (TakeControl(byte) || (byte == '\n' && behind_return)) return;
  if (byte == '\r') {
    if (Echoes()) Print("\r\n");
    TakeLine(std::exchange(line_, {}));
    return;
  }
  if (Echoes()) Print({&byte, 1});
  if (byte == kBackspace) {
    if (!line_.empty()) line_.pop_back();
  } else if (line_.size() < kLongestLine) {
    line_ += byte;
  }
}

void ModemModel::LosePower() {
  settings_.clear();
  DropLine();
  behind_return_ = false;
  Reset();
}

int ModemModel::Aired(const std::string& call) const {
  const auto found = aired_.find(call);
  return found == aired_.end() ? 0 : found->second;
}

std::string ModemModel::Setting(std::string_view name) const {
  const auto found = settings_.find(name);
  return found == settings_.end() ? std::string() : found->second;
}

void ModemModel::Set(std::string_view name, std::string_view value) {
  settings_.insert_or_assign(std::string(name), std::string(value));
}

void ModemModel::SetFirstValues(std::span<const ModemCommand> commands) {
  for (const ModemCommand& command : commands) {
    if (command.Value != CommandValue::Action) Set(command.Name, command.First);
  }
}

void ModemModel::TellCommand(const std::string& command) const {
  if (CommandCame) CommandCame(command);
}

void ModemModel::Send(const std::string& mode, const std::string& from, const std::string& unproto,
                      const std::string& text) {
  ++aired_[from];
  const std::string calls = CommaList(unproto);
  const std::size_t comma = calls.find(',');
  ModemSending sending{mode, from, calls.substr(0, comma), {}, text};
  if (comma != std::string::npos) sending.Path = calls.substr(comma + 1);
  if (Sent) Sent(sending);
}

}  // namespace zepril
