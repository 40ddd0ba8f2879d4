// The text of a page of any bytes: plain text as it came, HTML without more characters than it had,
// and nothing of its markup where its tags are whole.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "internet/body_text.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

std::string TextOf(const std::string& body, const char* type) {
  zepril::Page page;
  page.ContentType = type;
  page.Body = body;
  return zepril::BodyText(page);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string body(reinterpret_cast<const char*>(data), size);
  Require(TextOf(body, "text/plain") == body);
  // A block's name and its two signs stand for a line end of two.
  Require(TextOf(body, "text/html").size() <= body.size() + 2);
  Require(TextOf(body, "text/html; charset=utf-8").size() <= body.size() + 2);
  Require(TextOf(body, "").size() <= body.size() + 2);
  // Text in which nothing has a meaning comes through whole.
  std::string quiet;
  for (const char c : body) {
    if (c != '<' && c != '&' && c != '>') quiet += c;
  }
  Require(TextOf("<pre>" + quiet + "</pre>x", "text/html").find('<') == std::string::npos);
  const bool has_break = quiet.find_first_of("\r\n") != std::string::npos;
  if (!has_break && !quiet.empty()) {
    Require(TextOf("<pre>" + quiet + "</pre>", "text/html") == quiet);
  }
  return 0;
}
