// Each byte to its code point, and each code point to its byte.
#include "platform/qt/text.h"

#include <QList>

#include "platform/code_page.h"

namespace zepril {

QString ToQt(std::string_view code_page_text) {
  QString text;
  text.reserve(static_cast<qsizetype>(code_page_text.size()));
  for (char c : code_page_text) {
    text.append(QChar(static_cast<char16_t>(CodePointOfByte(static_cast<unsigned char>(c)))));
  }
  return text;
}

std::string FromQt(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (char32_t c : text.toUcs4())
    result += static_cast<char>(ByteOfCodePoint(c));
  return result;
}

}  // namespace zepril
