// zepril-tool: the companion of the station program for scripts, tests and batch work.
#include <cstdio>
#include <span>
#include <string_view>
#include <vector>

#include "tool/air_command.h"
#include "tool/arguments.h"
#include "tool/coords_command.h"
#include "tool/decode_command.h"
#include "tool/render_command.h"

namespace {

struct Command {
  std::string_view Name;
  std::string_view Help;
  int (*Run)(std::span<const std::string_view> args);
};

// Every command of the tool; a new one is a row here.
constexpr Command kCommands[] = {
    {"decode", zepril::kDecodeHelp, zepril::RunDecode},
    {"coords", zepril::kCoordsHelp, zepril::RunCoords},
    {"render", zepril::kRenderHelp, zepril::RunRender},
    {"air", zepril::kAirHelp, zepril::RunAir},
};

int PrintUsage() {
  std::fputs("usage: zepril-tool COMMAND [arguments]\n", stderr);
  for (const Command& command : kCommands) {
    std::fprintf(stderr, "  %-8.*s %.*s\n", static_cast<int>(command.Name.size()),
                 command.Name.data(), static_cast<int>(command.Help.size()), command.Help.data());
  }
  return zepril::Arguments::kUsageError;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> args(argv + (argc > 0 ? 1 : 0), argv + argc);
  if (args.empty()) return PrintUsage();
  for (const Command& command : kCommands) {
    if (command.Name == args.front()) return command.Run(std::span(args).subspan(1));
  }
  return PrintUsage();
}
