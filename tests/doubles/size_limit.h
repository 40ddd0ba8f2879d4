// A disk that is nearly full.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace zepril {

// Files may grow to `bytes` while it lives; what is more fails as on a full disk.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

}  // namespace zepril
