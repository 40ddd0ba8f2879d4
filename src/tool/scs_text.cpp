// Prints monitor text, and finds a command by its beginning.
#include "tool/scs_text.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {

std::string ScsMonitorText(const AirPacket& packet) {
  std::string text = "fm " + packet.From + " to " + packet.To;
  if (!packet.Via.empty()) {
    std::string via = packet.Via;
    std::replace(via.begin(), via.end(), ',', ' ');
    text += " via " + via;
  }
  return text + " ctl UI pid F0\r\n" + packet.Information + "\r\n";
}

const ModemCommand* FindScsCommand(std::span<const ModemCommand> commands, std::string_view line,
                                   bool behind_blank) {
  const std::string upper = Upper(line);
  const ModemCommand* found = nullptr;
  for (const ModemCommand& command : commands) {
    if (!upper.starts_with(command.Name)) continue;
    if (behind_blank && upper.size() > command.Name.size() && upper[command.Name.size()] != ' ') {
      continue;
    }
    if (found == nullptr || found->Name.size() < command.Name.size()) found = &command;
  }
  return found;
}

}  // namespace zepril
