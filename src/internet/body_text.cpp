// Tells HTML from plain text, and walks through the former once.
#include "internet/body_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
// A quoted value that does not end within this length is none.
constexpr std::size_t kLongestTag = 256;
constexpr std::size_t kLongestEntity = 12;

constexpr std::array<std::string_view, 3> kUnseen{"script", "style", "title"};
// Begin a line of their own, and so does what follows them.
constexpr std::array<std::string_view, 33> kBlocks{
    "address", "article", "aside", "blockquote", "body", "center", "dd", "div", "dl",
    "dt",      "footer",  "form",  "h1",         "h2",   "h3",     "h4", "h5",  "h6",
    "head",    "header",  "hr",    "html",       "li",   "main",   "ol", "p",   "pre",
    "section", "table",   "tbody", "thead",      "tr",   "ul"};
// What no plain text holds by chance.
constexpr std::array<std::string_view, 13> kTellTale{
    "html", "head", "body", "title", "pre", "br", "p", "div", "table", "h1", "h2", "h3", "span"};

struct Entity {
  std::string_view Name;
  unsigned char Byte;
};
constexpr std::array<Entity, 21> kEntities{{
    {"amp", '&'},     {"lt", '<'},    {"gt", '>'},      {"quot", '"'},   {"apos", '\''},
    {"nbsp", ' '},    {"deg", 0xB0},  {"plusmn", 0xB1}, {"sup2", 0xB2},  {"micro", 0xB5},
    {"middot", 0xB7}, {"Auml", 0xC4}, {"Ouml", 0xD6},   {"Uuml", 0xDC},  {"szlig", 0xDF},
    {"auml", 0xE4},   {"ouml", 0xF6}, {"uuml", 0xFC},   {"aring", 0xE5}, {"ndash", 0x96},
    {"mdash", 0x97},
}};

template <std::size_t kCount>
bool IsOneOf(const std::array<std::string_view, kCount>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsNameCharacter(char c) {
  const char lower = LowerChar(c);
  return (lower >= 'a' && lower <= 'z') || IsDigit(c);
}

// A piece of markup that begins at a "<".
struct Tag {
  std::string Name;  // in lower case, without "/"; empty for "<!doctype ...>" and the like
  bool Closes = false;
  std::size_t End = 0;  // behind the ">"
};

// The ">" that ends what begins at `at`; npos when there is none. One within a quoted value is
// passed over.
std::size_t EndOfTag(std::string_view html, std::size_t at) {
  char quote = '\0';
  const std::size_t limit = std::min(html.size(), at + kLongestTag);
  for (std::size_t i = at; i < limit; ++i) {
    if (quote != '\0') {
      if (html[i] == quote) quote = '\0';
    } else if ((html[i] == '"' || html[i] == '\'') && html[i - 1] == '=') {
      quote = html[i];
    } else if (html[i] == '>') {
      return i;
    }
  }
  return html.find('>', at);
}

// The tag at the "<" at `at`; nothing where that is a sign of the text.
std::optional<Tag> TagAt(std::string_view html, std::size_t at) {
  Tag tag;
  std::size_t i = at + 1;
  if (i < html.size() && html[i] == '/') {
    tag.Closes = true;
    ++i;
  }
  while (i < html.size() && IsNameCharacter(html[i]) && tag.Name.size() < kLongestTag)
    tag.Name += LowerChar(html[i++]);
  const bool declares = !tag.Closes && i < html.size() && (html[i] == '!' || html[i] == '?');
  if ((tag.Name.empty() || IsDigit(tag.Name.front())) && !declares) return std::nullopt;
  const std::size_t end = EndOfTag(html, i);
  if (end == std::string_view::npos) return std::nullopt;
  tag.End = end + 1;
  return tag;
}

bool HoldsMarkup(std::string_view body) {
  for (std::size_t at = body.find('<'); at < body.size(); at = body.find('<', at + 1)) {
    std::size_t i = at + 1;
    if (i < body.size() && body[i] == '/') ++i;
    std::string name;
    while (i < body.size() && IsNameCharacter(body[i]) && name.size() < 8)
      name += LowerChar(body[i++]);
    const bool ends = i < body.size() && (body[i] == '>' || body[i] == '/' || IsSpace(body[i]));
    if (ends && IsOneOf(kTellTale, name)) return true;
  }
  return false;
}

bool IsHtml(const Page& page) {
  if (InStr(Lower(page.ContentType), "html") != 0) return HoldsMarkup(page.Body);
  if (!Trim(page.ContentType).empty()) return false;
  const std::size_t first = page.Body.find_first_not_of(" \t\r\n");
  return first != std::string::npos && page.Body[first] == '<' && HoldsMarkup(page.Body);
}

// Text as it is seen: blanks that markup does not show are left out.
class SeenText {
 public:
  // A character that takes part in the running text.
  void Add(char c) {
    if (!IsSpace(c)) return AddFirm(c);
    blank_ = !text_.empty() && !text_.ends_with(kLineEnd);
  }
  // A character that stands as it is.
  void AddFirm(char c) {
    if (blank_) text_ += ' ';
    blank_ = false;
    text_ += c;
  }
  void BreakLine() {
    blank_ = false;
    text_ += kLineEnd;
  }
  void BeginLine() {
    blank_ = false;
    if (!text_.empty() && !text_.ends_with('\n')) text_ += kLineEnd;
  }
  std::string Taken() && {
    while (text_.ends_with(kLineEnd))
      text_.resize(text_.size() - kLineEnd.size());
    return std::move(text_);
  }

 private:
  std::string text_;
  bool blank_ = false;
};

// The byte of "&name;" at `at`, and where it ends.
struct EntityByte {
  char Byte;
  std::size_t End;
};

std::optional<std::uint32_t> CodeOf(std::string_view digits, std::uint32_t base) {
  std::uint32_t code = 0;
  for (const char c : digits) {
    const char lower = LowerChar(c);
    std::uint32_t value = base;
    if (IsDigit(c)) value = static_cast<std::uint32_t>(c - '0');
    if (lower >= 'a' && lower <= 'f') value = static_cast<std::uint32_t>(lower - 'a') + 10;
    if (value >= base) return std::nullopt;
    code = std::min(code * base + value, std::uint32_t{0x110000});
  }
  if (digits.empty()) return std::nullopt;
  return code;
}

std::optional<EntityByte> EntityAt(std::string_view html, std::size_t at) {
  const std::size_t end = html.substr(at, kLongestEntity).find(';');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view name = html.substr(at + 1, end - 1);
  if (name.starts_with('#')) {
    const bool hex = LowerChar(name.size() > 1 ? name[1] : ' ') == 'x';
    const auto code = CodeOf(name.substr(hex ? 2 : 1), hex ? 16 : 10);
    if (!code) return std::nullopt;
    // Pages number what stands between 128 and 159 by the code page.
    const bool of_page = *code >= 0x80 && *code < 0xA0;
    const unsigned char byte =
        of_page ? static_cast<unsigned char>(*code) : ByteOfCodePoint(char32_t{*code});
    return EntityByte{static_cast<char>(byte), at + end + 1};
  }
  for (const Entity& entity : kEntities) {
    if (entity.Name == name) return EntityByte{static_cast<char>(entity.Byte), at + end + 1};
  }
  return std::nullopt;
}

class HtmlWalk {
 public:
  explicit HtmlWalk(std::string_view html) : html_(html), last_end_(html.rfind('>')) {}

  std::string Text() && {
    while (at_ < html_.size()) {
      if (html_[at_] == '<' && TakeTag()) continue;
      if (html_[at_] == '&' && TakeEntity()) continue;
      TakeCharacter(html_[at_++]);
    }
    return std::move(seen_).Taken();
  }

 private:
  bool TakeTag() {
    if (last_end_ == std::string_view::npos || at_ > last_end_) return false;
    if (html_.substr(at_).starts_with("<!--")) {
      GoBehind("-->");
      return true;
    }
    const auto tag = TagAt(html_, at_);
    if (!tag) return false;
    at_ = tag->End;
    Follow(*tag);
    return true;
  }

  void Follow(const Tag& tag) {
    if (tag.Name == "br") seen_.BreakLine();
    if (tag.Name == "td" || tag.Name == "th") seen_.Add(' ');
    if (IsOneOf(kBlocks, tag.Name)) seen_.BeginLine();
    if (tag.Name == "pre") {
      in_pre_ = !tag.Closes;
      if (in_pre_ && html_.substr(at_).starts_with(kLineEnd)) at_ += kLineEnd.size();
      if (in_pre_ && html_.substr(at_).starts_with('\n')) ++at_;
    }
    if (!tag.Closes && IsOneOf(kUnseen, tag.Name)) PassOver(tag.Name);
  }

  // What stands up to the closing tag is no text.
  void PassOver(std::string_view name) {
    while (at_ < html_.size()) {
      GoBehind("</");
      if (!EqualFolded(html_.substr(at_, name.size()), name)) continue;
      GoBehind(">");
      return;
    }
  }

  void GoBehind(std::string_view mark) {
    const std::size_t found = html_.find(mark, at_);
    at_ = found == std::string_view::npos ? html_.size() : found + mark.size();
  }

  bool TakeEntity() {
    const auto entity = EntityAt(html_, at_);
    if (!entity) return false;
    at_ = entity->End;
    seen_.AddFirm(entity->Byte);
    return true;
  }

  void TakeCharacter(char c) { in_pre_ ? seen_.AddFirm(c) : seen_.Add(c); }

  std::string_view html_;
  std::size_t last_end_;  // behind it no markup can end
  std::size_t at_ = 0;
  bool in_pre_ = false;
  SeenText seen_;
};

}  // namespace

std::string BodyText(const Page& page) {
  if (!IsHtml(page)) return page.Body;
  // What the code page can't hold whole stays in the bytes that it came in.
  const bool utf8 = InStr(Lower(page.ContentType), "utf-8") != 0 && FitsCodePage(page.Body);
  const std::string html = utf8 ? CodePageFromUtf8(page.Body) : page.Body;
  return HtmlWalk(html).Text();
}

}  // namespace zepril
