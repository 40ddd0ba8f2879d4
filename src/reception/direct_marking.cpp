// Puts an asterisk behind the sender of each header that has none.
#include "reception/direct_marking.h"

#include <string_view>

namespace zepril {

void MarkDirectSenders(std::string& collected) {
  constexpr std::size_t kFirstOffset = 4;  // column 5
  constexpr std::size_t kBeforeColon = 3;  // "UI" and one character
  constexpr std::string_view kHeaderEnd = ":\r\n";
  std::size_t colon = collected.find(kHeaderEnd, kFirstOffset + kBeforeColon);
  while (colon != std::string::npos) {
    std::size_t next = colon + kHeaderEnd.size();
    const std::size_t marker = colon - kBeforeColon;
    if (collected[marker] == 'U' && collected[marker + 1] == 'I') {
      const std::size_t feed = collected.rfind('\n', marker);
      const std::size_t begin = feed == std::string::npos ? 0 : feed + 1;
      const std::string_view header(collected.data() + begin, marker - begin);
      const std::size_t path = header.find('>');
      if (path != std::string_view::npos && header.find('*') == std::string_view::npos) {
        collected.insert(begin + path, 1, '*');
        ++next;
      }
    }
    colon = collected.find(kHeaderEnd, next);
  }
}

}  // namespace zepril
