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

std::string WithMonitorEnding(std::string_view frame) {
  std::string_view data = frame.substr(kAgwHeaderLength);
  if (!IsMonitorText(data) || data.back() != '\0') return std::string(frame);
  while (!data.empty() && data.back() == '\0')
    data.remove_suffix(1);
  std::string text(data);
  while (!text.ends_with("\r\r"))
    text += '\r';
  std::string mended(frame.substr(0, kAgwHeaderLength));
  mended[28] = Chr(static_cast<int>(text.size() % 256));
  mended[29] = Chr(static_cast<int>(text.size() / 256 % 256));
  mended[30] = Chr(static_cast<int>(text.size() / 65536));
  return mended + text;
}

}  // namespace zepril
