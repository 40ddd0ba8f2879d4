// The line of pages, and addresses as they can be sent.
#include "platform/page_fetcher.h"

#include <algorithm>
#include <utility>

namespace zepril {
namespace {

bool IsHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

// A "#" would begin what a browser keeps to itself; the server is to have all of the text.
bool CanStandInPath(char c) {
  const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
  constexpr std::string_view kSigns = "-._~:/?@!$&'()*+,;=";
  return letter || kSigns.find(c) != std::string_view::npos;
}

void AppendEncoded(std::string& text, char c) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(c);
  text += {'%', kHex[code / 16], kHex[code % 16]};
}

}  // namespace

std::string SendableUrl(std::string_view url) {
  const std::size_t scheme = url.find("://");
  const std::size_t host = scheme == std::string_view::npos ? 0 : scheme + 3;
  const std::size_t path = std::min(url.find_first_of("/?", host), url.size());
  std::string sendable(url.substr(0, path));
  for (std::size_t at = path; at < url.size(); ++at) {
    const bool encoded =
        url[at] == '%' && at + 2 < url.size() && IsHexDigit(url[at + 1]) && IsHexDigit(url[at + 2]);
    if (encoded || CanStandInPath(url[at])) {
      sendable += url[at];
    } else {
      AppendEncoded(sendable, url[at]);
    }
  }
  return sendable;
}

std::int64_t PageFetcher::Fetch(std::string url, Done done, Asking asking) {
  if (waiting_.size() >= kMostWaiting) return kNone;
  const std::int64_t number = ++last_number_;
  waiting_.push_back({number, std::move(url), std::move(done), asking});
  BeginNext();
  return number;
}

void PageFetcher::Drop(std::int64_t number) {
  std::erase_if(waiting_, [number](const Request& request) { return request.Number == number; });
  if (!current_ || current_->Number != number) return;
  current_.reset();
  Abandon();
  BeginNext();
}

void PageFetcher::Stop() {
  waiting_.clear();
  if (!current_) return;
  current_.reset();
  Abandon();
}

void PageFetcher::Finish(Page page) {
  if (!current_) return;
  const Request request = std::move(*current_);
  current_.reset();
  page.Url = request.Url;
  // What is asked for meanwhile waits until this one has been dealt with.
  telling_ = true;
  if (request.WhenDone) request.WhenDone(page);
  telling_ = false;
  BeginNext();
}

void PageFetcher::BeginNext() {
  if (current_ || telling_ || waiting_.empty()) return;
  current_ = std::move(waiting_.front());
  waiting_.pop_front();
  Begin(current_->Url, current_->How);
}

}  // namespace zepril
