// Pages of web services, fetched one after the other in the order in which they were asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zepril {

enum class PageOutcome {
  Loaded,    // whatever the server's status says
  Failed,    // no whole answer
  TooLarge,  // given up beyond kLargestPage
};

// An address that was asked for, and what came of it.
struct Page {
  std::string Url;  // as it was asked for
  PageOutcome Outcome = PageOutcome::Failed;
  int Status = 0;  // of HTTP, 0 without an answer
  std::string ContentType;
  std::string Body;  // bytes as they came, unpacked

  bool IsGood() const { return Outcome == PageOutcome::Loaded && Status >= 200 && Status < 300; }
};

// How often a server may be asked when its answer does not come.
enum class Asking {
  Freely,  // again, where a connection breaks before an answer
  Once,    // what the request brings about must not be done twice
};

// Who asks is told once, unless he has dropped the page or the line was stopped. There is no limit
// of time: he knows how long he wants to wait.
class PageFetcher {
 public:
  static constexpr std::size_t kLargestPage = 8U << 20;  // bytes
  static constexpr std::size_t kMostWaiting = 32;
  static constexpr std::int64_t kNone = 0;

  using Done = std::function<void(const Page& page)>;

  virtual ~PageFetcher() = default;

  // A number by which the page can be dropped; kNone when too many wait already.
  std::int64_t Fetch(std::string url, Done done, Asking asking = Asking::Freely);
  // Ends the fetch of one page, or takes it out of the line; the next one begins.
  void Drop(std::int64_t number);
  // Ends the fetch under way and empties the line.
  void Stop();
  bool IsBusy() const { return current_.has_value(); }
  // The page has its turn; false while it waits for it.
  bool IsUnderWay(std::int64_t number) const { return current_ && current_->Number == number; }

 protected:
  virtual void Begin(const std::string& url, Asking asking) = 0;
  // Ends what was begun; nothing more of it is told.
  virtual void Abandon() = 0;
  // What was begun has come to its end. Not from within `Begin`.
  void Finish(Page page);

 private:
  struct Request {
    std::int64_t Number = kNone;
    std::string Url;
    Done WhenDone;
    Asking How = Asking::Freely;
  };

  void BeginNext();

  std::optional<Request> current_;
  std::deque<Request> waiting_;
  std::int64_t last_number_ = kNone;
  bool telling_ = false;  // somebody is being told of his page
};

// `url` as it can be sent: behind the host everything is percent-encoded that an address can't
// carry, 8-bit text as its bytes. What already is an address stays as it is.
//   "http://h/a?msg=A B{07" gives "http://h/a?msg=A%20B%7B07", "100%" gives "100%25"
std::string SendableUrl(std::string_view url);

}  // namespace zepril
