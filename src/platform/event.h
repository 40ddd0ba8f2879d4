// An event with one listener, which takes it and gives it back.
#pragma once

#include <cassert>
#include <concepts>
#include <cstddef>
#include <functional>
#include <utility>

namespace zepril {

// Whoever sets a listener is the event's owner until he sets it to null; to set one over another's
// is an error of ours. Without a listener nothing happens.
template <typename... Values>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  template <std::invocable<Values...> Listener>
  Event& operator=(Listener listener) {
    std::function<void(Values...)> taken = std::move(listener);
    assert((!listener_ || !taken) && "somebody listens already");
    listener_ = std::move(taken);
    return *this;
  }
  Event& operator=(std::nullptr_t) {
    listener_ = nullptr;
    return *this;
  }

  explicit operator bool() const { return static_cast<bool>(listener_); }

  void operator()(Values... values) const {
    // A copy: the listener may give the event back while it runs.
    if (const auto listener = listener_) listener(std::forward<Values>(values)...);
  }

 private:
  std::function<void(Values...)> listener_;
};

}  // namespace zepril
