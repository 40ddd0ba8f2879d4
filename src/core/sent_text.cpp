// Blanks in place of control characters, and paths without their empty elements.
#include "core/sent_text.h"

#include <algorithm>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {

std::string WithoutControlCharacters(std::string_view text) {
  std::string plain(text);
  std::replace_if(plain.begin(), plain.end(), IsControlCharacter, ' ');
  return plain;
}

std::string WithoutEmptyElements(std::string_view path) {
  std::string list;
  for (const std::string_view element : Split(path, ',')) {
    if (Trim(WithoutControlCharacters(element)).empty()) continue;
    if (!list.empty()) list += ',';
    list += element;
  }
  return list;
}

}  // namespace zepril
