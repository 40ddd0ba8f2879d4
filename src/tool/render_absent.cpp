// The render command of a tool that was built without the toolkit.
#include <cstdio>

#include "tool/render_command.h"

namespace zepril {

int RunRender(std::span<const std::string_view>) {
  std::fputs("zepril-tool render: this tool was built without the toolkit that paints\n", stderr);
  return 1;
}

}  // namespace zepril
