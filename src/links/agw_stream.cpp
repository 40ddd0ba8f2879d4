// Finds the next plausible header, and brings monitor text to its usual ending.
#include "links/agw_stream.h"

#include <utility>

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {
namespace {

bool Plausible(std::string_view header, const AgwFrameFields& fields) {
  const bool kind_is_letter =
      (fields.Kind >= 'A' && fields.Kind <= 'Z') || (fields.Kind >= 'a' && fields.Kind <= 'z');
  return kind_is_letter && fields.DataLength <= AgwStream::kLongestData && header[1] == '\0' &&
         header[2] == '\0' && header[3] == '\0';
}

bool IsMonitorText(std::string_view data) {
  constexpr std::size_t kPortDigits = 4;
  const std::size_t found = data.find(":Fm ");
  return found != std::string_view::npos && found <= kPortDigits;
}

// Unnumbered information, from `begins` on: all that only ends it becomes one pair of returns.
// Some radios send information that itself ends in returns or line feeds; they are no part of what
// is told.
std::string WithOnePair(std::string_view data, std::size_t begins) {
  std::size_t end = data.size();
  const auto only_ends = [](char c) { return c == '\0' || c == '\r' || c == '\n'; };
  while (end > begins && only_ends(data[end - 1]))
    --end;
  return std::string(data.substr(0, end)) + "\r\r";
}

// Other monitor text keeps its returns; a pair is made of them where it ended in zeros.
std::string WithPairForZeros(std::string_view data) {
  std::string text(data.substr(0, data.find_last_not_of('\0') + 1));
  while (!text.ends_with("\r\r"))
    text += '\r';
  return text;
}

// The frame with another text, told in its length.
std::string WithText(std::string_view frame, const std::string& text) {
  std::string mended(frame.substr(0, kAgwHeaderLength));
  mended[28] = Chr(static_cast<int>(text.size() % 256));
  mended[29] = Chr(static_cast<int>(text.size() / 256 % 256));
  mended[30] = Chr(static_cast<int>(text.size() / 65536));
  return mended + text;
}

}  // namespace

AgwStream::AgwStream(std::function<void(std::string_view)> frame) : frame_(std::move(frame)) {}

void AgwStream::Feed(std::string_view bytes) {
  pending_ += bytes;
  std::size_t at = 0;
  while (pending_.size() - at >= kAgwHeaderLength) {
    const std::string_view rest = std::string_view(pending_).substr(at);
    const AgwFrameFields fields = ReadAgwHeader(rest);
    if (!Plausible(rest, fields)) {
      const std::string raw(rest);
      pending_.clear();
      frame_(raw);
      return;
    }
    const std::size_t whole = kAgwHeaderLength + fields.DataLength;
    if (rest.size() < whole) break;
    frame_(WithMonitorEnding(rest.substr(0, whole)));
    at += whole;
  }
  pending_.erase(0, at);
}

void AgwStream::GiveUp() {
  const std::string raw = std::exchange(pending_, {});
  if (!raw.empty()) frame_(raw);
}

std::string WithMonitorEnding(std::string_view frame) {
  const std::string_view data = frame.substr(kAgwHeaderLength);
  if (!IsMonitorText(data)) return std::string(frame);
  const std::size_t line_end = data.find('\r');
  const bool unproto =
      line_end != std::string_view::npos && data.substr(0, line_end).find(" <U") < line_end;
  if (unproto) return WithText(frame, WithOnePair(data, line_end + 1));
  return data.ends_with('\0') ? WithText(frame, WithPairForZeros(data)) : std::string(frame);
}

}  // namespace zepril
